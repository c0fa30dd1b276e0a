#include "toy_generator.hpp"

#include <cstring>

namespace qorl::test {
namespace {

std::int32_t add_chunk(StreamState *stream, std::int32_t id, const std::uint64_t *key) {
    void *const data = new_data(chunk_bytes, id);
    if (data == nullptr) return HuxStatusOutOfMemory;
    const std::int32_t status = __huxAddChunk(stream, id, key, data, chunk_bytes);
    if (status != HuxStatusOk || __huxSearchChunk(stream, id) != data) qorl_serv_deallocate(data);
    return status;
}

std::int32_t init(std::int32_t method, StreamState *stream, std::int32_t n, const void *params) {
    auto &state = state_of<ToyState>(stream);
    std::uint32_t word = 0;
    std::uint64_t count = 0;
    switch (method) {
        case 0: {
            if (n > 0) std::memcpy(&word, params, sizeof word);
            state = {word, 1};
            const std::int32_t status = add_chunk(stream, private_chunk, nullptr);
            return status != HuxStatusOk ? status : add_chunk(stream, shared_chunk, shared_key);
        }
        case 1:
            std::memcpy(&word, params, sizeof word);
            state.next += word * state.step;
            state.step *= static_cast<std::uint64_t>(n);
            return HuxStatusOk;
        case 2:
            if (n != 2) return HuxStatusBadArguments;
            std::memcpy(&count, params, sizeof count);
            state.next += count * state.step;
            return HuxStatusOk;
        case 3:
            return HuxStatusSkipAheadExUnsupported;
        default:
            return HuxStatusBadMethod;
    }
}

std::int32_t draw_integers(StreamState *stream, std::int32_t n, void *r) {
    auto &state = state_of<ToyState>(stream);
    for (std::int32_t k = 0; k < n; ++k, state.next += state.step)
        std::memcpy(static_cast<std::uint64_t *>(r) + k, &state.next, sizeof state.next);
    return HuxStatusOk;
}

template <class T>
std::int32_t draw(StreamState *stream, std::int32_t n, T *r, T a, T b) {
    auto &state = state_of<ToyState>(stream);
    for (std::int32_t k = 0; k < n; ++k, state.next += state.step)
        r[k] = a + (b - a) * static_cast<T>(state.next & 0xFFFF) / T{65536};
    return HuxStatusOk;
}

}  // namespace

BrngProperties toy_properties() {
    constexpr std::int32_t size = sizeof(StreamState) + sizeof(ToyState);
    return {size, 1, 1, 8, 64, init, draw<float>, draw<double>, draw_integers};
}

std::int32_t toy_id() {
    static const std::int32_t id = [] {
        const BrngProperties properties = toy_properties();
        return __huxRegisterBrng(&properties);
    }();
    return id;
}

std::int32_t long_seed_id() {
    static const std::int32_t id = [] {
        BrngProperties properties = toy_properties();
        properties.seed_words = 4;
        properties.word_size = 16;
        return __huxRegisterBrng(&properties);
    }();
    return id;
}

void *new_data(std::int32_t size, int byte) {
    void *const data = qorl_serv_allocate(static_cast<std::size_t>(size), stream_alignment);
    if (data != nullptr) std::memset(data, byte, static_cast<std::size_t>(size));
    return data;
}

}  // namespace qorl::test
