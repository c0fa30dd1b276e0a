// The list of blocks that belong to a stream.
#include <cstring>
#include <new>

#include "streams/streams.hpp"

namespace qorl {
namespace {

void release(StreamChunk *chunk) {
    // The chunk's own reference keeps a shared entry in the table, so that not to find it tells that the data are the
    // chunk's own.
    if (__huxUnregisterGlobRODataReference(chunk->key) != HuxStatusOk) qorl_serv_deallocate(chunk->data);
    qorl_serv_deallocate(chunk);
}

int32_t add_copy(StreamState *target, const StreamChunk &chunk) {
    if (is_shared(chunk.key)) return __huxAddChunk(target, chunk.id, chunk.key, chunk.data, chunk.size);
    Block<std::byte> copy(static_cast<std::size_t>(chunk.size));
    if (copy.data() == nullptr) return HuxStatusOutOfMemory;
    if (chunk.data != nullptr) std::memcpy(copy.data(), chunk.data, static_cast<std::size_t>(chunk.size));
    const int32_t status = __huxAddChunk(target, chunk.id, chunk.key, copy.data(), chunk.size);
    if (status == HuxStatusOk) copy.release();
    return status;
}

}  // namespace

StreamChunk *find_chunk(const StreamState &stream, std::int32_t id) {
    for (StreamChunk *chunk = stream.chunks; chunk != nullptr; chunk = chunk->next)
        if (chunk->id == id) return chunk;
    return nullptr;
}

}  // namespace qorl

using namespace qorl;

int32_t __huxAddChunk(StreamState *stream, int32_t id, const uint64_t *key, void *data, int32_t size) {
    void *const block = qorl_serv_allocate(sizeof(StreamChunk), stream_alignment);
    if (block == nullptr) return HuxStatusOutOfMemory;
    StreamChunk *const chunk = new (block) StreamChunk{id, size, data, stream->chunks, {0, 0}};
    if (key != nullptr) {
        chunk->key[0] = key[0];
        chunk->key[1] = key[1];
    }
    chunk->data = share(chunk->key, data, size);
    stream->chunks = chunk;
    return HuxStatusOk;
}

void *__huxSearchChunk(const StreamState *stream, int32_t id) {
    const StreamChunk *const chunk = find_chunk(*stream, id);
    return chunk == nullptr ? nullptr : chunk->data;
}

int32_t __huxGetNumChunks(const StreamState *stream) {
    int32_t count = 0;
    for (const StreamChunk *chunk = stream->chunks; chunk != nullptr; chunk = chunk->next) ++count;
    return count;
}

int32_t __huxDeleteChunksById(StreamState *stream, int32_t id) {
    for (StreamChunk **link = &stream->chunks; *link != nullptr;) {
        StreamChunk *const chunk = *link;
        if (chunk->id != id) {
            link = &chunk->next;
            continue;
        }
        *link = chunk->next;
        release(chunk);
    }
    return HuxStatusOk;
}

int32_t __huxDeleteChunks(StreamState *stream) {
    while (stream->chunks != nullptr) {
        StreamChunk *const chunk = stream->chunks;
        stream->chunks = chunk->next;
        release(chunk);
    }
    return HuxStatusOk;
}

int32_t __huxCopyChunks(StreamState *target, const StreamState *source) {
    for (const StreamChunk *chunk = source->chunks; chunk != nullptr; chunk = chunk->next) {
        const int32_t status = add_copy(target, *chunk);
        if (status == HuxStatusOk) continue;
        __huxDeleteChunks(target);
        return status;
    }
    return HuxStatusOk;
}
