// WH: four multiplicative congruential generators x <- a x modulo m, of which a uniform number is the sum of the x / m
// without its whole part. 273 sets of moduli and multipliers.
//
// Method  In double precision, with p = a x below 2^48 exact: q = trunc(x (a / m)), x <- p - q m. The exact quotient is
//         away from any integer by 1 / m > 2^-24, unless it is one, which it is for x or a zero only; below 2^24, it is
//         computed with an error below 2^24 * 3 * 2^-53 from the rounding of 1 / m, of a / m and of the product. So
//         trunc is right, and the result reduced, for every a and x below m.
//         Eight numbers in a row of each component are in flight, which a^8 moves on. The current x is given out before
//         it is moved.
// Source  Wichmann and Hill, "Generating good pseudo-random numbers", Computational Statistics & Data Analysis 51,
//         2006; MacLaren, "The generation of multiple independent sequences of pseudorandom numbers", Applied
//         Statistics 38, 1989, for the choice of the sets.
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "generators/output.hpp"
#include "generators/tables/wh.hpp"
#include "streams/streams.hpp"

namespace qorl {
namespace {

constexpr int components = 4;

struct WhState {
    std::uint32_t x[components], a[components];
};

// The first number of a set in the tables.
std::int32_t first_of(const StreamState &stream) {
    return components * member_of(stream);
}

// x a modulo m.
template <int N>
QORL_INLINE Pack<double, N> product(Pack<double, N> x, Pack<double, N> a, Pack<double, N> a_over_m, Pack<double, N> m) {
    return fnma(truncate(x * a_over_m), m, x * a);
}

constexpr int row_registers = 2;
using Row = Pack<double, row_registers>;  // numbers in a row of one component

// The components of a stream, each with its next numbers.
struct Rows {
    Row x[components];
    double a[components], a_over_m[components], m[components], inverse[components];  // a moves a row on

    Rows(const WhState &state, std::int32_t first) {
        using Vector = Pack<double, 1>;  // of the components
        double numbers[2][components];
        for (int c = 0; c < components; ++c) {
            const std::uint32_t modulus = tables::wh_moduli[first + c];
            m[c] = modulus;
            numbers[0][c] = state.x[c] % modulus;  // from a file they may not be reduced
            numbers[1][c] = state.a[c] % modulus;
        }
        const Vector moduli = load<1>(m), inverses = load<1>(tables::wh_inverse_moduli + first);
        Vector table[Row::lanes] = {load<1>(numbers[0])}, power = load<1>(numbers[1]);
        for (int there = 1; there < Row::lanes; there *= 2) {
            const Vector over = power * inverses;
            for (int k = 0; k < there; ++k) table[there + k] = product(table[k], power, over, moduli);
            power = product(power, power, over, moduli);
        }
        store(a, power);
        store(a_over_m, power * inverses);
        store(inverse, inverses);
        double by_number[Row::lanes][components];
        for (int k = 0; k < Row::lanes; ++k) store(by_number[k], table[k]);
        for (int c = 0; c < components; ++c) x[c] = collect<row_registers>(&by_number[0][c], components);
    }

    QORL_INLINE void move() {
        for (int c = 0; c < components; ++c) x[c] = product<row_registers>(x[c], a[c], a_over_m[c], m[c]);
    }
    QORL_INLINE Row uniform() const {
        Row u = x[0] * Row(inverse[0]);
        for (int c = 1; c < components; ++c) u = u + x[c] * Row(inverse[c]);
        return u - truncate(u);
    }
};

template <class Form>
std::int32_t draw(StreamState *stream, std::int32_t n, Output<Form> out) {
    if (n <= 0) return HuxStatusOk;
    // An integer of this generator is its four components.
    constexpr bool integers = std::is_same_v<Form, Words<>>;
    constexpr int words = integers ? components : 1;
    auto &state = state_of<WhState>(stream);
    Rows rows(state, first_of(*stream));
    const auto elements = [&rows] {
        if constexpr (integers)
            return interleave_integers(rows.x[0], rows.x[1], rows.x[2], rows.x[3]);
        else
            return rows.uniform();
    };
    for (; n >= Row::lanes; n -= Row::lanes) {
        out.all(elements());
        rows.move();
    }
    out.first(elements(), words * n);
    for (int c = 0; c < components; ++c) {
        double next[Row::lanes];
        store(next, rows.x[c]);
        state.x[c] = static_cast<std::uint32_t>(next[n]);
    }
    return HuxStatusOk;
}

void seed(WhState &state, std::int32_t n, const void *params, std::int32_t first) {
    // A negative count is taken for a large one.
    const std::uint32_t given = std::min<std::uint32_t>(static_cast<std::uint32_t>(n), components);
    std::uint32_t words[components] = {};
    if (given > 0) std::memcpy(words, params, given * sizeof(std::uint32_t));
    for (int c = 0; c < components; ++c) {
        state.x[c] = std::max(words[c] % tables::wh_moduli[first + c], 1u);
        state.a[c] = tables::wh_multipliers[first + c];
    }
}

// x moves on by `steps` of a; a becomes its power.
void jump(WhState &state, std::uint64_t steps, std::uint64_t power, std::int32_t first) {
    for (int c = 0; c < components; ++c) {
        const std::uint32_t m = tables::wh_moduli[first + c];
        const std::uint64_t factor = __huxiPowMod(state.a[c], steps, m);
        state.x[c] = static_cast<std::uint32_t>(state.x[c] * factor % m);
        state.a[c] = __huxiPowMod(state.a[c], power, m);
    }
}

}  // namespace
}  // namespace qorl

using namespace qorl;

int32_t __huxBRngWHInitStream(int32_t method, StreamState *stream, int32_t n, const void *params) {
    auto &state = state_of<WhState>(stream);
    const int32_t first = first_of(*stream);
    switch (method) {
        case method_initialise:
            seed(state, n, params, first);
            return HuxStatusOk;
        case method_leapfrog:
            jump(state, *static_cast<const uint32_t *>(params), static_cast<uint32_t>(n), first);
            return HuxStatusOk;
        case method_skip_ahead:
            jump(state, *static_cast<const uint64_t *>(params), 1, first);
            return HuxStatusOk;
        case method_skip_ahead_long:
            return HuxStatusSkipAheadExUnsupported;
        default:
            return HuxStatusBadMethod;
    }
}

int32_t __huxsBRngWH(StreamState *stream, int32_t n, float *r, float a, float b) {
    const double from = a, to = b;
    return draw(stream, n, Output(Scaled<RealNumber, double, float>{to - from, from}, r));
}

int32_t __huxdBRngWH(StreamState *stream, int32_t n, double *r, double a, double b) {
    return draw(stream, n, Output(Scaled<RealNumber, double>{b - a, a}, r));
}

int32_t __huxiBRngWH(StreamState *stream, int32_t n, void *r) {
    return draw(stream, n, Output(Words(), r));
}
