// ARS5: five rounds of AES on a 128-bit counter, with round keys in arithmetic progression.
//
// Method  Round key i is the key plus i times a constant, two additions of 64 bits. The counter is XOR-ed with the
//         key and goes through four rounds and a last one by the processor's instructions. Blocks are independent:
//         eight at a time hide the latency of the rounds. Vectors count in the low 64 bits, so that a run of passes
//         ends where these overflow.
// Source  Salmon, Moraes, Dror and Shaw, "Parallel random numbers: as easy as 1, 2, 3", SC11, 2011.
#include <cstdint>
#include <utility>

#include "frame/aes.hpp"
#include "generators/counter_based.hpp"

namespace qorl {
namespace {

// Golden ratio; sqrt(3) - 1; as fractions of 2^64.
constexpr std::uint64_t weyl_low = 0x9E3779B97F4A7C15, weyl_high = 0xBB67AE8584CAA73B;

constexpr int in_flight = 8;

struct Ars5 {
    using State = CounterState<4>;

    static std::int32_t status() { return __huxCPUisAES() != 0 ? HuxStatusOk : HuxStatusNoAesInstruction; }

    struct Keys {
        Quad round[6];
        explicit Keys(const State &state) {
            round[0] = Quad::load(state.key);
            for (int i = 1; i < 6; ++i) round[i] = round[i - 1] + Quad::of(weyl_low, weyl_high);
        }
    };

    // Blocks k at counter + k.
    template <std::size_t... K>
    QORL_AES QORL_INLINE static void encrypt(Quad counter, const Keys &keys, Quad (&x)[sizeof...(K)],
                                             std::index_sequence<K...>) {
        ((x[K] = (counter + Quad::of(K, 0)) ^ keys.round[0]), ...);
        ((x[K] = aes_round(x[K], keys.round[1])), ...);
        ((x[K] = aes_round(x[K], keys.round[2])), ...);
        ((x[K] = aes_round(x[K], keys.round[3])), ...);
        ((x[K] = aes_round(x[K], keys.round[4])), ...);
        ((x[K] = aes_last_round(x[K], keys.round[5])), ...);
    }

    QORL_AES static void block(const State &state, std::uint32_t (&words)[4]) {
        Quad x[1];
        encrypt(Quad::load(state.counter), Keys(state), x, std::make_index_sequence<1>());
        x[0].store(words);
    }

    template <class Form>
    QORL_AES static void blocks(State &state, std::ptrdiff_t count, Output<Form> &out) {
        const Keys keys(state);
        while (count > 0) {
            std::ptrdiff_t run = blocks_before_carry(state, count, 64);
            count -= run;
            Quad counter = Quad::load(state.counter);
            state.advance(static_cast<Counter>(run));
            for (; run > 0; run -= in_flight, counter = counter + Quad::of(in_flight, 0)) {
                Quad x[in_flight];
                encrypt(counter, keys, x, std::make_index_sequence<in_flight>());
                Pack<std::int32_t, in_flight / 2> words;
                for (int i = 0; i < in_flight / 2; ++i) words.v[i] = join(x[2 * i], x[2 * i + 1]).v[0];
                if (run >= in_flight)
                    out.all(words);
                else
                    out.first(words, static_cast<int>(4 * run));  // blocks behind the end of the run are not used
            }
        }
    }
};

}  // namespace
}  // namespace qorl

using namespace qorl;

int32_t __huxBRngARS5InitStream(int32_t method, StreamState *stream, int32_t n, const void *params) {
    return init_counter<Ars5>(method, stream, n, params);
}

int32_t __huxsBRngARS5(StreamState *stream, int32_t n, float *r, float a, float b) {
    return draw<Ars5>(stream, n, Output(scaled_about_middle(a, b), r));
}

int32_t __huxdBRngARS5(StreamState *stream, int32_t n, double *r, double a, double b) {
    return draw<Ars5>(stream, n, Output(scaled_about_middle(a, b), r));
}

int32_t __huxiBRngARS5(StreamState *stream, int32_t n, void *r) {
    return draw<Ars5>(stream, n, Output(Words(), r));
}
