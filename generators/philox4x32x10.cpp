// PHILOX4X32X10: ten Philox rounds of a 128-bit counter under a 64-bit key.
//
// Method  A round takes the words (c0, c1, c2, c3) to (hi(M1 c2) ^ c1 ^ k0, lo(M1 c2), hi(M0 c0) ^ c3 ^ k1, lo(M0 c0)),
//         products of 64 bits; the key moves on by (w0, w1) between rounds.
//         In vectors, a lane of 64 bits holds the pair c0 below c1 of one counter, another the pair c2 below c3. With
//         p = M1 c2, the new first pair is swap(p ^ c1 2^32 ^ k0 2^32): swap exchanges the halves of a lane, c1 2^32 is
//         the old pair without its low half. The second pair is alike. Two rounds are taken together, since the first
//         pair's low half before the swap becomes the c1 to which the next round adds its key: one constant with both
//         keys serves both rounds.
//         All counters of a pass have the same upper three words, so that the first round of the first pair is one
//         constant for all of them, and the second round of the second pair adds a constant. A run of passes
//         therefore ends where word 0 overflows.
// Source  Salmon, Moraes, Dror and Shaw, "Parallel random numbers: as easy as 1, 2, 3", SC11, 2011.
#include <cstdint>
#include <iterator>

#include "generators/counter_based.hpp"

namespace qorl {
namespace {

constexpr std::uint64_t multiplier_0 = 0xD2511F53, multiplier_1 = 0xCD9E8D57;
constexpr std::uint32_t weyl_0 = 0x9E3779B9, weyl_1 = 0xBB67AE85;  // golden ratio; sqrt(3) - 1
constexpr int rounds = 10;

constexpr std::uint64_t high_half = 0xFFFFFFFF00000000;

// Sixteen counters in flight: with fewer, the processor waits for products.
constexpr int registers = 4;
using Pairs = Pack<std::int64_t, registers>;

constexpr std::uint64_t swapped(std::uint64_t x) {
    return x << 32 | x >> 32;
}

QORL_INLINE Pairs lanes_of(std::uint64_t x) {
    return static_cast<std::int64_t>(x);
}

struct Philox4x32x10 {
    using State = CounterState<2>;

    static std::int32_t status() { return HuxStatusOk; }

    // One block by the definition.
    static void block(const State &state, std::uint32_t (&words)[4]) {
        const std::uint32_t *const c = state.counter;
        std::uint32_t c0 = c[0], c1 = c[1], c2 = c[2], c3 = c[3], k0 = state.key[0], k1 = state.key[1];
        for (int round = 0; round < rounds; ++round, k0 += weyl_0, k1 += weyl_1) {
            const std::uint64_t first = multiplier_0 * c0, second = multiplier_1 * c2;
            c0 = static_cast<std::uint32_t>(second >> 32) ^ c1 ^ k0;
            c2 = static_cast<std::uint32_t>(first >> 32) ^ c3 ^ k1;
            c1 = static_cast<std::uint32_t>(second);
            c3 = static_cast<std::uint32_t>(first);
        }
        words[0] = c0, words[1] = c1, words[2] = c2, words[3] = c3;
    }

    // What is the same for all counters of a run.
    struct Constants {
        std::uint64_t second_1;    // round 1, second pair: c3 and its keys for rounds 1 and 2
        std::uint64_t first_2;     // round 2, first pair: its c1
        std::uint64_t second_2;    // round 2, second pair: the product
        std::uint64_t keys[4][2];  // of rounds 3 and 4, 5 and 6, ...: for the two pairs

        explicit Constants(const State &state) {
            const auto keys_of = [](std::uint32_t key, std::uint32_t weyl, int round) {  // this round's above the next
                const std::uint32_t now = key + static_cast<std::uint32_t>(round) * weyl;
                return static_cast<std::uint64_t>(now) << 32 | (now + weyl);
            };
            const std::uint32_t k0 = state.key[0], k1 = state.key[1];
            const std::uint64_t c1 = state.counter[1], c2 = state.counter[2], c3 = state.counter[3];
            const std::uint64_t first = swapped(multiplier_1 * c2 ^ c1 << 32 ^ keys_of(k0, weyl_0, 0));
            second_1 = c3 << 32 ^ keys_of(k1, weyl_1, 0);
            first_2 = first & high_half;
            second_2 = multiplier_0 * (first & ~high_half);
            for (int two = 0; two < 4; ++two) {
                keys[two][0] = keys_of(k0, weyl_0, 2 + 2 * two);
                keys[two][1] = keys_of(k1, weyl_1, 2 + 2 * two);
            }
        }
    };

    // A pair after a round: from the product of the other pair's first word, the pair before, and keys.
    QORL_INLINE static Pairs mixed(Pairs product, Pairs before) {
        return swap_halves(product ^ (before & lanes_of(high_half)));
    }
    QORL_INLINE static Pairs mixed(Pairs product, Pairs before, std::uint64_t keys) {
        return mixed(product ^ lanes_of(keys), before);
    }

    // The blocks at the counters whose word 0 stands in the low halves of the lanes.
    QORL_INLINE static Pack<std::int32_t, 2 * registers> blocks_at(Pairs counters, const Constants &constants) {
        const Pairs m0 = lanes_of(multiplier_0), m1 = lanes_of(multiplier_1);
        Pairs second = swap_halves(mul_low_halves(counters, m0) ^ lanes_of(constants.second_1));
        Pairs first = swap_halves(mul_low_halves(second, m1) ^ lanes_of(constants.first_2));
        second = mixed(lanes_of(constants.second_2), second);
        for (int two = 0; two < 4; ++two) {
            const auto &[first_keys, second_keys] = constants.keys[two];
            const Pairs odd_first = mixed(mul_low_halves(second, m1), first, first_keys);
            const Pairs odd_second = mixed(mul_low_halves(first, m0), second, second_keys);
            first = mixed(mul_low_halves(odd_second, m1), odd_first);
            second = mixed(mul_low_halves(odd_first, m0), odd_second);
        }
        return pair_lanes(first, second);
    }

    template <class Form>
    static void blocks(State &state, std::ptrdiff_t count, Output<Form> &out) {
        static constexpr std::int64_t order[] = {0, 2, 1, 3, 4, 6, 5, 7, 8, 10, 9, 11, 12, 14, 13, 15};
        static_assert(std::size(order) == Pairs::lanes);  // as pair_lanes delivers
        const auto numbers = load<registers>(order);
        while (count > 0) {
            std::ptrdiff_t run = blocks_before_carry(state, count, 32);
            count -= run;
            const Constants constants(state);
            Pairs counters = Pairs(static_cast<std::int64_t>(state.counter[0])) + numbers;
            state.advance(static_cast<Counter>(run));
            for (; run >= Pairs::lanes; run -= Pairs::lanes, counters = counters + Pairs(Pairs::lanes))
                out.all(blocks_at(counters, constants));
            // Lanes behind the end of the run are not used.
            if (run > 0) out.first(blocks_at(counters, constants), static_cast<int>(4 * run));
        }
    }
};

}  // namespace
}  // namespace qorl

using namespace qorl;

int32_t __huxBRngPHILOX4X32X10InitStream(int32_t method, StreamState *stream, int32_t n, const void *params) {
    return init_counter<Philox4x32x10>(method, stream, n, params);
}

int32_t __huxsBRngPHILOX4X32X10(StreamState *stream, int32_t n, float *r, float a, float b) {
    return draw<Philox4x32x10>(stream, n, Output(scaled_about_middle(a, b), r));
}

int32_t __huxdBRngPHILOX4X32X10(StreamState *stream, int32_t n, double *r, double a, double b) {
    return draw<Philox4x32x10>(stream, n, Output(scaled_about_middle(a, b), r));
}

int32_t __huxiBRngPHILOX4X32X10(StreamState *stream, int32_t n, void *r) {
    return draw<Philox4x32x10>(stream, n, Output(Words(), r));
}
