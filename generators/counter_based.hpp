// What the generators that encrypt a counter share: their state, the order of delivery, skip-ahead.
//
// Block number c of four words is E_k(c) with a 128-bit counter c and a key k; the counter of the state names the next
// block to be computed, and `block` keeps the words of the latest one of which `left` are not delivered.
//
// A cipher has
//   using State = CounterState<KeyWords>;
//   static std::int32_t status();                                       whether the processor can compute it;
//   static void block(const State &, std::uint32_t (&words)[4]);        the block at the state's counter;
//   static void blocks(State &, std::ptrdiff_t count, Output<Form> &);  those from there on, moving the counter.
#ifndef QORL_GENERATORS_COUNTER_BASED_HPP
#define QORL_GENERATORS_COUNTER_BASED_HPP

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "generators/output.hpp"
#include "streams/streams.hpp"

namespace qorl {

using Counter = unsigned __int128;

template <int KeyWords>
struct CounterState {
    std::uint32_t key[KeyWords];
    std::uint32_t counter[4];  // word 0 is the least significant
    std::uint32_t left;        // words of the block not delivered, which are its last ones
    std::uint32_t block[4];
    std::uint32_t unset;  // a part of the saved size without a meaning; 0

    Counter position() const {
        Counter value;
        std::memcpy(&value, counter, sizeof value);
        return value;
    }
    void advance(Counter blocks) {
        const Counter value = position() + blocks;
        std::memcpy(counter, &value, sizeof value);
    }
};

// Blocks that can be computed before the low `bits` of the counter overflow: as far as a vector can count by itself.
template <int KeyWords>
std::ptrdiff_t blocks_before_carry(const CounterState<KeyWords> &state, std::ptrdiff_t wanted, int bits) {
    const Counter room = (Counter{1} << bits) - (state.position() & ((Counter{1} << bits) - 1));
    return room < static_cast<Counter>(wanted) ? static_cast<std::ptrdiff_t>(room) : wanted;
}

// The block at the counter becomes the one that words are delivered from.
template <class Cipher>
void next_block(typename Cipher::State &state, std::uint32_t undelivered) {
    Cipher::block(state, state.block);
    state.advance(1);
    state.left = undelivered;
}

// Key and counter from the seed; words that are missing are 0.
template <class Cipher>
void seed_counter(typename Cipher::State &state, std::int32_t n, const void *params) {
    constexpr auto words = static_cast<std::int32_t>(offsetof(typename Cipher::State, left) / sizeof(std::uint32_t));
    state = {};
    if (n > 0) std::memcpy(&state, params, sizeof(std::uint32_t) * static_cast<std::size_t>(std::min(n, words)));
}

// Skips as many words as `count` tells: `words` words of 64 bits, the least significant first, of which those above 192
// bits do not count.
template <class Cipher>
void skip_words(typename Cipher::State &state, std::int32_t words, const void *count) {
    std::uint64_t skip[3] = {};
    if (words > 0) std::memcpy(skip, count, sizeof(std::uint64_t) * static_cast<std::size_t>(std::min(words, 3)));
    state.left = std::min(state.left, 4u);
    if (skip[2] == 0 && skip[1] == 0 && skip[0] <= state.left) {
        state.left -= static_cast<std::uint32_t>(skip[0]);
        return;
    }
    const Counter low = static_cast<Counter>(skip[1]) << 64 | skip[0], rest = low - state.left;
    const std::uint64_t high = skip[2] - (rest > low);
    // rest + 2^128 high words, by blocks of four.
    state.advance(rest >> 2 | static_cast<Counter>(high) << 126);
    next_block<Cipher>(state, 4 - static_cast<std::uint32_t>(rest & 3));
}

// Delivers as many of the words that are left as `count` asks for; gives the rest of the count.
template <class Cipher, class Form>
std::ptrdiff_t deliver_left(typename Cipher::State &state, std::ptrdiff_t count, Output<Form> &out) {
    const std::uint32_t *const from = state.block + 4 - state.left;
    const int k = static_cast<int>(std::min(static_cast<std::ptrdiff_t>(state.left), count));
    std::int32_t words[8] = {};
    std::memcpy(words, from, sizeof(std::int32_t) * static_cast<std::size_t>(k));
    out.first(load<1>(words), k);
    state.left -= static_cast<std::uint32_t>(k);
    return count - k;
}

// The functions of a generator.
template <class Cipher>
std::int32_t init_counter(std::int32_t method, StreamState *stream, std::int32_t n, const void *params) {
    auto &state = state_of<typename Cipher::State>(stream);
    switch (method) {
        case method_initialise:
            seed_counter<Cipher>(state, n, params);
            return HuxStatusOk;
        case method_leapfrog:
            return HuxStatusLeapfrogUnsupported;
        case method_skip_ahead:
        case method_skip_ahead_long:
            if (Cipher::status() != HuxStatusOk) return Cipher::status();
            skip_words<Cipher>(state, method == method_skip_ahead ? 1 : n, params);
            return HuxStatusOk;
        default:
            return HuxStatusBadMethod;
    }
}

template <class Cipher, class Form>
std::int32_t draw(StreamState *stream, std::int32_t n, Output<Form> out) {
    if (Cipher::status() != HuxStatusOk) return Cipher::status();
    if (n <= 0) return HuxStatusOk;
    auto &state = state_of<typename Cipher::State>(stream);
    std::ptrdiff_t count = n;
    state.left = std::min(state.left, 4u);
    if (state.left != 0) count = deliver_left<Cipher>(state, count, out);
    Cipher::blocks(state, count / 4, out);
    if (count % 4 != 0) {
        next_block<Cipher>(state, 4);
        deliver_left<Cipher>(state, count % 4, out);
    }
    return HuxStatusOk;
}

}  // namespace qorl

#endif
