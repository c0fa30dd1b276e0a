// MCG31M1 and MCG59: x <- a x modulo 2^31 - 1 and modulo 2^59; the current value is given out before each step.
//
// Method  Four lanes of 64 bits hold the next four values x a^k. Multiplied by the powers a^4, a^8, ... they give the
//         values behind them, up to 32 in a pass, and by a^32 the lanes of the next pass. A product modulo 2^31 - 1 is
//         folded twice at bit 31, 2^31 being 1: from below 2^62 to below 2^32 - 4, then to below 2^31; the modulus
//         itself cannot come out, as neither factor is a multiple of that prime. A product modulo 2^59 is added up from
//         the three products of halves that reach below bit 64, since AVX2 multiplies 32 bits.
//         d and s draw from the lanes, which a chunk keeps, and put lane 0 into x. i draws from x and leaves the lanes
//         alone, so that it has a position of its own, from which d and s do not continue. Leapfrog and skip-ahead move
//         x and rebuild the lanes from it.
#include <cstdint>
#include <cstring>
#include <new>

#include "generators/mcg_lanes.hpp"
#include "generators/output.hpp"
#include "streams/streams.hpp"

namespace qorl {
namespace {

template <int N>
using Values = Pack<std::int64_t, N>;

template <McgKind>
struct Mcg;

template <>
struct Mcg<McgKind::mcg31m1> {
    using State = Mcg31m1State;
    using Integers = LowHalves;
    using Number = Below2To52Number;
    static constexpr std::uint64_t default_multiplier = mcg31m1_multiplier, modulus = 0x7FFFFFFF;
    static constexpr double scale = 0x1.00000002p-31;  // 1 / (2^31 - 1)
    static constexpr float scale_s = 0x1p-31f;

    static std::uint64_t power(std::uint64_t a, std::uint64_t n) {
        return __huxiPowMod2P31M1(static_cast<std::uint32_t>(a), n);
    }
    static std::uint64_t seed(std::int32_t n, const std::uint32_t *words) { return n > 0 ? words[0] % modulus : 1; }

    template <int N>
    QORL_INLINE static Values<N> product(Values<N> x, Values<N> y) {
        const auto folded = [](Values<N> p) { return (p & Values<N>(modulus)) + shift_right(p, 31); };
        return folded(folded(mul_low_halves(x, y)));
    }
};

template <>
struct Mcg<McgKind::mcg59> {
    using State = Mcg59State;
    using Integers = Words<std::int64_t>;
    using Number = UnsignedNumber;
    static constexpr std::uint64_t default_multiplier = mcg59_multiplier, modulus = std::uint64_t{1} << 59;
    static constexpr double scale = 0x1p-59;
    static constexpr float scale_s = 0x1p-59f;

    static std::uint64_t power(std::uint64_t a, std::uint64_t n) { return __huxiPowMod2P59(a, n); }
    static std::uint64_t seed(std::int32_t n, const std::uint32_t *words) {
        if (n <= 0) return 1;
        return (words[0] | (n > 1 ? std::uint64_t{words[1]} << 32 : 0)) % modulus;
    }

    template <int N>
    QORL_INLINE static Values<N> product(Values<N> x, Values<N> y) {
        const auto crossed = mul_low_halves(shift_right(x, 32), y) + mul_low_halves(x, shift_right(y, 32));
        return (mul_low_halves(x, y) + shift_left(crossed, 32)) & Values<N>(modulus - 1);
    }
};

// A stream whose multiplier is 0 has that of a new one, as for the lanes.
template <McgKind kind>
std::uint64_t multiplier_of(const typename Mcg<kind>::State &state) {
    return state.a == 0 ? Mcg<kind>::default_multiplier : state.a;
}

// The lanes of a stream; null when it has none that are fit for it.
template <McgKind kind>
McgLanes *lanes_of(const StreamState &stream) {
    StreamChunk *const chunk = find_chunk(stream, mcg_lanes_chunk);
    if (chunk == nullptr || chunk->size != sizeof(McgLanes)) return nullptr;
    auto *const record = static_cast<McgLanes *>(chunk->data);
    return record->kind == kind ? record : nullptr;
}

constexpr int pass_registers = 8;
constexpr int pass = 4 * pass_registers;

// Writes the next n values and moves the lanes behind them.
template <McgKind kind, class Form>
void draw_lanes(McgLanes &record, std::int32_t n, Output<Form> out) {
    using M = Mcg<kind>;
    auto *const kept = reinterpret_cast<std::int64_t *>(record.lanes);
    Values<1> lanes = load<1>(kept), powers[pass_registers];  // power j is a^(4 (j + 1)) in all lanes
    for (int j = 0; j < pass_registers; ++j)
        powers[j] = load<1>(reinterpret_cast<const std::int64_t *>(record.powers[j]));
    const auto values_from = [&powers](Values<1> first) {
        Values<pass_registers> values;
        values.v[0] = first.v[0];
        each_register<pass_registers - 1>([&](int j) { values.v[j + 1] = M::product(first, powers[j]).v[0]; });
        return values;
    };
    for (; n >= pass; n -= pass) {
        out.all(values_from(lanes));
        lanes = M::product(lanes, powers[pass_registers - 1]);
    }
    if (n > 0) {
        // The values of one pass and four more: the lanes behind n of them are four in a row.
        std::int64_t values[pass + 4];
        const auto last = values_from(lanes);
        store(values, last);
        store(values + pass, M::product(lanes, powers[pass_registers - 1]));
        out.first(last, n);
        lanes = load<1>(values + n);
    }
    store(kept, lanes);
}

template <McgKind kind>
std::int32_t add_lanes(StreamState *stream, const typename Mcg<kind>::State &state) {
    Block<McgLanes> data(1);
    if (data.data() == nullptr) return HuxStatusOutOfMemory;
    McgLanes *const record = new (data.data()) McgLanes{};
    rebuild_lanes<kind>(*record, state.x, state.a);
    const std::int32_t status = __huxAddChunk(stream, mcg_lanes_chunk, nullptr, record, sizeof *record);
    if (status == HuxStatusOk) data.release();
    return status;
}

// x <- a^n x, then a <- `multiplier`.
template <McgKind kind>
std::int32_t move(StreamState *stream, std::uint64_t n, std::uint64_t multiplier) {
    auto &state = state_of<typename Mcg<kind>::State>(stream);
    using Word = decltype(state.x);
    McgLanes *const record = lanes_of<kind>(*stream);
    if (record == nullptr) return HuxStatusOutOfMemory;
    state.x = static_cast<Word>(mcg_product<kind>(state.x, Mcg<kind>::power(multiplier_of<kind>(state), n)));
    state.a = static_cast<Word>(multiplier);
    rebuild_lanes<kind>(*record, state.x, state.a);
    return HuxStatusOk;
}

template <McgKind kind>
std::int32_t init(std::int32_t method, StreamState *stream, std::int32_t n, const void *params) {
    using M = Mcg<kind>;
    auto &state = state_of<typename M::State>(stream);
    using Word = decltype(state.x);
    switch (method) {
        case method_initialise:
            state.x = static_cast<Word>(M::seed(n, static_cast<const std::uint32_t *>(params)));
            if (state.x == 0) state.x = 1;
            state.a = static_cast<Word>(M::default_multiplier);
            return add_lanes<kind>(stream, state);
        case method_leapfrog:
            return move<kind>(stream, *static_cast<const std::uint32_t *>(params),
                              M::power(multiplier_of<kind>(state), static_cast<std::uint32_t>(n)));
        case method_skip_ahead:
            return move<kind>(stream, *static_cast<const std::uint64_t *>(params), multiplier_of<kind>(state));
        case method_skip_ahead_long:
            return HuxStatusSkipAheadExUnsupported;
        default:
            return HuxStatusBadMethod;
    }
}

template <McgKind kind, class Form>
std::int32_t draw(StreamState *stream, std::int32_t n, Output<Form> out) {
    if (n <= 0) return HuxStatusOk;
    McgLanes *const record = lanes_of<kind>(*stream);
    if (record == nullptr) return HuxStatusOutOfMemory;
    draw_lanes<kind>(*record, n, out);
    auto &state = state_of<typename Mcg<kind>::State>(stream);
    state.x = static_cast<decltype(state.x)>(record->lanes[0]);
    return HuxStatusOk;
}

template <McgKind kind>
std::int32_t draw_integers(StreamState *stream, std::int32_t n, void *r) {
    if (n <= 0) return HuxStatusOk;
    auto &state = state_of<typename Mcg<kind>::State>(stream);
    using Word = decltype(state.x);
    const std::uint64_t a = multiplier_of<kind>(state);
    state.x = static_cast<Word>(mcg_product<kind>(state.x, 1));  // from a file it may not be reduced
    if (n < pass) {                                              // lanes and powers of their own are not worth while
        for (auto *to = static_cast<Word *>(r); n > 0; --n, state.x = static_cast<Word>(mcg_product<kind>(state.x, a)))
            std::memcpy(to++, &state.x, sizeof state.x);
        return HuxStatusOk;
    }
    McgLanes own;
    rebuild_lanes<kind>(own, state.x, a);
    draw_lanes<kind>(own, n, Output(typename Mcg<kind>::Integers(), r));
    state.x = static_cast<Word>(own.lanes[0]);
    return HuxStatusOk;
}

template <McgKind kind>
std::int32_t draw_singles(StreamState *stream, std::int32_t n, float *r, float a, float b) {
    return draw<kind>(stream, n,
                      Output(scaled_from<float, float, typename Mcg<kind>::Number>(a, b, Mcg<kind>::scale_s), r));
}

template <McgKind kind>
std::int32_t draw_doubles(StreamState *stream, std::int32_t n, double *r, double a, double b) {
    return draw<kind>(stream, n,
                      Output(scaled_from<double, double, typename Mcg<kind>::Number>(a, b, Mcg<kind>::scale), r));
}

}  // namespace
}  // namespace qorl

using namespace qorl;

int32_t __huxBRngMCG31M1InitStream(int32_t method, StreamState *stream, int32_t n, const void *params) {
    return init<McgKind::mcg31m1>(method, stream, n, params);
}

int32_t __huxsBRngMCG31M1(StreamState *stream, int32_t n, float *r, float a, float b) {
    return draw_singles<McgKind::mcg31m1>(stream, n, r, a, b);
}

int32_t __huxdBRngMCG31M1(StreamState *stream, int32_t n, double *r, double a, double b) {
    return draw_doubles<McgKind::mcg31m1>(stream, n, r, a, b);
}

int32_t __huxiBRngMCG31M1(StreamState *stream, int32_t n, void *r) {
    return draw_integers<McgKind::mcg31m1>(stream, n, r);
}

int32_t __huxBRngMCG59InitStream(int32_t method, StreamState *stream, int32_t n, const void *params) {
    return init<McgKind::mcg59>(method, stream, n, params);
}

int32_t __huxsBRngMCG59(StreamState *stream, int32_t n, float *r, float a, float b) {
    return draw_singles<McgKind::mcg59>(stream, n, r, a, b);
}

int32_t __huxdBRngMCG59(StreamState *stream, int32_t n, double *r, double a, double b) {
    return draw_doubles<McgKind::mcg59>(stream, n, r, a, b);
}

int32_t __huxiBRngMCG59(StreamState *stream, int32_t n, void *r) {
    return draw_integers<McgKind::mcg59>(stream, n, r);
}
