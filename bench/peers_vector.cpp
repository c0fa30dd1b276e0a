// Loops around functions on 256-bit vectors. Compiled for AVX2; reached only after the processor has been checked.
#include <immintrin.h>

#include "bench/peers.hpp"

namespace qorl::bench {
namespace {

struct Double {
    using T = double;
    using V = __m256d;
    struct Pair {
        V x, y;
    };
    static constexpr int width = 4;
    static V load(const void *p, int i) { return _mm256_loadu_pd(static_cast<const T *>(p) + i); }
    static void store(void *p, int i, V v) { _mm256_storeu_pd(static_cast<T *>(p) + i, v); }
    static V all(double x) { return _mm256_set1_pd(x); }
    static V add(V a, V b) { return _mm256_add_pd(a, b); }
    static V sub(V a, V b) { return _mm256_sub_pd(a, b); }
    static V mul(V a, V b) { return _mm256_mul_pd(a, b); }
    static V div(V a, V b) { return _mm256_div_pd(a, b); }
    static V sqrt(V a) { return _mm256_sqrt_pd(a); }
    static V abs(V a) { return _mm256_andnot_pd(all(-0.0), a); }
    template <int Mode>
    static V round(V a) {
        return _mm256_round_pd(a, Mode);
    }
};

struct Single {
    using T = float;
    using V = __m256;
    struct Pair {
        V x, y;
    };
    static constexpr int width = 8;
    static V load(const void *p, int i) { return _mm256_loadu_ps(static_cast<const T *>(p) + i); }
    static void store(void *p, int i, V v) { _mm256_storeu_ps(static_cast<T *>(p) + i, v); }
    static V all(double x) { return _mm256_set1_ps(static_cast<float>(x)); }
    static V add(V a, V b) { return _mm256_add_ps(a, b); }
    static V sub(V a, V b) { return _mm256_sub_ps(a, b); }
    static V mul(V a, V b) { return _mm256_mul_ps(a, b); }
    static V div(V a, V b) { return _mm256_div_ps(a, b); }
    static V sqrt(V a) { return _mm256_sqrt_ps(a); }
    static V abs(V a) { return _mm256_andnot_ps(all(-0.0), a); }
    template <int Mode>
    static V round(V a) {
        return _mm256_round_ps(a, Mode);
    }
};

// Keeps the compiler from computing the same results once for all repeats.
void memory_barrier() {
    asm volatile("" ::: "memory");
}

template <class L>
void unary(void *target, const Work &w, int repeats) {
    const auto call = reinterpret_cast<typename L::V (*)(typename L::V)>(target);
    for (; repeats > 0; --repeats)
        for (int i = 0; i < w.n; i += L::width) L::store(w.y, i, call(L::load(w.a, i)));
}

template <class L>
void binary(void *target, const Work &w, int repeats) {
    const auto call = reinterpret_cast<typename L::V (*)(typename L::V, typename L::V)>(target);
    for (; repeats > 0; --repeats)
        for (int i = 0; i < w.n; i += L::width) L::store(w.y, i, call(L::load(w.a, i), L::load(w.b, i)));
}

template <class L>
void array_scalar(void *target, const Work &w, int repeats) {
    const auto call = reinterpret_cast<typename L::V (*)(typename L::V, typename L::V)>(target);
    for (; repeats > 0; --repeats)
        for (int i = 0; i < w.n; i += L::width) L::store(w.y, i, call(L::load(w.a, i), L::all(w.scalar)));
}

template <class L, bool Swapped>
void sleef_two_results(void *target, const Work &w, int repeats) {
    const auto call = reinterpret_cast<typename L::Pair (*)(typename L::V)>(target);
    for (; repeats > 0; --repeats)
        for (int i = 0; i < w.n; i += L::width) {
            const typename L::Pair pair = call(L::load(w.a, i));
            L::store(w.y, i, Swapped ? pair.y : pair.x);
            L::store(w.z, i, Swapped ? pair.x : pair.y);
        }
}

// libmvec takes vectors of pointers for the results: four in a register, eight in two.
__m256i pointers(void *array, int i, int size) {
    const auto first = reinterpret_cast<long long>(array) + static_cast<long long>(i) * size;
    return _mm256_add_epi64(_mm256_set1_epi64x(first), _mm256_setr_epi64x(0, size, 2 * size, 3 * size));
}

void libmvec_sincos_d(void *target, const Work &w, int repeats) {
    const auto call = reinterpret_cast<void (*)(__m256d, __m256i, __m256i)>(target);
    for (; repeats > 0; --repeats)
        for (int i = 0; i < w.n; i += 4) call(Double::load(w.a, i), pointers(w.y, i, 8), pointers(w.z, i, 8));
}

void libmvec_sincos_s(void *target, const Work &w, int repeats) {
    const auto call = reinterpret_cast<void (*)(__m256, __m256i, __m256i, __m256i, __m256i)>(target);
    for (; repeats > 0; --repeats)
        for (int i = 0; i < w.n; i += 8)
            call(Single::load(w.a, i), pointers(w.y, i, 4), pointers(w.y, i + 4, 4), pointers(w.z, i, 4),
                 pointers(w.z, i + 4, 4));
}

template <class L, auto Function>
void inline_unary(void *, const Work &w, int repeats) {
    for (; repeats > 0; --repeats, memory_barrier())
        for (int i = 0; i < w.n; i += L::width) L::store(w.y, i, Function(L::load(w.a, i)));
}

template <class L, auto Function>
void inline_binary(void *, const Work &w, int repeats) {
    for (; repeats > 0; --repeats, memory_barrier())
        for (int i = 0; i < w.n; i += L::width) L::store(w.y, i, Function(L::load(w.a, i), L::load(w.b, i)));
}

template <class L>
Run vector_run_of(Shape shape) {
    switch (shape) {
        case Shape::unary:
            return unary<L>;
        case Shape::binary:
            return binary<L>;
        case Shape::array_scalar:
            return array_scalar<L>;
        default:
            return nullptr;
    }
}

template <class L>
Run hardware_loop_of(std::string_view function) {
    using V = typename L::V;
    constexpr int quiet = _MM_FROUND_NO_EXC;
    if (function == "Abs") return inline_unary<L, [](V a) { return L::abs(a); }>;
    if (function == "Sqr") return inline_unary<L, [](V a) { return L::mul(a, a); }>;
    if (function == "Inv") return inline_unary<L, [](V a) { return L::div(L::all(1), a); }>;
    if (function == "Sqrt") return inline_unary<L, [](V a) { return L::sqrt(a); }>;
    if (function == "InvSqrt") return inline_unary<L, [](V a) { return L::div(L::all(1), L::sqrt(a)); }>;
    if (function == "Ceil")
        return inline_unary<L, [](V a) { return L::template round<_MM_FROUND_TO_POS_INF | quiet>(a); }>;
    if (function == "Floor")
        return inline_unary<L, [](V a) { return L::template round<_MM_FROUND_TO_NEG_INF | quiet>(a); }>;
    if (function == "Trunc")
        return inline_unary<L, [](V a) { return L::template round<_MM_FROUND_TO_ZERO | quiet>(a); }>;
    if (function == "Rint") return inline_unary<L, [](V a) { return L::template round<_MM_FROUND_CUR_DIRECTION>(a); }>;
    if (function == "NearbyInt")
        return inline_unary<L, [](V a) { return L::template round<_MM_FROUND_CUR_DIRECTION | quiet>(a); }>;
    if (function == "Add") return inline_binary<L, [](V a, V b) { return L::add(a, b); }>;
    if (function == "Sub") return inline_binary<L, [](V a, V b) { return L::sub(a, b); }>;
    if (function == "Mul") return inline_binary<L, [](V a, V b) { return L::mul(a, b); }>;
    if (function == "Div") return inline_binary<L, [](V a, V b) { return L::div(a, b); }>;
    return nullptr;
}

}  // namespace

Run vector_run(char type, Shape shape) {
    return type == 's' ? vector_run_of<Single>(shape) : vector_run_of<Double>(shape);
}

Run sleef_two_results_run(char type, bool integer_part_first) {
    if (integer_part_first) return type == 's' ? sleef_two_results<Single, true> : sleef_two_results<Double, true>;
    return type == 's' ? sleef_two_results<Single, false> : sleef_two_results<Double, false>;
}

Run libmvec_two_results_run(char type) {
    return type == 's' ? libmvec_sincos_s : libmvec_sincos_d;
}

Run hardware_loop(char type, std::string_view function) {
    return type == 's' ? hardware_loop_of<Single>(function) : hardware_loop_of<Double>(function);
}

}  // namespace qorl::bench
