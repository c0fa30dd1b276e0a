#include "bench/kernels.hpp"

#include <cstdint>

namespace qorl::bench {
namespace {

using Int = std::int32_t;

// One caller per shape and form, as the kernel's signature is; the target is called straight through its pointer.
template <class T>
struct Calls {
    static const T *in(const void *array) { return static_cast<const T *>(array); }
    static T *out(void *array) { return static_cast<T *>(array); }

    static void unary(void *kernel, const Work &w, int repeats) {
        const auto call = reinterpret_cast<void (*)(Int, const T *, T *)>(kernel);
        for (int i = 0; i < repeats; ++i) call(w.n, in(w.a), out(w.y));
    }
    static void unary_strided(void *kernel, const Work &w, int repeats) {
        const auto call = reinterpret_cast<void (*)(Int, const T *, Int, T *, Int)>(kernel);
        for (int i = 0; i < repeats; ++i) call(w.n, in(w.a), w.stride, out(w.y), w.stride);
    }
    static void scalar(void *kernel, const Work &w, int repeats) {
        const auto call = reinterpret_cast<void (*)(Int, const T *, T, T *)>(kernel);
        for (int i = 0; i < repeats; ++i) call(w.n, in(w.a), static_cast<T>(w.scalar), out(w.y));
    }
    static void scalar_strided(void *kernel, const Work &w, int repeats) {
        const auto call = reinterpret_cast<void (*)(Int, const T *, Int, T, T *, Int)>(kernel);
        for (int i = 0; i < repeats; ++i) call(w.n, in(w.a), w.stride, static_cast<T>(w.scalar), out(w.y), w.stride);
    }
    static void binary(void *kernel, const Work &w, int repeats) {
        const auto call = reinterpret_cast<void (*)(Int, const T *, const T *, T *)>(kernel);
        for (int i = 0; i < repeats; ++i) call(w.n, in(w.a), in(w.b), out(w.y));
    }
    static void binary_strided(void *kernel, const Work &w, int repeats) {
        const auto call = reinterpret_cast<void (*)(Int, const T *, Int, const T *, Int, T *, Int)>(kernel);
        for (int i = 0; i < repeats; ++i) call(w.n, in(w.a), w.stride, in(w.b), w.stride, out(w.y), w.stride);
    }
    static void two_results(void *kernel, const Work &w, int repeats) {
        const auto call = reinterpret_cast<void (*)(Int, const T *, T *, T *)>(kernel);
        for (int i = 0; i < repeats; ++i) call(w.n, in(w.a), out(w.y), out(w.z));
    }
    static void two_results_strided(void *kernel, const Work &w, int repeats) {
        const auto call = reinterpret_cast<void (*)(Int, const T *, Int, T *, Int, T *, Int)>(kernel);
        for (int i = 0; i < repeats; ++i) call(w.n, in(w.a), w.stride, out(w.y), w.stride, out(w.z), w.stride);
    }
    // (1.5 a + 0.5) / (0.75 b + 2)
    static void linear_frac(void *kernel, const Work &w, int repeats) {
        const auto call = reinterpret_cast<void (*)(Int, const T *, const T *, T, T, T, T, T *)>(kernel);
        for (int i = 0; i < repeats; ++i) call(w.n, in(w.a), in(w.b), T(1.5), T(0.5), T(0.75), T(2), out(w.y));
    }
    static void linear_frac_strided(void *kernel, const Work &w, int repeats) {
        const auto call = reinterpret_cast<void (*)(Int, const T *, Int, const T *, Int, T, T, T, T, T *, Int)>(kernel);
        for (int i = 0; i < repeats; ++i)
            call(w.n, in(w.a), w.stride, in(w.b), w.stride, T(1.5), T(0.5), T(0.75), T(2), out(w.y), w.stride);
    }

    static Run of(Shape shape, Form form) {
        const bool unit = form == Form::unit;
        switch (shape) {
            case Shape::unary:
                return unit ? unary : unary_strided;
            case Shape::unary_param:
            case Shape::array_scalar:
                return unit ? scalar : scalar_strided;
            case Shape::binary:
                return unit ? binary : binary_strided;
            case Shape::two_results:
                return unit ? two_results : two_results_strided;
            case Shape::linear_frac:
                return unit ? linear_frac : linear_frac_strided;
            default:
                return nullptr;
        }
    }
};

}  // namespace

Run kernel_run(const Entry &entry) {
    if (entry.type == 's') return Calls<float>::of(entry.shape, entry.form);
    if (entry.type == 'd') return Calls<double>::of(entry.shape, entry.form);
    return nullptr;
}

}  // namespace qorl::bench
