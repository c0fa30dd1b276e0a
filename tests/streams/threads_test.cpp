// Streams of several threads that share data. What this test is for is what the thread sanitizer sees.
#include <gtest/gtest.h>

#include <cstring>
#include <thread>

#include "allocator.hpp"
#include "toy_generator.hpp"

namespace qorl::test {
namespace {

class Threads : public Balanced {};

TEST_F(Threads, CreateCopySaveLoadAndDeleteStreamsThatShareData) {
    const std::int32_t id = toy_id();
    constexpr int rounds = 2000;
    const auto work = [id](std::uint32_t seed) {
        for (int round = 0; round < rounds; ++round) {
            Stream stream(id, seed), copy, loaded;
            ASSERT_EQ(stream.status, HuxStatusOk);
            ASSERT_EQ(__huxCopyStream(&copy.state, stream.state), HuxStatusOk);
            std::vector<std::uint8_t> image(static_cast<std::size_t>(__huxGetStreamSize(copy.state)));
            __huxSaveStreamM(copy.state, image.data());
            __huxDeleteStream(&stream.state);  // now and then the last of its data, and now and then not
            ASSERT_EQ(__huxLoadStreamM(&loaded.state, image.data()), HuxStatusOk);
            const auto *shared = static_cast<const unsigned char *>(__huxSearchChunk(loaded.state, shared_chunk));
            ASSERT_EQ(shared, __huxSearchChunk(copy.state, shared_chunk));
            for (std::int32_t k = 0; k < chunk_bytes; ++k) ASSERT_EQ(shared[k], shared_chunk);
            ASSERT_EQ(loaded.draw(2), (std::vector<std::uint64_t>{seed, seed + std::uint64_t{1}}));
        }
    };
    std::thread first(work, 1), second(work, 2);
    first.join();
    second.join();
    GlobRODataTableEntry *entry = nullptr;
    EXPECT_EQ(__huxFindGlobRODataTableEntry(&entry, shared_key), HuxStatusSharedDataNotFound);
}

}  // namespace
}  // namespace qorl::test
