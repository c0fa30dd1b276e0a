// R250: w(n) = w(n - 250) ^ w(n - 147) on words of 32 bits.
//
// Method  The ring holds the last 250 words, the oldest at i; the word at j, 103 places on, is w(n - 147). Up to where
//         i or j comes round, the words of a pass of 16 do not depend on each other, since i and j are further apart
//         than that.
// Source  Kirkpatrick and Stoll, "A very fast shift-register sequence random number generator", J. Comput. Phys. 40,
//         1981, with the shifted bits of the start that make the words linearly independent.
#include <algorithm>
#include <cstdint>
#include <cstring>

#include "generators/output.hpp"
#include "streams/streams.hpp"

namespace qorl {
namespace {

constexpr std::uint32_t length = 250, lag = 103;

struct R250State {
    std::uint32_t ring[length];
    std::uint32_t i, j;  // the word to be replaced, and the one it is XOR-ed with
};

void seed(R250State &state, std::int32_t n, const void *params) {
    state.i = 0;
    state.j = lag;
    if (n >= static_cast<std::int32_t>(length)) {
        std::memcpy(state.ring, params, sizeof state.ring);
        return;
    }
    std::uint32_t word = 1;
    if (n > 0) std::memcpy(&word, params, sizeof word);
    if (word == 0) word = 1;
    for (std::uint32_t &place : state.ring) place = word *= 69069;
    for (std::uint32_t k = 0; k < 32; ++k) {  // bit 31 - k is the highest of its word
        std::uint32_t &place = state.ring[3 + 7 * k];
        const std::uint32_t bit = 0x80000000 >> k;
        place = (place & (bit - 1)) | bit;
    }
}

// Steps for words in a row at `to`, into which those at `from` are XOR-ed.
template <int N, class Form>
QORL_INLINE void step(std::int32_t *to, const std::int32_t *from, Output<Form> &out) {
    const auto words = load<N>(to) ^ load<N>(from);
    store(to, words);
    out.all(words);
}
template <class Form>
QORL_INLINE void step_first(std::int32_t *to, const std::int32_t *from, int k, Output<Form> &out) {
    const FirstLanes<std::int32_t> first(k);
    const auto words = load_first(to, first) ^ load_first(from, first);
    store_first(to, first, words);
    out.first(words, k);
}

template <class Form>
std::int32_t draw(StreamState *stream, std::int32_t n, Output<Form> out) {
    auto &state = state_of<R250State>(stream);
    auto *const ring = reinterpret_cast<std::int32_t *>(state.ring);
    std::uint32_t i = state.i % length, j = state.j % length;
    while (n > 0) {
        const std::uint32_t row = std::min({static_cast<std::uint32_t>(n), length - i, length - j});
        std::int32_t *to = ring + i;
        const std::int32_t *from = ring + j;
        // Only a state from outside has its places that close; then each word may depend on the one before.
        const std::uint32_t apart = j < i ? i - j : length;
        std::uint32_t left = row;
        if (apart < 16)
            for (; left > 0; --left) step_first(to++, from++, 1, out);
        for (; left >= 16; left -= 16, to += 16, from += 16) step<2>(to, from, out);
        if (left >= 8) step<1>(to, from, out), left -= 8, to += 8, from += 8;
        if (left > 0) step_first(to, from, static_cast<int>(left), out);
        i = (i + row) % length;
        j = (j + row) % length;
        n -= static_cast<std::int32_t>(row);
    }
    state.i = i;
    state.j = j;
    return HuxStatusOk;
}

// u is the word * 2^-32, computed in double for both types.
template <class T>
auto form_of(T a, T b) {
    return scaled_from<double, T>(a, b, 0x1p-32);
}

}  // namespace
}  // namespace qorl

using namespace qorl;

int32_t __huxBRngR250InitStream(int32_t method, StreamState *stream, int32_t n, const void *params) {
    switch (method) {
        case method_initialise:
            seed(state_of<R250State>(stream), n, params);
            return HuxStatusOk;
        case method_leapfrog:
            return HuxStatusLeapfrogUnsupported;
        case method_skip_ahead:
            return HuxStatusSkipAheadUnsupported;
        case method_skip_ahead_long:
            return HuxStatusSkipAheadExUnsupported;
        default:
            return HuxStatusBadMethod;
    }
}

int32_t __huxsBRngR250(StreamState *stream, int32_t n, float *r, float a, float b) {
    return draw(stream, n, Output(form_of(a, b), r));
}

int32_t __huxdBRngR250(StreamState *stream, int32_t n, double *r, double a, double b) {
    return draw(stream, n, Output(form_of(a, b), r));
}

int32_t __huxiBRngR250(StreamState *stream, int32_t n, void *r) {
    return draw(stream, n, Output(Words(), r));
}
