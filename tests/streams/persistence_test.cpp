#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <fstream>
#include <functional>
#include <string>
#include <thread>

#include "allocator.hpp"
#include "generators/mcg_lanes.hpp"
#include "toy_generator.hpp"

namespace qorl::test {
namespace {

using Bytes = std::vector<std::uint8_t>;
using Numbers = std::vector<std::uint64_t>;

template <class T>
void append(Bytes &bytes, T value) {
    const auto *from = reinterpret_cast<const std::uint8_t *>(&value);
    bytes.insert(bytes.end(), from, from + sizeof value);
}

template <class T>
void put(Bytes &bytes, std::size_t offset, T value) {
    std::memcpy(bytes.data() + offset, &value, sizeof value);
}

void append_chunk(Bytes &bytes, std::int32_t id, const std::uint64_t *key, const Bytes &data) {
    append(bytes, id);
    if (key != nullptr) append(bytes, key[0]), append(bytes, key[1]);
    append(bytes, static_cast<std::int32_t>(data.size()));
    bytes.insert(bytes.end(), data.begin(), data.end());
}

// Heads as the layouts have them, written by offsets; what no layout sets is filled with a mark of its own.
Bytes head_2(std::int32_t id, std::int32_t state_bytes, std::uint16_t chunks) {
    Bytes bytes(24, 0xDD);
    put(bytes, 0, std::uint8_t{2});
    put(bytes, 4, std::uint32_t{0x474E52});
    put(bytes, 8, std::uint16_t{24});
    put(bytes, 12, state_bytes);
    put(bytes, 16, chunks);
    put(bytes, 20, id);
    return bytes;
}

Bytes old_head(std::uint8_t layout, std::int32_t id, std::uint16_t state_bytes, std::uint16_t chunks) {
    Bytes bytes(20, 0xDD);
    put(bytes, 0, layout);
    put(bytes, 4, std::uint32_t{0x474E52});
    put(bytes, 10, state_bytes);
    put(bytes, 12, chunks);
    put(bytes, 16, id);
    return bytes;
}

constexpr std::uint64_t no_key[2] = {0, 0};

// A toy of the layout with the state 41, 42, ... and two private chunks.
Bytes toy_image(int layout) {
    Bytes bytes = layout == 2 ? head_2(toy_id(), 16, 2) : old_head(static_cast<std::uint8_t>(layout), toy_id(), 16, 2);
    append(bytes, ToyState{41, 1});
    const std::uint64_t *key = layout == 0 ? nullptr : no_key;
    append_chunk(bytes, 60, key, Bytes(5, 6));
    append_chunk(bytes, 61, key, Bytes(9, 7));
    return bytes;
}

class Persistence : public Balanced {
  protected:
    std::string path_ = testing::TempDir() + "qorl_stream_" + std::to_string(getpid());
    void TearDown() override {
        std::remove(path_.c_str());
        Balanced::TearDown();
    }
    void write_file(const Bytes &bytes) const {
        std::ofstream(path_, std::ios::binary)
            .write(reinterpret_cast<const char *>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    }
    Bytes read_file() const {
        std::ifstream file(path_, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    std::int32_t load_file(StreamState **stream) const { return __huxLoadStreamF(stream, path_.c_str(), -1); }
    // The status of the bytes as a file; on success they are to continue as the toy image does.
    std::int32_t file_status(const Bytes &bytes) const {
        write_file(bytes);
        Stream stream;
        const std::int32_t status = load_file(&stream.state);
        EXPECT_EQ(stream.state != nullptr, status == HuxStatusOk);
        if (stream.state != nullptr) {
            EXPECT_EQ(stream.draw(2), (Numbers{41, 42}));
        }
        return status;
    }
};

Bytes image_of(const StreamState *stream) {
    Bytes image(static_cast<std::size_t>(__huxGetStreamSize(stream)) + 8, 0xAB);
    EXPECT_EQ(__huxSaveStreamM(stream, image.data()), HuxStatusOk);
    for (int k = 0; k < 8; ++k) {
        EXPECT_EQ(image.back(), 0xAB) << "written past the size";
        image.pop_back();
    }
    return image;
}

TEST_F(Persistence, WritesTheLayoutByteForByte) {
    Stream stream(toy_id(), 41);
    Bytes expected = head_2(toy_id(), 16, 2);
    for (const std::size_t unset : {1, 2, 3, 10, 11, 18, 19}) expected[unset] = 0;
    append(expected, ToyState{41, 1});
    append_chunk(expected, shared_chunk, shared_key, Bytes(chunk_bytes, shared_chunk));
    append_chunk(expected, private_chunk, no_key, Bytes(chunk_bytes, private_chunk));
    EXPECT_EQ(image_of(stream.state), expected);
    ASSERT_EQ(__huxSaveStreamF(stream.state, path_.c_str(), -1), HuxStatusOk);
    EXPECT_EQ(read_file(), expected);
}

TEST_F(Persistence, LoadedStreamsContinueAndFindTheirSharedData) {
    Stream stream(toy_id(), 41), from_file, from_memory;
    stream.draw(7);
    const Bytes image = image_of(stream.state);
    ASSERT_EQ(__huxSaveStreamF(stream.state, path_.c_str(), -1), HuxStatusOk);
    ASSERT_EQ(load_file(&from_file.state), HuxStatusOk);
    ASSERT_EQ(__huxLoadStreamM(&from_memory.state, image.data()), HuxStatusOk);
    const Numbers next = stream.draw(3);
    for (const Stream *loaded : {&from_file, &from_memory}) {
        EXPECT_EQ(loaded->draw(3), next);
        EXPECT_EQ(loaded->state->header_flag, 1);
        EXPECT_EQ(__huxSearchChunk(loaded->state, shared_chunk), __huxSearchChunk(stream.state, shared_chunk));
        void *const own = __huxSearchChunk(loaded->state, private_chunk);
        EXPECT_NE(own, __huxSearchChunk(stream.state, private_chunk));
        EXPECT_EQ(std::memcmp(own, Bytes(chunk_bytes, private_chunk).data(), chunk_bytes), 0);
        EXPECT_EQ(loaded->state->chunks->id, private_chunk) << "the order is reversed";
    }
}

TEST_F(Persistence, ReadsEveryLayout) {
    for (int layout = 0; layout <= 2; ++layout) {
        const Bytes image = toy_image(layout);
        write_file(image);
        Stream from_file, from_memory;
        ASSERT_EQ(load_file(&from_file.state), HuxStatusOk) << layout;
        ASSERT_EQ(__huxLoadStreamM(&from_memory.state, image.data()), HuxStatusOk) << layout;
        for (const Stream *loaded : {&from_file, &from_memory}) {
            EXPECT_EQ(loaded->draw(2), (Numbers{41, 42}));
            EXPECT_EQ(__huxGetNumChunks(loaded->state), 2);
            EXPECT_EQ(std::memcmp(__huxSearchChunk(loaded->state, 61), Bytes(9, 7).data(), 9), 0);
        }
    }
    // The form with the mark in front, version behind it: without chunks it loads, with them it does not.
    Bytes oldest(20, 0);
    put(oldest, 0, std::uint32_t{0x474E52});
    put(oldest, 4, std::uint32_t{1});
    put(oldest, 10, std::uint16_t{16});
    put(oldest, 16, toy_id());
    append(oldest, ToyState{41, 1});
    EXPECT_EQ(file_status(oldest), HuxStatusOk);
    put(oldest, 12, std::uint16_t{1});
    append_chunk(oldest, 60, no_key, Bytes(5, 6));
    EXPECT_EQ(file_status(oldest), HuxStatusFileRead);
    Stream stream;
    EXPECT_EQ(__huxLoadStreamM(&stream.state, oldest.data()), HuxStatusFileRead);
    EXPECT_EQ(stream.state, nullptr);
}

TEST_F(Persistence, FaultsOfTheHeadAreToldInTheirOrder) {
    struct Case {
        const char *fault;
        std::int32_t status;
        std::function<void(Bytes &)> spoil;
    };
    const Case cases[] = {
        {"mark", HuxStatusBadFileFormat, [](Bytes &b) { b[5] = 'M'; }},
        {"last byte of the mark", HuxStatusOk, [](Bytes &b) { b[7] = 0x55; }},
        {"version 3", HuxStatusBadFileVersion, [](Bytes &b) { b[0] = 3; }},
        {"number without a generator", HuxStatusBadFileFormat, [](Bytes &b) { put(b, 20, 281); }},
        {"number of an empty row", HuxStatusBadFileFormat, [](Bytes &b) { put(b, 20, 279), put(b, 12, -16); }},
        {"negative number", HuxStatusBadFileFormat, [](Bytes &b) { put(b, 20, -1); }},
        {"size of the state", HuxStatusBadFileFormat, [](Bytes &b) { put(b, 12, 15); }},
        {"negative size of the state", HuxStatusBadFileFormat, [](Bytes &b) { put(b, 12, -16); }},
        {"size of the head", HuxStatusBadFileFormat, [](Bytes &b) { put(b, 8, std::uint16_t{23}); }},
        {"longer head", HuxStatusOk, [](Bytes &b) { put(b, 8, std::uint16_t{60000}); }},
        {"version before the number", HuxStatusBadFileVersion, [](Bytes &b) { b[0] = 9, put(b, 16, -1); }},
        {"chunk of negative size", HuxStatusOutOfMemory, [](Bytes &b) { put(b, 24 + 16 + 20, -5); }},
    };
    for (const Case &expected : cases) {
        Bytes bytes = toy_image(2);
        expected.spoil(bytes);
        EXPECT_EQ(file_status(bytes), expected.status) << expected.fault;
        Stream stream;
        const bool head = expected.status == HuxStatusBadFileFormat || expected.status == HuxStatusBadFileVersion;
        EXPECT_EQ(__huxLoadStreamM(&stream.state, bytes.data()), head ? HuxStatusBadMemoryImage : expected.status)
            << expected.fault;
    }
    Bytes old = toy_image(1);
    put(old, 10, std::uint16_t{17});
    EXPECT_EQ(file_status(old), HuxStatusBadFileFormat);
}

TEST_F(Persistence, FilesCutAnywhereAreToldAndLeakNothing) {
    for (int layout = 0; layout <= 2; ++layout) {
        const Bytes whole = toy_image(layout);
        for (std::size_t length = 0; length < whole.size(); ++length)
            EXPECT_EQ(file_status(Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length))),
                      HuxStatusFileRead)
                << layout << " " << length;
    }
    EXPECT_EQ(file_status(Bytes(1000, 'x')), HuxStatusBadFileFormat) << "a foreign file";
    Bytes huge = toy_image(2);
    put(huge, 24 + 16 + 20, INT32_MAX);
    EXPECT_EQ(file_status(huge), HuxStatusFileRead);
}

TEST_F(Persistence, NamesNeedNoTerminator) {
    Stream stream(toy_id(), 41);
    const std::string longer = path_ + "xyz";
    ASSERT_EQ(__huxSaveStreamF(stream.state, longer.data(), static_cast<std::int32_t>(path_.size())), HuxStatusOk);
    EXPECT_EQ(access(path_.c_str(), F_OK), 0);
    EXPECT_NE(access(longer.c_str(), F_OK), 0);
}

TEST_F(Persistence, FaultsOfFilesAreTold) {
    Stream stream(toy_id(), 41);
    StreamState mark{}, *loaded = &mark;
    EXPECT_EQ(__huxSaveStreamF(stream.state, "/nonexistent/folder/file", -1), HuxStatusFileOpen);
    EXPECT_EQ(__huxLoadStreamF(&loaded, "/nonexistent/folder/file", -1), HuxStatusFileOpen);
    EXPECT_EQ(loaded, nullptr);
    // A small stream meets the full device when its buffer is written at the end, a big chunk before.
    EXPECT_EQ(__huxSaveStreamF(stream.state, "/dev/full", -1), HuxStatusFileClose);
    __huxAddChunk(stream.state, 60, nullptr, new_data(100000, 1), 100000);
    EXPECT_EQ(__huxSaveStreamF(stream.state, "/dev/full", -1), HuxStatusFileClose);
    EXPECT_EQ(__huxLoadStreamF(&loaded, testing::TempDir().c_str(), -1), HuxStatusFileRead) << "a folder";
    __huxDeleteChunks(stream.state);
    __huxAddChunk(stream.state, 60, nullptr, nullptr, 0);
    EXPECT_EQ(__huxSaveStreamF(stream.state, path_.c_str(), -1), HuxStatusFileWrite) << "a last chunk of no bytes";
    EXPECT_EQ(load_file(&loaded), HuxStatusOk) << "although it is all there";
    __huxDeleteStream(&loaded);
}

TEST_F(Persistence, PipesCanBeReadAndWritten) {
    ASSERT_EQ(mkfifo(path_.c_str(), 0600), 0);
    Stream stream(toy_id(), 41), loaded;
    std::thread writer([&] { EXPECT_EQ(__huxSaveStreamF(stream.state, path_.c_str(), -1), HuxStatusOk); });
    EXPECT_EQ(load_file(&loaded.state), HuxStatusOk);
    writer.join();
    EXPECT_EQ(loaded.draw(1), Numbers{41});
}

// A file whose second chunk claims the first one's key with more bytes, or less, must not get at its data.
TEST_F(Persistence, AKeyDoesNotLendDataOfAnotherSize) {
    const std::uint64_t key[2] = {99, 1};
    Bytes bytes = head_2(toy_id(), 16, 3);
    append(bytes, ToyState{41, 1});
    append_chunk(bytes, 60, key, Bytes(4, 6));
    append_chunk(bytes, 61, key, Bytes(400, 7));
    append_chunk(bytes, 62, key, Bytes(4, 8));
    Stream stream;
    ASSERT_EQ(__huxLoadStreamM(&stream.state, bytes.data()), HuxStatusOk);
    EXPECT_EQ(std::memcmp(__huxSearchChunk(stream.state, 61), Bytes(400, 7).data(), 400), 0);
    EXPECT_EQ(__huxSearchChunk(stream.state, 62), __huxSearchChunk(stream.state, 60));
    EXPECT_EQ(image_of(stream.state).size(), bytes.size());
}

// The lanes of a congruential stream are computed again from the first and the multiplier, whatever else was saved.
TEST_F(Persistence, LanesOfCongruentialStreamsAreRebuilt) {
    struct Case {
        std::int32_t id, state_bytes;
        McgKind kind;
        std::uint64_t x, a, modulus;
    };
    const Case cases[] = {
        {1048576, 8, McgKind::mcg31m1, 123456789, 48271, 2147483647},
        {0, 8, McgKind::mcg31m1, 1, 1132489760, 2147483647},
        {4194304, 16, McgKind::mcg59, 0x123456789ABCDEF, 302875106592253, std::uint64_t{1} << 59},
        {3, 16, McgKind::mcg59, 5, 0, std::uint64_t{1} << 59},  // 0 is the usual multiplier
    };
    for (const Case &c : cases) {
        Bytes bytes = head_2(c.id, c.state_bytes, 1), lanes(352, 0x99);
        if (c.state_bytes == 8)
            append(bytes, static_cast<std::uint32_t>(c.x)), append(bytes, static_cast<std::uint32_t>(c.a));
        else
            append(bytes, c.x), append(bytes, c.a);
        put(lanes, 0, c.kind);
        put(lanes, 32, c.x);
        const std::uint64_t shared[2] = {1, 2};  // no keys for lanes
        append_chunk(bytes, 14, shared, lanes);
        Stream stream;
        ASSERT_EQ(__huxLoadStreamM(&stream.state, bytes.data()), HuxStatusOk);
        const auto *words = static_cast<const std::uint64_t *>(__huxSearchChunk(stream.state, 14)) + 4;
        const unsigned __int128 a = c.a == 0 ? 302875106592253 : c.a;
        unsigned __int128 lane = c.x, power = 1;
        for (int k = 0; k < 4; ++k, lane = lane * a % c.modulus) EXPECT_EQ(words[k], lane) << c.id << " lane " << k;
        for (int k = 1; k <= 32; ++k) {
            power = power * a % c.modulus;
            for (int copy = 0; k % 4 == 0 && copy < 4; ++copy)
                EXPECT_EQ(words[k + copy], power) << c.id << " power " << k;
        }
        EXPECT_EQ(stream.state->chunks->key[0], 0u);

        put(bytes, bytes.size() - 352, std::uint32_t{7});  // another kind stays as read
        Stream other;
        ASSERT_EQ(__huxLoadStreamM(&other.state, bytes.data()), HuxStatusOk);
        EXPECT_EQ(std::memcmp(__huxSearchChunk(other.state, 14), bytes.data() + bytes.size() - 352, 352), 0);
        put(bytes, bytes.size() - 352 - 4, 351);
        Stream shorter;
        EXPECT_EQ(__huxLoadStreamM(&shorter.state, bytes.data()), HuxStatusBadMemoryImage);
    }
}

}  // namespace
}  // namespace qorl::test
