#include <gtest/gtest.h>

#include <optional>

#include "allocator.hpp"
#include "toy_generator.hpp"

namespace qorl::test {
namespace {

class Chunks : public Balanced {};

std::optional<std::uint32_t> references(const std::uint64_t (&key)[2]) {
    GlobRODataTableEntry *entry = nullptr;
    if (__huxFindGlobRODataTableEntry(&entry, key) != HuxStatusOk) return std::nullopt;
    return entry->references;
}

TEST_F(Chunks, AreFoundCountedAndUnlinkedById) {
    StreamState stream{};
    EXPECT_EQ(__huxSearchChunk(&stream, 1), nullptr);
    void *data[5];
    const std::int32_t ids[5] = {1, 2, 1, 3, 1};
    for (int k = 0; k < 5; ++k) {
        data[k] = new_data(8, k);
        ASSERT_EQ(__huxAddChunk(&stream, ids[k], nullptr, data[k], 8), HuxStatusOk);
    }
    EXPECT_EQ(__huxGetNumChunks(&stream), 5);
    EXPECT_EQ(__huxSearchChunk(&stream, 1), data[4]) << "the newest stands first";
    __huxDeleteChunksById(&stream, 9);
    EXPECT_EQ(__huxGetNumChunks(&stream), 5);
    __huxDeleteChunksById(&stream, 1);
    EXPECT_EQ(__huxGetNumChunks(&stream), 2);
    EXPECT_TRUE(__huxSearchChunk(&stream, 2) == data[1] && __huxSearchChunk(&stream, 3) == data[3]);
    __huxDeleteChunks(&stream);
    EXPECT_EQ(stream.chunks, nullptr);
}

TEST_F(Chunks, ShareDataByKeyUntilTheLastReference) {
    const std::uint64_t key[2] = {11, 12}, none[2] = {0, 0};
    StreamState first{}, second{};
    void *const data = new_data(8, 1);
    ASSERT_EQ(__huxAddChunk(&first, 1, key, data, 8), HuxStatusOk);
    EXPECT_EQ(references(key), 1u);
    void *const mine = new_data(8, 2);
    ASSERT_EQ(__huxAddChunk(&second, 1, key, mine, 8), HuxStatusOk);
    EXPECT_EQ(__huxSearchChunk(&second, 1), data);
    qorl_serv_deallocate(mine);  // stayed the caller's
    EXPECT_EQ(references(key), 2u);
    __huxDeleteChunks(&first);
    EXPECT_EQ(references(key), 1u);
    EXPECT_EQ(*static_cast<unsigned char *>(__huxSearchChunk(&second, 1)), 1);
    __huxDeleteChunks(&second);
    EXPECT_EQ(references(key), std::nullopt);
    EXPECT_EQ(references(none), std::nullopt);
    GlobRODataTableEntry *entry = nullptr;
    EXPECT_EQ(__huxFindGlobRODataTableEntry(&entry, nullptr), HuxStatusSharedDataNotFound);
    EXPECT_EQ(__huxUnregisterGlobRODataReference(key), HuxStatusSharedDataNotFound);
}

TEST_F(Chunks, OfAnotherSizeDoNotGetTheDataUnderTheirKey) {
    const std::uint64_t key[2] = {11, 12};
    StreamState stream{};
    __huxAddChunk(&stream, 1, key, new_data(8, 1), 8);
    void *const longer = new_data(800, 2);
    __huxAddChunk(&stream, 2, key, longer, 800);
    EXPECT_EQ(__huxSearchChunk(&stream, 2), longer);
    EXPECT_EQ(stream.chunks->key[0], 0u) << "the chunk is private";
    EXPECT_EQ(references(key), 1u);
    __huxDeleteChunks(&stream);
}

TEST_F(Chunks, ReferencesAreCountedByHandToo) {
    const std::uint64_t key[2] = {5, 0}, second[2] = {6, 0};
    GlobRODataTableEntry *entry = nullptr;
    void *const data = new_data(8, 1);
    ASSERT_EQ(__huxCreateGlobRODataTableEntry(&entry, key, data), HuxStatusOk);
    EXPECT_TRUE(entry->references == 1 && entry->data == data && entry->key[0] == 5);
    ASSERT_EQ(__huxCreateGlobRODataTableEntry(&entry, second, new_data(8, 2)), HuxStatusOk);
    StreamChunk chunk{};
    EXPECT_EQ(__huxRegisterGlobRODataReference(&chunk, key), HuxStatusOk);
    EXPECT_EQ(chunk.data, data);
    EXPECT_EQ(references(key), 2u);
    __huxUnregisterGlobRODataReference(key);
    __huxUnregisterGlobRODataReference(key);
    EXPECT_EQ(references(key), std::nullopt);
    EXPECT_EQ(references(second), 1u) << "the last entry moved into the place";
    __huxUnregisterGlobRODataReference(second);
    std::uint64_t fresh[2] = {77, 0};
    EXPECT_EQ(__huxGenerateNewGlobalRODataTableEntryId(fresh, 78), HuxStatusOk);
    EXPECT_TRUE(fresh[0] == 77 && fresh[1] == 78);
}

TEST_F(Chunks, LeaveTheLastEntryOfTheTable) {
    StreamState stream{};
    GlobRODataTableEntry *entry = nullptr;
    for (std::uint64_t k = 1; k <= 127; ++k) {
        const std::uint64_t key[2] = {k, 1};
        ASSERT_EQ(__huxAddChunk(&stream, 1, key, new_data(8, 1), 8), HuxStatusOk);
        EXPECT_EQ(stream.chunks->key[0], k);
    }
    const std::uint64_t key[2] = {128, 1}, last[2] = {129, 1};
    ASSERT_EQ(__huxAddChunk(&stream, 2, key, new_data(8, 1), 8), HuxStatusOk);
    EXPECT_TRUE(stream.chunks->key[0] == 0 && stream.chunks->key[1] == 0);
    EXPECT_EQ(references(key), std::nullopt);
    EXPECT_EQ(__huxCreateGlobRODataTableEntry(&entry, last, new_data(8, 1)), HuxStatusOk);
    void *const rest = new_data(8, 1);
    EXPECT_EQ(__huxCreateGlobRODataTableEntry(&entry, key, rest), HuxStatusSharedDataTableFull);
    qorl_serv_deallocate(rest);
    __huxUnregisterGlobRODataReference(last);
    __huxDeleteChunks(&stream);
}

TEST_F(Chunks, ThatCannotAllBeCopiedAreAllReleased) {
    StreamState source{}, target{};
    const std::uint64_t key[2] = {3, 3};
    for (const std::int32_t id : {1, 2}) __huxAddChunk(&source, id, nullptr, new_data(8, id), 8);
    __huxAddChunk(&source, 3, key, new_data(8, 3), 8);
    __huxAddChunk(&target, 4, nullptr, new_data(8, 4), 8);
    fail_allocation(4);  // the node of the second private chunk behind the shared one
    EXPECT_EQ(__huxCopyChunks(&target, &source), HuxStatusOutOfMemory);
    fail_allocation(0);
    EXPECT_EQ(target.chunks, nullptr);
    EXPECT_EQ(references(key), 1u);
    __huxDeleteChunks(&source);
}

}  // namespace
}  // namespace qorl::test
