// Saving and loading of streams, in files and in memory, by one writer and one reader over a sink and a source of
// bytes.
//
// Layout 2, little-endian: the head, the generator's state, the chunks head of the list first; of each chunk its id,
// its key of two words, its size, its data. Layouts 1 and 0 have a shorter head, and layout 0 has no keys. In a form
// older still, the mark stands first: its head is read, its chunks are not.
//
// What is read comes from outside. The head is checked against the generator's row, sizes are checked before they are
// used, and a chunk that the generator reads by a fixed layout has that layout's size.
#include <cstdio>
#include <cstring>

#include "generators/mcg_lanes.hpp"
#include "streams/streams.hpp"

namespace qorl {
namespace {

constexpr std::uint32_t mark = 0x474E52;  // "RNG"
constexpr std::uint32_t mark_mask = 0xFFFFFF;
constexpr std::uint8_t newest_layout = 2;

struct Head {
    std::uint8_t layout;
    std::uint8_t unset1[3];
    std::uint32_t mark;
    std::uint16_t head_size;
    std::uint16_t unset2;
    std::int32_t state_bytes;
    std::uint16_t chunk_count;
    std::uint16_t unset3;
    std::int32_t id;
};
static_assert(sizeof(Head) == 24);

// Of layouts 1 and 0; the first eight bytes are as in layout 2.
struct OldHeadRest {
    std::uint16_t unset1;
    std::uint16_t state_bytes;
    std::uint16_t chunk_count;
    std::uint16_t unset2;
    std::int32_t id;
};
constexpr std::size_t head_begin = 8;
static_assert(head_begin + sizeof(OldHeadRest) == 20);

// Sinks and sources tell whether all the bytes were there; the sources also how they call the faults of a head. Writing
// no bytes to a file counts as a failure, as the C library counts the items it has written.
struct FileSink {
    std::FILE *file;
    bool write(const void *from, std::size_t bytes) { return bytes != 0 && std::fwrite(from, bytes, 1, file) == 1; }
};

struct FileSource {
    static constexpr std::int32_t bad_format = HuxStatusBadFileFormat, bad_version = HuxStatusBadFileVersion;
    std::FILE *file;
    bool read(void *to, std::size_t bytes) { return bytes == 0 || std::fread(to, bytes, 1, file) == 1; }
};

struct MemorySink {
    std::uint8_t *memory;
    bool write(const void *from, std::size_t bytes) {
        if (bytes != 0) std::memcpy(memory, from, bytes);
        memory += bytes;
        return true;
    }
};

struct MemorySource {
    static constexpr std::int32_t bad_format = HuxStatusBadMemoryImage, bad_version = HuxStatusBadMemoryImage;
    const std::uint8_t *memory;
    bool read(void *to, std::size_t bytes) {
        if (bytes != 0) std::memcpy(to, memory, bytes);
        memory += bytes;
        return true;
    }
};

// ------------------------------------------------------------------------------------------------------- writing --

template <class Sink>
std::int32_t write_stream(Sink &sink, const StreamState &stream) {
    const std::size_t bytes = state_bytes(properties_of(stream));
    Head head{};
    head.layout = newest_layout;
    head.mark = mark;
    head.head_size = sizeof(Head);
    head.state_bytes = static_cast<std::int32_t>(bytes);
    head.chunk_count = static_cast<std::uint16_t>(__huxGetNumChunks(&stream));
    head.id = stream.id;
    if (!sink.write(&head, sizeof head)) return HuxStatusFileWrite;
    if (bytes != 0 && !sink.write(&state_of(&stream), bytes)) return HuxStatusFileWrite;
    // The data of the last chunk decide: a file that is full stays so, and closing it tells the rest.
    bool written = true;
    for (const StreamChunk *chunk = stream.chunks; chunk != nullptr; chunk = chunk->next) {
        sink.write(&chunk->id, sizeof chunk->id);
        sink.write(chunk->key, sizeof chunk->key);
        sink.write(&chunk->size, sizeof chunk->size);
        written = sink.write(chunk->data, static_cast<std::size_t>(chunk->size));
    }
    return written ? HuxStatusOk : HuxStatusFileWrite;
}

// ------------------------------------------------------------------------------------------------------- reading --

// Brings the head of any layout into the shape of the newest.
template <class Source>
std::int32_t read_head(Source &source, Head &head) {
    head = {};
    source.read(&head, head_begin);  // a file that ends here has no second part either
    if (head.layout == newest_layout)
        return source.read(&head.head_size, sizeof head - head_begin) ? HuxStatusOk : HuxStatusFileRead;
    OldHeadRest rest{};
    if (!source.read(&rest, sizeof rest)) return HuxStatusFileRead;
    head.head_size = sizeof head;
    head.state_bytes = rest.state_bytes;
    head.chunk_count = rest.chunk_count;
    head.id = rest.id;
    return HuxStatusOk;
}

template <class Source>
std::int32_t check_head(const Head &head) {
    std::uint32_t first_word;
    std::memcpy(&first_word, &head, sizeof first_word);
    if ((head.mark & mark_mask) != mark && (first_word & mark_mask) != mark) return Source::bad_format;
    // In the form with the mark in front its version stands here; in a newer layout, a letter of the mark.
    const std::uint32_t fourth_byte = head.mark & 0xFF;
    if (head.layout > newest_layout && fourth_byte > newest_layout) return Source::bad_version;
    const BrngProperties *const generator = generator_at(place_of(head.id));
    if (generator == nullptr) return Source::bad_format;
    if (head.state_bytes != static_cast<std::int32_t>(state_bytes(*generator))) return Source::bad_format;
    return head.head_size < sizeof head ? Source::bad_format : HuxStatusOk;
}

std::int32_t check_processor(std::int32_t id) {
    if (id == family_id(row_TRNG) && qorl_serv_processor_has(QORL_PROCESSOR_RDRAND) == 0)
        return HuxStatusNoRandomInstruction;
    if (id == family_id(row_ARS5) && qorl_serv_processor_has(QORL_PROCESSOR_AES) == 0) return HuxStatusNoAesInstruction;
    return HuxStatusOk;
}

// Whether the chunk is the one whose layout MCG31M1 and MCG59 rely on. Their rows are the same in both tables.
bool is_mcg_lanes(const StreamState &stream, std::int32_t chunk_id) {
    const std::int32_t row = place_of(stream.id).row;
    return chunk_id == mcg_lanes_chunk && (row == row_MCG31M1 || row == row_MCG59);
}

void restore_lanes(const StreamState &stream, McgLanes &record) {
    const bool is_mcg59 = place_of(stream.id).row == row_MCG59;
    if (is_mcg59 && record.kind == McgKind::mcg59)
        rebuild_lanes<McgKind::mcg59>(record, record.lanes[0], state_of<Mcg59State>(&stream).a);
    if (!is_mcg59 && record.kind == McgKind::mcg31m1)
        rebuild_lanes<McgKind::mcg31m1>(record, record.lanes[0], state_of<Mcg31m1State>(&stream).a);
}

template <class Source>
std::int32_t read_chunk(Source &source, std::uint8_t layout, StreamState *stream) {
    std::int32_t id = 0, size = 0;
    std::uint64_t key[2] = {0, 0};
    if (!source.read(&id, sizeof id) || layout > newest_layout) return HuxStatusFileRead;
    if (layout != 0 && !source.read(key, sizeof key)) return HuxStatusFileRead;
    if (!source.read(&size, sizeof size)) return HuxStatusFileRead;
    if (size < 0) return HuxStatusOutOfMemory;
    const bool lanes = is_mcg_lanes(*stream, id);
    if (lanes && size != sizeof(McgLanes)) return Source::bad_format;

    Block<std::byte> data(static_cast<std::size_t>(size));
    if (data.data() == nullptr) return HuxStatusOutOfMemory;
    if (!source.read(data.data(), static_cast<std::size_t>(size))) return HuxStatusFileRead;
    // Lanes change with every draw and are never shared, whatever key stands there.
    if (lanes) restore_lanes(*stream, *reinterpret_cast<McgLanes *>(data.data()));
    const std::int32_t status = __huxAddChunk(stream, id, lanes ? nullptr : key, data.data(), size);
    if (status != HuxStatusOk) return status;
    if (stream->chunks->data == data.data()) data.release();
    return HuxStatusOk;
}

template <class Source>
std::int32_t fill_stream(Source &source, const Head &head, StreamState *stream) {
    const bool whole = source.read(&state_of(stream), static_cast<std::size_t>(head.state_bytes));
    const std::int32_t unusable = check_processor(head.id);
    if (unusable != HuxStatusOk) return unusable;
    if (!whole) return HuxStatusFileRead;
    for (std::int32_t chunk = 0; chunk < head.chunk_count; ++chunk) {
        const std::int32_t status = read_chunk(source, head.layout, stream);
        if (status != HuxStatusOk) return status;
    }
    return HuxStatusOk;
}

// Leaves *stream null when it fails.
template <class Source>
std::int32_t read_stream(Source &source, StreamState **stream) {
    Head head;
    std::int32_t status = read_head(source, head);
    if (status == HuxStatusOk) status = check_head<Source>(head);
    if (status != HuxStatusOk) return status;
    const Place place = place_of(head.id);
    status = __huxAllocateStream(stream, place.table, head.id, place.row, place.member);
    if (status != HuxStatusOk) return status;
    status = fill_stream(source, head, *stream);
    if (status != HuxStatusOk) __huxDeleteStream(stream);
    return status;
}

// --------------------------------------------------------------------------------------------------------- files --

// Opens the file, calls `use` with it and closes it. A failing close comes before what `use` answers.
template <class Use>
std::int32_t with_file(const char *name, std::int32_t name_length, const char *mode, Use use) {
    if (name_length >= 0) {
        const std::size_t length = static_cast<std::size_t>(name_length);
        Block<char> terminated(length + 1);
        if (terminated.data() == nullptr) return HuxStatusOutOfMemory;
        std::memcpy(terminated.data(), name, length);
        terminated.data()[length] = '\0';
        return with_file(terminated.data(), -1, mode, use);
    }
    std::FILE *const file = std::fopen(name, mode);
    if (file == nullptr) return HuxStatusFileOpen;
    const std::int32_t status = use(file);
    return std::fclose(file) == 0 ? status : HuxStatusFileClose;
}

}  // namespace
}  // namespace qorl

using namespace qorl;

int32_t __huxSaveStreamF(const StreamState *stream, const char *name, int32_t name_length) {
    return with_file(name, name_length, "wb", [stream](std::FILE *file) {
        FileSink sink{file};
        return write_stream(sink, *stream);
    });
}

int32_t __huxLoadStreamF(StreamState **stream, const char *name, int32_t name_length) {
    *stream = nullptr;
    const int32_t status = with_file(name, name_length, "rb", [stream](std::FILE *file) {
        FileSource source{file};
        return read_stream(source, stream);
    });
    if (status != HuxStatusOk && *stream != nullptr) __huxDeleteStream(stream);  // the file did not close
    return status;
}

int32_t __huxSaveStreamM(const StreamState *stream, uint8_t *memory) {
    MemorySink sink{memory};
    write_stream(sink, *stream);
    return HuxStatusOk;
}

int32_t __huxLoadStreamM(StreamState **stream, const uint8_t *memory) {
    *stream = nullptr;
    MemorySource source{memory};
    return read_stream(source, stream);
}
