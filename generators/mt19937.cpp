// MT19937: x(k + 624) from x(k), x(k + 1) and x(k + 397), with the words tempered as they are delivered.
//
// Method   The block is regenerated in place, eight words a register. Two registers of it hold words from both ends:
//          the one whose far words begin at the third last word of the old block, and the last one, whose neighbour is
//          the first word of the new one.
//          A skip shorter than a jump computes the words; a jump takes 19,937 steps of the recurrence at most.
// Source   Matsumoto and Nishimura, "Mersenne Twister", ACM TOMACS 8(1), 1998.
#include <algorithm>
#include <cstdint>
#include <iterator>

#include "generators/mersenne_twister.hpp"
#include "generators/tables/mt19937_poly.hpp"

namespace qorl {
namespace {

struct Mt19937State {
    static constexpr std::uint32_t size = 624, far = 397;
    std::uint32_t mt[size];
    std::uint32_t pos;    // of the next word to be delivered; 624 when the block is used up
    std::uint32_t unset;  // a part of the saved size without a meaning; 0

    std::uint32_t *ring() { return mt; }
    const std::uint32_t *ring() const { return mt; }
};

struct Mt19937 {
    static constexpr std::uint32_t size = Mt19937State::size;
    static constexpr int far = Mt19937State::far, before = far - static_cast<int>(size);
    static constexpr std::uint32_t upper = 0x80000000, matrix = 0x9908B0DF, b = 0x9D2C5680, c = 0xEFC60000;

    template <int N>
    QORL_INLINE static Pack<std::int32_t, N> output(Pack<std::int32_t, N> words) {
        return temper<11>(words, static_cast<std::int32_t>(b), static_cast<std::int32_t>(c));
    }

    template <class Use>
    QORL_INLINE static void regenerate(std::int32_t *mt, Use use) {
        const auto step = [&]<int N>(int k, Pack<std::int32_t, N> next, Pack<std::int32_t, N> far_words)
            __attribute__((always_inline)) {
            const auto words = twist(load<N>(mt + k), next, far_words, static_cast<std::int32_t>(upper),
                                     static_cast<std::int32_t>(matrix));
            store(mt + k, words);
            use(k, words);
        };
        for (int k = 0; k < 224; k += 16) step(k, load<2>(mt + k + 1), load<2>(mt + k + far));
        step(224, load<1>(mt + 225), lanes_from<5>(load<1>(mt + 616), load<1>(mt)));
        for (int k = 232; k < 616; k += 16) step(k, load<2>(mt + k + 1), load<2>(mt + k + before));
        step(616, lanes_from<1>(load<1>(mt + 616), load<1>(mt)), load<1>(mt + 616 + before));
    }
};

void next(StreamState *temp) {
    constexpr std::uint32_t size = Mt19937State::size;
    auto &[mt, pos, unset] = state_of<Mt19937State>(temp);
    const std::uint32_t k = pos % size, following = k + 1 < size ? k + 1 : 0,
                        far = k < size - Mt19937State::far ? k + Mt19937State::far : k + Mt19937State::far - size;
    const std::uint32_t y = (mt[k] & Mt19937::upper) | (mt[following] & ~Mt19937::upper);
    mt[k] = mt[far] ^ (y >> 1) ^ ((y & 1) != 0 ? Mt19937::matrix : 0);
    pos = following;
}

std::int32_t prepare(StreamState *stream, std::uint64_t *nskip, std::int32_t *extra) {
    auto &state = state_of<Mt19937State>(stream);
    *extra = 0;
    const std::uint32_t there = Mt19937State::size - std::min(state.pos, Mt19937State::size);
    if (*nskip <= there) {
        state.pos = Mt19937State::size - there + static_cast<std::uint32_t>(*nskip);
        return 0;
    }
    *nskip -= there;
    state.pos = Mt19937State::size;
    return 1;
}

void finish(StreamState *stream, const StreamState *temp, std::int32_t) {
    Ring<Mt19937State>::finish(stream, temp);
}

constexpr std::uint64_t longest_direct_skip = 2097151;

std::int32_t skip(StreamState *stream, std::uint64_t count) {
    auto &state = state_of<Mt19937State>(stream);
    if (count > longest_direct_skip)
        return __hux_SkipAheadSWin(stream, Ring<Mt19937State>::clear, Ring<Mt19937State>::add, Ring<Mt19937State>::copy,
                                   next, finish, prepare, count, 624, 19937, sizeof(StreamState) + sizeof(Mt19937State),
                                   std::size(tables::mt19937_poly), tables::mt19937_poly);
    if (count > 0) state.pos = skip_blocks<Mt19937>(state.mt, std::min(state.pos, Mt19937State::size), count);
    return HuxStatusOk;
}

template <class Form>
std::int32_t draw(StreamState *stream, std::int32_t n, Output<Form> out) {
    if (n <= 0) return HuxStatusOk;
    auto &state = state_of<Mt19937State>(stream);
    state.pos = draw_blocks<Mt19937>(state.mt, std::min(state.pos, Mt19937State::size), n, out);
    return HuxStatusOk;
}

}  // namespace
}  // namespace qorl

using namespace qorl;

int32_t __huxBRngMT19937InitStream(int32_t method, StreamState *stream, int32_t n, const void *params) {
    auto &state = state_of<Mt19937State>(stream);
    switch (method) {
        case method_initialise:
            seed_by_array(state.mt, Key(n, params));
            state.pos = Mt19937State::size;
            state.unset = 0;
            return HuxStatusOk;
        case method_leapfrog:
            return HuxStatusLeapfrogUnsupported;
        case method_skip_ahead:
            return skip(stream, *static_cast<const uint64_t *>(params));
        case method_skip_ahead_long:
            return HuxStatusSkipAheadExUnsupported;
        default:
            return HuxStatusBadMethod;
    }
}

int32_t __huxsBRngMT19937(StreamState *stream, int32_t n, float *r, float a, float b) {
    return draw(stream, n, Output(scaled_from<float>(a, b, 0x1p-32f), r));
}

int32_t __huxdBRngMT19937(StreamState *stream, int32_t n, double *r, double a, double b) {
    return draw(stream, n, Output(scaled_from<double>(a, b, 0x1p-32), r));
}

int32_t __huxiBRngMT19937(StreamState *stream, int32_t n, void *r) {
    return draw(stream, n, Output(Words(), r));
}
