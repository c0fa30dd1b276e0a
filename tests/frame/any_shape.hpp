// Kernels of every real argument shape called alike, and the kernels that stand, as linked into a test.
#ifndef QORL_TESTS_FRAME_ANY_SHAPE_HPP
#define QORL_TESTS_FRAME_ANY_SHAPE_HPP

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <type_traits>

#include "frame/entries.hpp"

extern "C" [[gnu::visibility("hidden")]] const char qorl_kernel_table[];

namespace qorl::test {

inline constexpr Level levels[] = {Level::LA, Level::HA, Level::EP};
inline constexpr const char *level_names[] = {"LA", "HA", "EP"};

// What a call of any shape may take; a shape leaves the members that it has not unread.
template <class T>
struct Arguments {
    const T *in[2];
    T *out[2];
    std::int32_t in_stride[2] = {1, 1}, out_stride[2] = {1, 1};
    T scalar[4] = {1.5F, 0.25F, 1, 3};
};

constexpr bool is_covered(Shape shape) {  // by call() below
    return shape == Shape::unary || shape == Shape::binary || shape == Shape::array_scalar ||
           shape == Shape::two_results || shape == Shape::linear_frac;
}
constexpr int inputs(Shape shape) {
    return shape == Shape::binary || shape == Shape::linear_frac ? 2 : 1;
}
constexpr int outputs(Shape shape) {
    return shape == Shape::two_results ? 2 : 1;
}

template <class T>
void call(Shape shape, Form form, void *kernel, std::int32_t n, const Arguments<T> &x) {
    const auto &[in, out, in_stride, out_stride, c] = x;
    const auto invoke = [kernel](auto... a) { reinterpret_cast<void (*)(decltype(a)...)>(kernel)(a...); };
    const bool unit = form == Form::unit;
    const std::int32_t a = in_stride[0], b = in_stride[1], y = out_stride[0], z = out_stride[1];
    switch (shape) {
        case Shape::unary:
            return unit ? invoke(n, in[0], out[0]) : invoke(n, in[0], a, out[0], y);
        case Shape::binary:
            return unit ? invoke(n, in[0], in[1], out[0]) : invoke(n, in[0], a, in[1], b, out[0], y);
        case Shape::array_scalar:
            return unit ? invoke(n, in[0], c[0], out[0]) : invoke(n, in[0], a, c[0], out[0], y);
        case Shape::two_results:
            return unit ? invoke(n, in[0], out[0], out[1]) : invoke(n, in[0], a, out[0], y, out[1], z);
        case Shape::linear_frac:
            return unit ? invoke(n, in[0], in[1], c[0], c[1], c[2], c[3], out[0])
                        : invoke(n, in[0], a, in[1], b, c[0], c[1], c[2], c[3], out[0], y);
        default:
            __builtin_trap();
    }
}

inline void *kernel_of(const Entry &entry, Level level) {
    void *kernel;
    std::memcpy(&kernel, qorl_kernel_table + 48 * entry.index + 8 * static_cast<int>(level), sizeof kernel);
    return kernel;
}

template <class T>
void call(const Entry &entry, Level level, std::int32_t n, const Arguments<T> &x) {
    call(entry.shape, entry.form, kernel_of(entry, level), n, x);
}

template <class T>
inline constexpr char letter = sizeof(T) == sizeof(float) ? 's' : 'd';

// Calls f with a zero of the function's element type.
template <class F>
void for_type(const Function &function, F &&f) {
    function.type == 's' ? f(float{}) : f(double{});
}

template <class T>
using BitsOf = std::conditional_t<sizeof(T) == sizeof(float), std::uint32_t, std::uint64_t>;
template <class T>
BitsOf<T> bits(T x) {
    return std::bit_cast<BitsOf<T>>(x);
}
template <class T>
T from_bits(BitsOf<T> x) {
    return std::bit_cast<T>(x);
}

inline std::string name_of(const Function &function) {
    return function.type + std::string(function.name);
}

}  // namespace qorl::test

#endif
