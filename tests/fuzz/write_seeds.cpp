// write_seeds FOLDER: writes saved streams for the fuzzer to begin with, of each generator that stands, in each layout:
// new ones and such that have stopped within a block.
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "tests/streams/toy_generator.hpp"

namespace {

using Bytes = std::vector<std::uint8_t>;

bool write(const std::string &path, const Bytes &bytes) {
    std::FILE *const file = std::fopen(path.c_str(), "wb");
    if (file == nullptr) return false;
    const bool written = std::fwrite(bytes.data(), bytes.size(), 1, file) == 1;
    return std::fclose(file) == 0 && written;
}

// The image with the shorter head of layouts 1 and 0; only layout 1 keeps the chunks.
Bytes older(const Bytes &image, std::uint8_t layout) {
    Bytes bytes(image.begin() + 4, image.end());
    bytes[0] = layout;
    std::memcpy(&bytes[4], &image[4], 4);
    std::memcpy(&bytes[10], &image[12], 2);
    std::memcpy(&bytes[12], &image[16], 2);
    if (layout == 0) bytes[12] = bytes[13] = 0;
    std::memcpy(&bytes[16], &image[20], 4);
    return bytes;
}

}  // namespace

int main(int argc, char **argv) {
    if (argc != 2) return 2;
    qorl::test::toy_id();
    for (std::int32_t seed = 0; seed < 2 * __huxGetNumRegBrngs(); ++seed) {
        const std::int32_t row = seed / 2, before = seed % 2 * 37;
        const qorl::test::Stream stream(qorl::family_id(row), 7);
        if (stream.status != HuxStatusOk) continue;
        double drawn[37];
        qorl::properties_of(*stream.state).d(stream.state, before, drawn, 0, 1);
        Bytes image(static_cast<std::size_t>(__huxGetStreamSize(stream.state)));
        __huxSaveStreamM(stream.state, image.data());
        const std::string path =
            std::string(argv[1]) + "/row" + std::to_string(row) + "_after" + std::to_string(before) + "_layout";
        if (!write(path + "2", image) || !write(path + "1", older(image, 1)) || !write(path + "0", older(image, 0))) {
            std::fprintf(stderr, "cannot write %s\n", path.c_str());
            return 1;
        }
    }
    return 0;
}
