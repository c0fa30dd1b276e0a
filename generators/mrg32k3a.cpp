// MRG32K3A: the difference of two recurrences of third order,
//
//     x(n) = 1403580 x(n-2) - 810728 x(n-3)  modulo m1 = 2^32 - 209,
//     y(n) = 527612 y(n-1) - 1370589 y(n-3)  modulo m2 = 2^32 - 22853,   z = x - y, plus m1 where x <= y.
//
// Method  Every fourth number of a recurrence obeys another one of third order, so that registers V(t) of four
//         neighbours follow from each other lane by lane:
//             V(t+4) = c0 V(t) + c1 V(t-1) + c2 V(t-2),
//         with four registers, 16 numbers, in a pass. The c are taken between -m/2 and m/2; the sum of their magnitudes
//         is below 2^32, so that the sum of the products and the multiple of m that keeps it positive stays below 2^64.
//         With m = 2^32 - d, subtracting m times the upper half h leaves d h + l: from below 2^64 to below
//         2^32 (d + 1), from there to below 2^32 + d (d + 1) < 2 m, and one conditional subtraction of m ends it.
//         The first numbers of a call come by plain steps, as many as six registers hold.
// Source  L'Ecuyer, "Good parameters and implementations for combined multiple recursive random number generators",
//         Operations Research 47(1), 1999. Every fourth number: two steps of Graeffe's root squaring.
#include <algorithm>
#include <cstdint>
#include <cstring>

#include "generators/output.hpp"
#include "streams/matrix.hpp"
#include "streams/streams.hpp"
#include "streams/tables/mrg32k3a_powers.hpp"

namespace qorl {
namespace {

struct Mrg32k3aState {
    std::uint32_t x[3], y[3];  // the newest last
};

// 1 / m1.
constexpr double scale = 0x1.000000d10000bp-32;
static_assert(scale == 1.0 / mrg32k3a_x.m);

// A recurrence with each coefficient as its magnitude and a sign, and a multiple of m that outweighs the negative
// terms.
struct Relation {
    struct Coefficient {
        std::uint32_t magnitude;
        bool negative;
    } c[3];  // the newest first
    std::uint64_t bias;

    consteval Relation(const std::uint32_t (&row)[3], std::uint32_t m) : c{}, bias(0) {
        std::uint64_t sum = 0;
        for (int k = 0; k < 3; ++k) {
            const bool negative = row[k] > m / 2;
            c[k] = {negative ? m - row[k] : row[k], negative};
            sum += c[k].magnitude;
            if (negative) bias += std::uint64_t{c[k].magnitude} * m;
        }
        if (sum >> 32 != 0) __builtin_unreachable();  // ends the compilation: 64 bits would not hold the sum
    }
};

// The coefficients of V(t+4) for those of x.
template <const ThirdOrder &R>
consteval Relation every_fourth() {
    constexpr ModularArithmetic<FixedModulus<R.m>> mod{};
    // The elementary symmetric functions of the roots of t^3 = e1 t^2 - e2 t + e3, then of their fourth powers.
    std::uint32_t e1 = R.row[0], e2 = mod.negative(R.row[1]), e3 = R.row[2];
    for (int squaring = 0; squaring < 2; ++squaring) {
        const std::uint32_t cross = mod.product(e1, e3);
        e1 = mod.sum(mod.product(e1, e1), mod.negative(mod.sum(e2, e2)));
        e2 = mod.sum(mod.product(e2, e2), mod.negative(mod.sum(cross, cross)));
        e3 = mod.product(e3, e3);
    }
    const std::uint32_t next[3] = {e1, mod.negative(e2), e3};  // V(t+1)
    std::uint32_t c[3] = {next[0], next[1], next[2]};
    for (int ahead = 1; ahead < 4; ++ahead) {
        const std::uint32_t first = c[0];
        for (int k = 0; k < 3; ++k) c[k] = mod.sum(mod.product(first, next[k]), k < 2 ? c[k + 1] : 0);
    }
    return {c, R.m};
}

constexpr int pass_registers = 4, kept_registers = pass_registers + 2;
constexpr int pass = 4 * pass_registers, kept = 4 * kept_registers;
using Pass = Pack<std::int64_t, pass_registers>;
using Kept = Pack<std::int64_t, kept_registers>;

QORL_INLINE Pass lanes_of(std::uint64_t x) {
    return static_cast<std::int64_t>(x);
}

template <const ThirdOrder &R>
struct Component {
    static constexpr std::uint64_t m = R.m;
    static constexpr Relation one{R.row, R.m}, fourth = every_fourth<R>();

    static std::uint32_t step(std::uint32_t (&v)[3]) {
        std::uint64_t sum = one.bias;
        for (int k = 0; k < 3; ++k) {
            const std::uint64_t term = std::uint64_t{one.c[k].magnitude} * v[2 - k];
            sum = one.c[k].negative ? sum - term : sum + term;
        }
        v[0] = v[1], v[1] = v[2];
        return v[2] = static_cast<std::uint32_t>(sum % m);
    }

    template <int K>
    QORL_INLINE static Pass plus_term(Pass sum, Kept before) {
        const Pass term = mul_low_halves(registers<2 - K, pass_registers>(before), lanes_of(fourth.c[K].magnitude));
        return fourth.c[K].negative ? sum - term : sum + term;
    }
    // The numbers behind those that are kept.
    QORL_INLINE static Pass following(Kept before) {
        Pass v = plus_term<0>(plus_term<1>(plus_term<2>(lanes_of(fourth.bias), before), before), before);
        v = v - mul_low_halves(shift_right(v, 32), lanes_of(m));
        v = v - mul_low_halves(shift_right(v, 32), lanes_of(m));
        const Pass less = v - lanes_of(m);
        return bits(select(Mask<double, pass_registers>{real(less)}, real(v), real(less)));
    }
};

using X = Component<mrg32k3a_x>;
using Y = Component<mrg32k3a_y>;

constexpr std::int64_t difference(std::uint32_t x, std::uint32_t y) {
    return x > y ? std::int64_t{x} - y : std::int64_t{x} - y + mrg32k3a_x.m;
}
QORL_INLINE Pass difference(Pass x, Pass y) {
    const Pass z = x - y;
    return bits(select(int_greater(z, Pass(0)), real(z), real(z + lanes_of(X::m))));
}

// Draws n > 0 numbers.
template <class Form>
std::int32_t draw(StreamState *stream, std::int32_t n, Output<Form> out) {
    if (n <= 0) return HuxStatusOk;
    auto &state = state_of<Mrg32k3aState>(stream);
    std::int64_t x[kept + pass], y[kept + pass], z[kept];
    const std::int32_t plain = std::min(n, kept);
    store(z, Kept(0));
    for (std::int32_t k = 0; k < plain; ++k) {
        x[k] = X::step(state.x);
        y[k] = Y::step(state.y);
        z[k] = difference(state.x[2], state.y[2]);
    }
    out.first(load<kept_registers>(z), plain);
    n -= plain;
    if (n == 0) return HuxStatusOk;

    Kept last_x = load<kept_registers>(x), last_y = load<kept_registers>(y);
    for (;; n -= pass) {
        const Pass next_x = X::following(last_x), next_y = Y::following(last_y), both = difference(next_x, next_y);
        if (n < pass) {
            out.first(both, n);
            store(x, join(last_x, next_x));
            store(y, join(last_y, next_y));
            break;
        }
        out.all(both);
        last_x = join(registers<pass_registers, 2>(last_x), next_x);
        last_y = join(registers<pass_registers, 2>(last_y), next_y);
    }
    for (int k = 0; k < 3; ++k) {
        state.x[k] = static_cast<std::uint32_t>(x[kept - 3 + n + k]);
        state.y[k] = static_cast<std::uint32_t>(y[kept - 3 + n + k]);
    }
    return HuxStatusOk;
}

void seed(Mrg32k3aState &state, std::int32_t n, const void *params) {
    std::uint32_t words[6] = {1, 1, 1, 1, 1, 1};
    if (n > 0) std::memcpy(words, params, sizeof(std::uint32_t) * static_cast<std::size_t>(std::min(n, 6)));
    const auto take = [](std::uint32_t(&v)[3], const std::uint32_t *from, std::uint32_t m) {
        for (int k = 0; k < 3; ++k) v[k] = from[k] % m;  // 2^32 is below 2 m
        if (v[0] == 0 && v[1] == 0 && v[2] == 0) v[0] = 1;
    };
    take(state.x, words, mrg32k3a_x.m);
    take(state.y, words + 3, mrg32k3a_y.m);
}

std::int32_t skip_long(Mrg32k3aState &state, std::int32_t words, const std::uint64_t *n) {
    constexpr std::int32_t table_words = 3;
    words = std::max(words, 0);
    Mrg32k3aState moved = state;
    if (std::all_of(n + std::min(words, table_words), n + words, [](std::uint64_t word) { return word == 0; })) {
        words = std::min(words, table_words);
        __huxiVect3PowArrayMod_M1(moved.x, words, n, tables::mrg32k3a_m1_powers);
        __huxiVect3PowArrayMod_M2(moved.y, words, n, tables::mrg32k3a_m2_powers);
    } else {
        std::int32_t status = __huxiVect3PowArrayMod(moved.x, mrg32k3a_x.row, mrg32k3a_x.m, words, n);
        if (status == HuxStatusOk) status = __huxiVect3PowArrayMod(moved.y, mrg32k3a_y.row, mrg32k3a_y.m, words, n);
        if (status != HuxStatusOk) return status;
    }
    state = moved;
    return HuxStatusOk;
}

}  // namespace
}  // namespace qorl

using namespace qorl;

int32_t __huxBRngMRG32K3AInitStream(int32_t method, StreamState *stream, int32_t n, const void *params) {
    auto &state = state_of<Mrg32k3aState>(stream);
    switch (method) {
        case method_initialise:
            seed(state, n, params);
            return HuxStatusOk;
        case method_leapfrog:
            return HuxStatusLeapfrogUnsupported;
        case method_skip_ahead: {
            const uint64_t count = *static_cast<const uint64_t *>(params);
            __huxiVect3PowMod(state.x, mrg32k3a_x.row, mrg32k3a_x.m, count);
            __huxiVect3PowMod(state.y, mrg32k3a_y.row, mrg32k3a_y.m, count);
            return HuxStatusOk;
        }
        case method_skip_ahead_long:
            return skip_long(state, n, static_cast<const uint64_t *>(params));
        default:
            return HuxStatusBadMethod;
    }
}

// u is z / m1. The factor is computed in double for both types.
int32_t __huxsBRngMRG32K3A(StreamState *stream, int32_t n, float *r, float a, float b) {
    const double factor = (static_cast<double>(b) - a) * scale;
    return draw(stream, n, Output(Scaled<Below2To52Number, float>{static_cast<float>(factor), a}, r));
}

int32_t __huxdBRngMRG32K3A(StreamState *stream, int32_t n, double *r, double a, double b) {
    return draw(stream, n, Output(scaled_from<double, double, Below2To52Number>(a, b, scale), r));
}

int32_t __huxiBRngMRG32K3A(StreamState *stream, int32_t n, void *r) {
    return draw(stream, n, Output(LowHalves(), r));
}
