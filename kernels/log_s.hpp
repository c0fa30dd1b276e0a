// What the single-precision logarithms share: the split of the argument, the natural logarithm in two words, and the
// scalar function.
//
// Method   x = 2^e m, m from just above 2/3 to just above 4/3, u = m - 1 exact; ln x = e ln2 + ln(1 + u), where e = 0
//          for every x next to 1, so that nothing cancels there. The lower end is 10^(1/8)/2 rather than 2/3: base ten
//          results just below 1/8, whose last place is half as large, then come with e = 0.
//          The exponent is used as -e, which leaves zeros of e = 0 that keep the sign of a zero result.
#ifndef QORL_KERNELS_LOG_S_HPP
#define QORL_KERNELS_LOG_S_HPP

#include <bit>
#include <cstdint>

#include "frame/poly.hpp"
#include "frame/vec.hpp"
#include "kernels/log_scalar.hpp"
#include "kernels/tables/log_s.hpp"

namespace qorl {

inline constexpr std::int32_t log_s_mantissa = 0x007FFFFF;

// Positive normal x = 2^e m.
template <int N>
struct LogSplit {
    Pack<std::int32_t, N> minus_field;  // -e in the exponent field
    Pack<float, N> m;

    QORL_INLINE Pack<float, N> minus_e() const { return to_float(minus_field); }  // -e 2^23
};
template <int N>
QORL_INLINE LogSplit<N> log_split(Pack<float, N> x) {
    constexpr std::int32_t low = std::bit_cast<std::int32_t>(tables::log_s_low);
    const auto minus_field = (Pack<std::int32_t, N>(low + log_s_mantissa) - bits(x)) & ~log_s_mantissa;
    return {minus_field, real(bits(x) + minus_field)};
}

// ln x = high + low to about 30 bits, high within two last places of it. s = e ln2 + u - u^2/2 is rounded twice, and
// rest, what it lacks, comes from exact sums and one fused product: the part with roundings of its own is u^3 Q(u).
template <int N>
struct LogWords {
    Pack<float, N> high, low;
};
template <int N>
QORL_INLINE LogWords<N> log_words(Pack<float, N> minus_e, Pack<float, N> u) {
    using P = Pack<float, N>;
    // Q by powers of z = u^2/2 in place of u^2: the coefficients take powers of two
    constexpr auto c = [] {
        auto scaled = tables::log_s_ha_poly;
        for (std::size_t k = 0; k < scaled.size(); ++k) scaled[k] *= static_cast<float>(2 << k / 2);
        return scaled;
    }();
    const P half = P(0.5f) * u, z = half * u, n = minus_e * P(tables::log_s_ln2_hi);
    const P s = (u - z) - n, rest = fnma(half, u, u - (n + s));
    const auto pair = [u](float even, float odd) { return fma(u, P(odd), P(even)); };
    const P q = fma(z * z, fma(z, fma(z, P(c[8]), pair(c[6], c[7])), pair(c[4], c[5])),
                    fma(z, pair(c[2], c[3]), pair(c[0], c[1])));
    return {s, fma(z * u, q, fnma(minus_e, P(tables::log_s_ln2_lo), rest))};
}

// The scalar function: the logarithm of v, which is rounded to single precision once more; returns the status.
inline int log_scalar_by_double(double v, const LogBase &base, float *y) {
    double result;
    const int status = log_scalar(v, base, &result);
    *y = static_cast<float>(result);
    return status;
}

}  // namespace qorl

#endif
