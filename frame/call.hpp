// Kernels of every real argument shape called alike, for tests, tools and benchmarks: the one place that knows which
// shape takes which arguments.
#ifndef QORL_FRAME_CALL_HPP
#define QORL_FRAME_CALL_HPP

#include <cstdint>

#include "frame/entries.hpp"

namespace qorl {

// What a call of any shape may take; a shape leaves the members that it has not unread.
template <class T>
struct Arguments {
    const T *in[2];
    T *out[2];
    std::int32_t in_stride[2] = {1, 1}, out_stride[2] = {1, 1};
    T scalar[4] = {1.5F, 0.25F, 1, 3};
};

// A function that calls the kernel at `kernel`.
template <class T>
using KernelCaller = void (*)(void *kernel, std::int32_t n, const Arguments<T> &arguments);

template <Shape shape, Form form, class T>
inline void call_kernel(void *kernel, std::int32_t n, const Arguments<T> &x) {
    const auto &[in, out, in_stride, out_stride, c] = x;
    const auto invoke = [kernel](auto... a) { reinterpret_cast<void (*)(decltype(a)...)>(kernel)(a...); };
    constexpr bool unit = form == Form::unit;
    const std::int32_t a = in_stride[0], b = in_stride[1], y = out_stride[0], z = out_stride[1];
    if constexpr (shape == Shape::unary) {
        unit ? invoke(n, in[0], out[0]) : invoke(n, in[0], a, out[0], y);
    } else if constexpr (shape == Shape::unary_param || shape == Shape::array_scalar) {
        unit ? invoke(n, in[0], c[0], out[0]) : invoke(n, in[0], a, c[0], out[0], y);
    } else if constexpr (shape == Shape::binary) {
        unit ? invoke(n, in[0], in[1], out[0]) : invoke(n, in[0], a, in[1], b, out[0], y);
    } else if constexpr (shape == Shape::two_results) {
        unit ? invoke(n, in[0], out[0], out[1]) : invoke(n, in[0], a, out[0], y, out[1], z);
    } else {
        static_assert(shape == Shape::linear_frac);
        unit ? invoke(n, in[0], in[1], c[0], c[1], c[2], c[3], out[0])
             : invoke(n, in[0], a, in[1], b, c[0], c[1], c[2], c[3], out[0], y);
    }
}

// f.operator()<shape, form>() for a shape of real arrays, or `otherwise`.
template <class F, class R>
R for_real_shape(Shape shape, Form form, R otherwise, F &&f) {
    const auto with = [&]<Shape s>() {
        return form == Form::unit ? f.template operator()<s, Form::unit>() : f.template operator()<s, Form::strided>();
    };
    switch (shape) {
        case Shape::unary:
            return with.template operator()<Shape::unary>();
        case Shape::unary_param:
            return with.template operator()<Shape::unary_param>();
        case Shape::binary:
            return with.template operator()<Shape::binary>();
        case Shape::array_scalar:
            return with.template operator()<Shape::array_scalar>();
        case Shape::two_results:
            return with.template operator()<Shape::two_results>();
        case Shape::linear_frac:
            return with.template operator()<Shape::linear_frac>();
        default:
            return otherwise;
    }
}

// The caller of a shape, or null for shapes of other than real arrays (complex, pack).
template <class T>
KernelCaller<T> kernel_caller(Shape shape, Form form) {
    return for_real_shape(shape, form, KernelCaller<T>{nullptr},
                          []<Shape s, Form f>() -> KernelCaller<T> { return call_kernel<s, f, T>; });
}

constexpr int inputs(Shape shape) {  // arrays
    return shape == Shape::binary || shape == Shape::complex_binary || shape == Shape::linear_frac ? 2 : 1;
}
constexpr int outputs(Shape shape) {
    return shape == Shape::two_results ? 2 : 1;
}

}  // namespace qorl

#endif
