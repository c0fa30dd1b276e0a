// What the generators of the Mersenne family share: recurrences over GF(2) on blocks of words that are kept as computed
// and changed into the output as they are delivered.
//
// Source   Matsumoto and Nishimura, "Mersenne Twister", ACM TOMACS 8(1), 1998, with the array seeding of 2002.
#ifndef QORL_GENERATORS_MERSENNE_TWISTER_HPP
#define QORL_GENERATORS_MERSENNE_TWISTER_HPP

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "frame/quads.hpp"
#include "generators/output.hpp"
#include "streams/streams.hpp"

namespace qorl {

// The key that a seed stands for: the word 1 where there is none.
struct Key {
    static constexpr std::uint32_t one = 1;
    const std::uint32_t *words;
    std::uint32_t size;

    Key(std::int32_t n, const void *params)
        : words(n > 0 ? static_cast<const std::uint32_t *>(params) : &one),
          size(n > 0 ? static_cast<std::uint32_t>(n) : 1) {}
};

// The array seeding of the generators with tempering.
template <std::uint32_t N>
void seed_by_array(std::uint32_t (&mt)[N], const Key &key) {
    const auto mixed = [&mt](std::uint32_t i) { return mt[i - 1] ^ (mt[i - 1] >> 30); };
    std::uint32_t i = 1;
    const auto advance = [&] {
        if (++i < N) return;
        mt[0] = mt[N - 1];
        i = 1;
    };
    mt[0] = 19650218;
    for (; i < N; ++i) mt[i] = 1812433253 * mixed(i) + i;
    i = 1;
    for (std::uint32_t j = 0, left = std::max(N, key.size); left > 0; --left) {
        mt[i] = (mt[i] ^ (mixed(i) * 1664525)) + key.words[j] + j;
        advance();
        if (++j == key.size) j = 0;
    }
    for (std::uint32_t left = N - 1; left > 0; --left) {
        mt[i] = (mt[i] ^ (mixed(i) * 1566083941)) - i;
        advance();
    }
    mt[0] = 0x80000000;
}

// x(k + N) from x(k), x(k + 1) and x(k + M): the bits of `upper` of the first, the lower ones of the second.
template <int N>
QORL_INLINE Pack<std::int32_t, N> twist(Pack<std::int32_t, N> word, Pack<std::int32_t, N> next,
                                        Pack<std::int32_t, N> far, std::int32_t upper, std::int32_t matrix) {
    using Words = Pack<std::int32_t, N>;
    const Words y = (word & Words(upper)) | (next & Words(~upper));
    const Mask<float, N> odd = {real(shift_left(next, 31))};
    return far ^ shift_right(y, 1) ^ bits(select(odd, real(Words(matrix)), 0.0f));
}

// The first shift differs between the generators, the masks too.
template <int First, int N>
QORL_INLINE Pack<std::int32_t, N> temper(Pack<std::int32_t, N> y, std::int32_t b, std::int32_t c) {
    using Words = Pack<std::int32_t, N>;
    y = y ^ shift_right(y, First);
    y = y ^ (shift_left(y, 7) & Words(b));
    y = y ^ (shift_left(y, 15) & Words(c));
    return y ^ shift_right(y, 18);
}

// Words of a block go out; `output` tempers them.
template <class OutputWords, class Form>
QORL_INLINE void deliver(const std::int32_t *words, std::ptrdiff_t count, const OutputWords &output,
                         Output<Form> &out) {
    for (; count >= 16; words += 16, count -= 16) out.all(output(load<2>(words)));
    if (count >= 8) out.all(output(load<1>(words))), words += 8, count -= 8;
    if (count > 0) out.first(output(load_first(words, FirstLanes<std::int32_t>(count))), static_cast<int>(count));
}

// Draws `left` > 0 words from a block of Recurrence::size words on, of which those from `pos` are not delivered; gives
// the position behind the last one. Words go out as they are computed; those of the pass in which the request ends
// follow from memory.
//
// A Recurrence has
//   static constexpr std::uint32_t size;
//   static Pack output(Pack words);
//   static void regenerate(std::int32_t *words, use);   the next block, in place; use(k, pack) with words k, k + 1, ...
template <class Recurrence, class Form>
QORL_INLINE std::uint32_t draw_blocks(std::uint32_t *block, std::uint32_t pos, std::ptrdiff_t left, Output<Form> out) {
    constexpr std::ptrdiff_t size = Recurrence::size;
    auto *const words = reinterpret_cast<std::int32_t *>(block);
    const auto output = [](auto pack) __attribute__((always_inline)) {
        return Recurrence::output(pack);
    };
    std::ptrdiff_t at = pos;
    for (;;) {
        const std::ptrdiff_t taken = std::min(left, size - at);
        deliver(words + at, taken, output, out);
        at += taken;
        left -= taken;
        if (left == 0) return static_cast<std::uint32_t>(at);
        at = 0;
        Recurrence::regenerate(
            words, [&](int k, auto pack) __attribute__((always_inline)) {
                if (k + pack.lanes > left) return;
                out.all(output(pack));
                at = k + pack.lanes;
            });
        left -= at;
    }
}

// Skips `left` > 0 words by computing them.
template <class Recurrence>
std::uint32_t skip_blocks(std::uint32_t *block, std::uint32_t pos, std::uint64_t left) {
    for (;;) {
        const std::uint64_t taken = std::min<std::uint64_t>(left, Recurrence::size - pos);
        pos += static_cast<std::uint32_t>(taken);
        left -= taken;
        if (left == 0) return pos;
        Recurrence::regenerate(reinterpret_cast<std::int32_t *>(block), [](int, auto) {});
        pos = 0;
    }
}

// Jumps see a block as a ring that begins at `pos`. These are the functions that they need and that do not depend on
// the recurrence, for a State with a size, a ring() of as many words and a pos.
template <class State>
struct Ring {
    static void clear(StreamState *temp) {
        auto &state = state_of<State>(temp);
        std::fill_n(state.ring(), State::size, 0u);
        state.pos = 0;
    }

    static void copy(StreamState *temp, const StreamState *stream, std::int32_t) {
        state_of<State>(temp) = state_of<State>(stream);
    }

    static void add(StreamState *temp, const StreamState *other, std::int32_t) {
        auto &to = state_of<State>(temp);
        const auto &from = state_of<State>(other);
        constexpr std::uint32_t size = State::size;
        std::uint32_t i = to.pos % size, j = from.pos % size;
        for (std::uint32_t left = size, run; left > 0; left -= run) {
            run = std::min({left, size - i, size - j});
            for (std::uint32_t k = 0; k < run; ++k) to.ring()[i + k] ^= from.ring()[j + k];
            i = (i + run) % size;
            j = (j + run) % size;
        }
    }

    // The ring becomes a block that is used up.
    static void finish(StreamState *stream, const StreamState *temp) {
        const auto &from = state_of<State>(temp);
        auto &to = state_of<State>(stream);
        const auto *const begin = from.ring();
        std::rotate_copy(begin, begin + from.pos % State::size, begin + State::size, to.ring());
        to.pos = State::size;
    }
};

}  // namespace qorl

#endif
