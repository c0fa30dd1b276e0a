// Highway's math functions, compiled in this file for AVX2 alone.
#define HWY_COMPILE_ONLY_STATIC
#include <hwy/contrib/math/math-inl.h>
#include <hwy/highway.h>

#include "bench/peers.hpp"

static_assert(HWY_STATIC_TARGET == HWY_AVX2, "the flags of this file select Highway's AVX2 code");

namespace qorl::bench {
namespace {

namespace hn = hwy::HWY_NAMESPACE;

template <class T, auto Function>
void loop(void *, const Work &w, int repeats) {
    const hn::FixedTag<T, 32 / sizeof(T)> tag;
    const T *a = static_cast<const T *>(w.a);
    T *y = static_cast<T *>(w.y);
    for (; repeats > 0; --repeats) {
        for (int i = 0; i < w.n; i += static_cast<int>(32 / sizeof(T)))
            hn::StoreU(Function(tag, hn::LoadU(tag, a + i)), tag, y + i);
        asm volatile("" ::: "memory");
    }
}

template <class T>
Run loop_of(std::string_view name) {
    if (name == "acos") return loop<T, [](auto d, auto x) { return hn::Acos(d, x); }>;
    if (name == "acosh") return loop<T, [](auto d, auto x) { return hn::Acosh(d, x); }>;
    if (name == "asin") return loop<T, [](auto d, auto x) { return hn::Asin(d, x); }>;
    if (name == "asinh") return loop<T, [](auto d, auto x) { return hn::Asinh(d, x); }>;
    if (name == "atan") return loop<T, [](auto d, auto x) { return hn::Atan(d, x); }>;
    if (name == "atanh") return loop<T, [](auto d, auto x) { return hn::Atanh(d, x); }>;
    if (name == "cos") return loop<T, [](auto d, auto x) { return hn::Cos(d, x); }>;
    if (name == "exp") return loop<T, [](auto d, auto x) { return hn::Exp(d, x); }>;
    if (name == "expm1") return loop<T, [](auto d, auto x) { return hn::Expm1(d, x); }>;
    if (name == "log") return loop<T, [](auto d, auto x) { return hn::Log(d, x); }>;
    if (name == "log10") return loop<T, [](auto d, auto x) { return hn::Log10(d, x); }>;
    if (name == "log1p") return loop<T, [](auto d, auto x) { return hn::Log1p(d, x); }>;
    if (name == "log2") return loop<T, [](auto d, auto x) { return hn::Log2(d, x); }>;
    if (name == "sin") return loop<T, [](auto d, auto x) { return hn::Sin(d, x); }>;
    if (name == "sinh") return loop<T, [](auto d, auto x) { return hn::Sinh(d, x); }>;
    if (name == "tanh") return loop<T, [](auto d, auto x) { return hn::Tanh(d, x); }>;
    return nullptr;
}

}  // namespace

Run highway_loop(char type, std::string_view c_name) {
    return type == 's' ? loop_of<float>(c_name) : loop_of<double>(c_name);
}

#define QORL_TEXT_OF(x) #x
#define QORL_TEXT(x) QORL_TEXT_OF(x)
const char *highway_version() {
    return QORL_TEXT(HWY_MAJOR) "." QORL_TEXT(HWY_MINOR) "." QORL_TEXT(HWY_PATCH);
}

}  // namespace qorl::bench
