#include "tools/reference/points.hpp"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <type_traits>

namespace qorl::reference {
namespace {

template <class T>
using Bits = std::conditional_t<std::is_same_v<T, float>, std::int32_t, std::int64_t>;

// The number that is the given count of representable steps away from x; stops at the largest numbers.
template <class T>
T step(T x, std::int64_t count) {
    constexpr Bits<T> lowest = std::numeric_limits<Bits<T>>::min();
    constexpr Bits<T> largest = std::bit_cast<Bits<T>>(std::numeric_limits<T>::max());
    Bits<T> bits = std::bit_cast<Bits<T>>(x);
    std::int64_t place = bits < 0 ? -static_cast<std::int64_t>(bits - lowest) : bits;  // in the order of the numbers
    place = std::clamp<std::int64_t>(place + count, -std::int64_t{largest}, largest);
    bits = static_cast<Bits<T>>(place < 0 ? lowest - place : place);
    return std::bit_cast<T>(bits);
}

double unit_interval(std::mt19937_64 &random) {
    return static_cast<double>(random() >> 11) * 0x1p-53;
}

double between(Range range, std::mt19937_64 &random) {
    return range.low + (range.high - range.low) * unit_interval(random);
}

// A number with a random mantissa and an exponent drawn uniformly.
template <class T>
double with_exponent(Range exponents, std::mt19937_64 &random) {
    constexpr double lowest = std::numeric_limits<T>::min_exponent - std::numeric_limits<T>::digits;
    const double low = std::max(exponents.low, lowest);
    const double high = std::min<double>(exponents.high, std::numeric_limits<T>::max_exponent - 1);
    return std::ldexp(1 + unit_interval(random), static_cast<int>(std::floor(between({low, high + 1}, random))));
}

double with_sign(double x, std::mt19937_64 &random) {
    return random() & 1 ? -x : x;
}

}  // namespace

template <class T>
Sampler<T>::Sampler(const Entry &entry, std::uint64_t seed)
    : domains_(domains_of(entry)),
      two_arguments_(entry.shape == Shape::binary || entry.shape == Shape::array_scalar ||
                     entry.shape == Shape::unary_param),
      seed_(seed) {}

template <class T>
T Sampler<T>::draw(const Domain &domain, Random &random) const {
    constexpr Range format = {std::numeric_limits<T>::min_exponent - std::numeric_limits<T>::digits,
                              std::numeric_limits<T>::max_exponent - 1};
    const auto inside = [&](double x) { return x >= domain.ends.low && x <= domain.ends.high; };
    for (;;) {
        T x = 0;
        const auto stratum = random() % 16;
        if (stratum < 6 && !domain.uniform.empty()) {
            x = static_cast<T>(between(domain.uniform[random() % domain.uniform.size()], random));
        } else if (stratum < 10) {
            x = static_cast<T>(with_sign(with_exponent<T>(domain.exponents, random), random));
        } else if (stratum < 11) {
            x = static_cast<T>(with_sign(with_exponent<T>(format, random), random));
        } else if (stratum < 13 && domain.spacing != 0) {  // the multiple rounded to T, or a neighbour
            const double k = std::floor(std::exp2(unit_interval(random) * domain.reach));
            x = step(static_cast<T>(with_sign(k * domain.spacing, random)),
                     static_cast<std::int64_t>(random() % 7) - 3);
        } else if (stratum < 14) {  // few mantissa bits: exact cases and near ties live there
            const double k = static_cast<double>(random() % 4096 + 1);
            x = static_cast<T>(with_sign(std::ldexp(k, -static_cast<int>(random() % 20)), random));
        } else {  // around a mark, at every scale of distance
            const double mark = domain.marks[random() % domain.marks.size()];
            x = static_cast<T>(with_sign(mark, random));
            const auto distance =
                static_cast<std::int64_t>(std::exp2(unit_interval(random) * (std::numeric_limits<T>::digits - 2)));
            x = step(x, random() & 1 ? distance : -distance);
        }
        if (std::isfinite(x) && inside(static_cast<double>(x))) return x;
    }
}

template <class T>
T Sampler<T>::partner(T a, Random &random) const {
    const auto choice = random() % 4;
    if (choice == 0 || domains_.pairing == Pairing::independent) return draw(domains_.b, random);
    if (domains_.pairing == Pairing::power) {
        // a^b = 2^result, near the ends of the format and of the denormals as often as anywhere between; b is often an
        // integer or half of one, which exact and nearly exact results come from.
        using L = std::numeric_limits<T>;
        constexpr double high = L::max_exponent, low = L::min_exponent - L::digits;
        constexpr double ends[] = {high, L::min_exponent - 1, low, low - 1};
        const double result =
            choice == 1 ? ends[random() % 4] + between({-2, 2}, random) : between({low - 2, high + 1}, random);
        const double b = result / std::log2(std::fabs(static_cast<double>(a)));
        const auto rounding = random() % 4;
        const T rounded = static_cast<T>(a < 0 || rounding == 0 ? std::nearbyint(b)
                                         : rounding == 1        ? std::nearbyint(2 * b) / 2
                                                                : b);
        return std::isfinite(rounded) ? rounded : draw(domains_.b, random);
    }
    if (choice == 1) return step(a, static_cast<std::int64_t>(random() % 65) - 32);
    const double scale = choice == 2 ? between({-3, 3}, random) : between({-70, 70}, random);
    const T b = static_cast<T>(with_sign(static_cast<double>(a) * std::exp2(scale), random));
    return std::isfinite(b) ? b : draw(domains_.b, random);
}

template <class T>
std::vector<Points<T>> Sampler<T>::clusters() const {
    std::vector<T> a;
    const auto add = [&](T x) {
        const auto value = static_cast<double>(x);
        if (std::isfinite(x) && value >= domains_.a.ends.low && value <= domains_.a.ends.high) a.push_back(x);
    };
    for (const double mark : domains_.a.marks) {
        for (const double sign : {1.0, -1.0}) {
            const T x = static_cast<T>(sign * mark);
            if (x == 0) add(x);  // both zeros; the steps below know one only
            for (std::int64_t k = -8; k <= 8; ++k) add(step(x, k));
            for (int j = 4; j < std::numeric_limits<T>::digits; ++j)
                for (const std::int64_t k : {-1, 1}) add(step(x, k * (std::int64_t{1} << j)));
        }
    }
    std::vector<Points<T>> batches;
    if (!two_arguments_) {
        batches.push_back({a, std::vector<T>(a.size())});
    } else if (domains_.pairing == Pairing::scalar) {
        for (const double b : domains_.b.marks) batches.push_back({a, std::vector<T>(a.size(), static_cast<T>(b))});
    } else {
        Points<T> points;
        for (const double mark : domains_.b.marks) {
            for (const double sign : {1.0, -1.0}) {
                for (const std::int64_t k : {-1, 0, 1}) {
                    for (std::size_t i = 0; i < a.size(); i += 16) {
                        const T b = step(static_cast<T>(sign * mark), k);
                        if (!(b >= domains_.b.ends.low && b <= domains_.b.ends.high)) continue;
                        points.a.push_back(a[i]);
                        points.b.push_back(b);
                    }
                }
            }
        }
        batches.push_back(std::move(points));
    }
    return batches;
}

template <class T>
Points<T> Sampler<T>::batch(std::uint64_t number, std::size_t size) const {
    std::seed_seq sequence{seed_ & 0xFFFFFFFF, seed_ >> 32, number & 0xFFFFFFFF, number >> 32};
    Random random(sequence);
    Points<T> points{std::vector<T>(size), std::vector<T>(size)};
    const bool scalar = domains_.pairing == Pairing::scalar;
    const T common = scalar ? static_cast<T>(domains_.b.marks[random() % domains_.b.marks.size()]) : T{0};
    for (std::size_t i = 0; i < size; ++i) {
        points.a[i] = draw(domains_.a, random);
        if (two_arguments_) points.b[i] = scalar ? common : partner(points.a[i], random);
    }
    return points;
}

template class Sampler<float>;
template class Sampler<double>;

}  // namespace qorl::reference
