// Loading of streams from any bytes, as a file and as a memory image. A stream that loads is drawn from, copied, saved
// and loaded again; the address sanitizer watches all of it, and its leak detection what is left.
//
// A memory image must be as long as its head says. The target finds that length by a reading of the layouts of its own,
// adds zeros where bytes are missing, and puts the image into a block of that size.
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "qorl/core.h"
#include "tests/streams/toy_generator.hpp"

// What the target is ready to spend on one input. The largest state of a generator is below it.
constexpr std::int32_t limit = 1 << 17;

// Linked with --wrap=qorl_serv_allocate: sizes that only a damaged file asks for are refused, so that no time is lost
// with gigabytes.
extern "C" void *__real_qorl_serv_allocate(size_t size, size_t alignment);
extern "C" void *__wrap_qorl_serv_allocate(size_t size, size_t alignment) {
    return size > limit ? nullptr : __real_qorl_serv_allocate(size, alignment);
}

// Freed blocks are kept back for a while, but not so many that hours of small blocks fill the memory.
extern "C" const char *__asan_default_options() {
    return "quarantine_size_mb=16";
}

namespace {

using Bytes = std::vector<std::uint8_t>;

template <class T>
T at(const std::uint8_t *data, std::size_t size, std::size_t offset) {
    std::uint8_t bytes[sizeof(T)] = {};
    if (offset < size) std::memcpy(bytes, data + offset, std::min(sizeof(T), size - offset));
    T value;
    std::memcpy(&value, bytes, sizeof value);
    return value;
}

// Bytes that a reader of the image may touch, if each size in it is taken up to what can be allocated.
std::size_t image_length(const std::uint8_t *data, std::size_t size) {
    const std::uint8_t layout = at<std::uint8_t>(data, size, 0);
    const bool newest = layout == 2;
    std::size_t length = newest ? 24 : 20;
    const std::int32_t state = newest ? at<std::int32_t>(data, size, 12) : at<std::uint16_t>(data, size, 10);
    if (state < 0 || state > limit) return length;
    length += static_cast<std::size_t>(state);
    const int chunks = at<std::uint16_t>(data, size, newest ? 16 : 12);
    for (int chunk = 0; chunk < chunks && length <= limit; ++chunk) {
        length += layout == 0 ? 4 : 20;
        const std::int32_t bytes = at<std::int32_t>(data, size, length);
        length += 4;
        if (bytes < 0 || bytes > limit) break;
        length += static_cast<std::size_t>(bytes);
    }
    return length;
}

void require(bool holds, const char *what) {
    if (holds) return;
    std::fprintf(stderr, "%s\n", what);
    std::abort();
}

Bytes saved(const StreamState *stream) {
    Bytes image(static_cast<std::size_t>(__huxGetStreamSize(stream)));
    __huxSaveStreamM(stream, image.data());
    return image;
}

// Draws of every type from a state that may be anything, before and after moves; gives what was drawn.
Bytes draw(StreamState *stream) {
    const BrngProperties &generator = qorl::properties_of(*stream);
    Bytes drawn;
    const auto draw_all = [&] {
        for (const std::size_t n : {1, 7, 100}) {
            const auto count = static_cast<std::int32_t>(n);
            Bytes i(n * static_cast<std::size_t>(generator.word_size)), d(n * sizeof(double)), s(n * sizeof(float));
            generator.i(stream, count, i.data());
            generator.d(stream, count, reinterpret_cast<double *>(d.data()), 0, 1);
            generator.s(stream, count, reinterpret_cast<float *>(s.data()), 0, 1);
            for (const Bytes *const part : {&i, &d, &s}) drawn.insert(drawn.end(), part->begin(), part->end());
        }
        generator.d(stream, 0, nullptr, 0, 1);
    };
    const std::uint64_t count[] = {1000, 3, 1};
    draw_all();
    __huxSkipAheadStream(stream, count[0]);
    draw_all();
    __huxSkipAheadStreamEx(stream, 3, count);
    __huxLeapfrogStream(stream, 1, 3);
    draw_all();
    return drawn;
}

// Uses a stream, which is deleted, in every way; gives what it was saved as at first.
Bytes use(StreamState *stream) {
    const Bytes image = saved(stream);
    StreamState *copy = nullptr, *again = nullptr;
    require(__huxCopyStream(&copy, stream) == 0, "a loaded stream cannot be copied");
    // Whether it loads from its own image depends on the sizes of its chunks alone, which did load.
    require(__huxLoadStreamM(&again, image.data()) == 0, "a saved stream does not load");
    require(saved(again).size() == image.size(), "a stream changed its size");
    require(__huxCopyStreamState(again, stream) == 0, "a state cannot be copied");
    require(draw(stream) == draw(copy), "a copy does not continue as the stream does");
    draw(again);  // of some generators a part of its state stays
    for (StreamState *one : {stream, copy, again}) __huxDeleteStream(&one);
    return image;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    static const int file = memfd_create("stream", 0);
    static const std::string name = "/proc/self/fd/" + std::to_string(file);
    qorl::test::toy_id();

    require(ftruncate(file, 0) == 0 && pwrite(file, data, size, 0) == static_cast<ssize_t>(size), "no file");
    StreamState *stream = nullptr;
    const std::int32_t from_file = __huxLoadStreamF(&stream, name.c_str(), -1);
    require((from_file == 0) == (stream != nullptr), "status and stream of a file disagree");
    Bytes file_image;
    if (stream != nullptr) file_image = use(stream);

    const std::size_t length = image_length(data, size);
    if (length > limit) return 0;
    Bytes image(data, data + std::min(size, length));
    image.resize(length);
    image.shrink_to_fit();
    const std::int32_t from_memory = __huxLoadStreamM(&stream, image.data());
    require((from_memory == 0) == (stream != nullptr), "status and stream of an image disagree");
    if (stream != nullptr) {
        const Bytes memory_image = use(stream);
        require(from_file != 0 || memory_image == file_image, "file and image give different streams");
    } else {
        require(from_file != 0, "a file loads whose image does not");
    }
    return 0;
}
