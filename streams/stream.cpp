// Streams: creation, position, copies, deletion.
#include <cstring>
#include <limits>
#include <new>

#include "streams/streams.hpp"

namespace qorl {
namespace {

constexpr bool is_abstract(std::int32_t id) {
    return id == family_id(row_iAbstract) || id == family_id(row_dAbstract) || id == family_id(row_sAbstract);
}

// Puts a record with a head into *stream.
std::int32_t allocate(StreamState **stream, const BrngProperties &properties, std::int32_t id) {
    void *const record = qorl_serv_allocate(record_bytes(properties), stream_alignment);
    *stream = record == nullptr ? nullptr : new (record) StreamState{id, 1, nullptr};
    return *stream == nullptr ? HuxStatusOutOfMemory : HuxStatusOk;
}

std::int32_t allocate(StreamState **stream, const Place &place, std::int32_t id) {
    const BrngProperties *const generator = generator_at(place);
    return generator == nullptr ? HuxStatusBadBrngId : allocate(stream, *generator, id);
}

std::int32_t run_init(StreamState *stream, std::int32_t method, std::int32_t n, const void *params) {
    return properties_of(*stream).init(method, stream, n, params);
}

// `block` is what the initialisation of the abstract generators takes: addresses, counted in 32-bit words.
template <std::size_t Pointers>
std::int32_t new_abstract(StreamState **stream, GeneratorRow row, void *const (&block)[Pointers]) {
    const std::int32_t id = family_id(row);
    const std::int32_t status = allocate(stream, place_of(id), id);
    if (status != HuxStatusOk) return status;
    return run_init(*stream, method_initialise, 2 * static_cast<std::int32_t>(Pointers), block);
}

template <class T, class Callback>
std::int32_t new_abstract(StreamState **stream, GeneratorRow row, std::int32_t n, T *buffer, T a, T b,
                          Callback callback) {
    if (n == 0 || buffer == nullptr || callback == nullptr || a >= b) return HuxStatusBadArguments;
    return new_abstract(stream, row, {&n, buffer, &a, &b, reinterpret_cast<void *>(callback)});
}

}  // namespace
}  // namespace qorl

using namespace qorl;

int32_t __huxNewStreamEx(StreamState **stream, int32_t id, int32_t n, const uint32_t *params) {
    if (is_abstract(id)) return HuxStatusBadBrngId;
    const int32_t status = allocate(stream, place_of(id), id);
    return status != HuxStatusOk ? status : run_init(*stream, method_initialise, n, params);
}

int32_t __huxAllocateStream(StreamState **stream, const BrngProperties *table, int32_t id, int32_t row, int32_t sub) {
    return allocate(stream, {table, row, sub}, id);
}

int32_t __huxiNewAbstractStream(StreamState **stream, int32_t n, uint32_t *buffer, HuxIntegerCallback callback) {
    if (n == 0 || buffer == nullptr || callback == nullptr) return HuxStatusBadArguments;
    return new_abstract(stream, row_iAbstract, {&n, buffer, reinterpret_cast<void *>(callback)});
}

int32_t __huxdNewAbstractStream(StreamState **stream, int32_t n, double *buffer, double a, double b,
                                HuxDoubleCallback callback) {
    return new_abstract(stream, row_dAbstract, n, buffer, a, b, callback);
}

int32_t __huxsNewAbstractStream(StreamState **stream, int32_t n, float *buffer, float a, float b,
                                HuxSingleCallback callback) {
    return new_abstract(stream, row_sAbstract, n, buffer, a, b, callback);
}

int32_t __huxLeapfrogStream(StreamState *stream, int32_t k, int32_t nstreams) {
    return nstreams < 0 ? HuxStatusBadStreamCount : run_init(stream, method_leapfrog, nstreams, &k);
}

int32_t __huxSkipAheadStream(StreamState *stream, uint64_t nskip) {
    return run_init(stream, method_skip_ahead, 2, &nskip);
}

int32_t __huxSkipAheadStreamEx(StreamState *stream, int32_t n, const uint64_t *nskip) {
    return run_init(stream, method_skip_ahead_long, n, nskip);
}

int32_t __huxDeleteStream(StreamState **stream) {
    __huxDeleteChunks(*stream);
    qorl_serv_deallocate(*stream);
    *stream = nullptr;
    return HuxStatusOk;
}

int32_t __huxCopyStream(StreamState **copy, const StreamState *source) {
    const BrngProperties *const generator = generator_at(place_of(source->id));
    if (generator == nullptr) return HuxStatusBadBrngId;
    const int32_t status = allocate(copy, *generator, source->id);
    if (status != HuxStatusOk) return status;
    std::memcpy(*copy, source, record_bytes(*generator));
    (*copy)->chunks = nullptr;
    return __huxCopyChunks(*copy, source);
}

int32_t __huxCopyStreamState(StreamState *target, const StreamState *source) {
    if (target == source) return HuxStatusOk;
    const BrngProperties &properties = properties_of(*source);
    const std::size_t seed_bytes =
        static_cast<std::size_t>(properties.seed_words) * static_cast<std::size_t>(properties.word_size);
    // Of WH the seed counts for more bytes than its state has.
    std::memcpy(&state_of(target), &state_of(source), std::min(seed_bytes, state_bytes(properties)));
    __huxDeleteChunks(target);
    return __huxCopyChunks(target, source);
}

int32_t __huxGetStreamStateBrng(const StreamState *stream) {
    return stream->id;
}

int32_t __huxGetStreamSize(const StreamState *stream) {
    constexpr std::size_t head = 24, chunk_head = 24;
    std::size_t size = head + state_bytes(properties_of(*stream));
    for (const StreamChunk *chunk = stream->chunks; chunk != nullptr; chunk = chunk->next)
        size += chunk_head + static_cast<std::size_t>(chunk->size);
    return static_cast<int32_t>(std::min(size, std::size_t{std::numeric_limits<int32_t>::max()}));
}
