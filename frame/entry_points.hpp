// Registration: gives a kernel the entry points that the kernel table names, unit-stride and strided.
//
// A kernel source ends with one line for each distinct kernel of its functions,
//
//   QORL_UNARY(d, Exp, HA, Exp<Level::HA>);
//
// type, function and level as in entries.inc (the level that names the kernel in its slots). The macros give names to
// instantiations of the drivers and hold nothing else: a template cannot have a name that the assembler can spell.
//
// A strided call with all strides 1 goes through the table to the unit-stride kernel of its own level.
#ifndef QORL_FRAME_ENTRY_POINTS_HPP
#define QORL_FRAME_ENTRY_POINTS_HPP

#include "frame/kernel.hpp"

// Declares the table and the name row of an entry, which the assembler defines.
#define QORL_ENTRY_SYMBOLS(t, Function, level)                                           \
    extern "C" {                                                                         \
    [[gnu::visibility("hidden")]] extern void *const qorl_ttab_##t##Function[3];         \
    [[gnu::visibility("hidden")]] extern const char qorl_name_##t##Function##_##level[]; \
    }
#define QORL_UNIT_KERNEL(t, Function, level, Type) \
    reinterpret_cast<Type>(qorl_ttab_##t##Function[static_cast<int>(qorl::Level::level)])

// (n, a, y)
#define QORL_UNARY(t, Function, level, ...)                                                                      \
    QORL_ENTRY_SYMBOLS(t, Function, level)                                                                       \
    extern "C" void qorl_kernel_##t##Function##_##level(int32_t n, const __VA_ARGS__::Element *a,                \
                                                        __VA_ARGS__::Element *y) {                               \
        using Arrays = qorl::UnitArrays<__VA_ARGS__::Element, 1, 1>;                                             \
        qorl::enter(__VA_ARGS__{}, Arrays{{a}, {y}}, n, qorl_name_##t##Function##_##level);                      \
    }                                                                                                            \
    extern "C" void qorl_kernel_##t##Function##I_##level(int32_t n, const __VA_ARGS__::Element *a, int32_t inca, \
                                                         __VA_ARGS__::Element *y, int32_t incy) {                \
        using Unit = void (*)(int32_t, const __VA_ARGS__::Element *, __VA_ARGS__::Element *);                    \
        using Arrays = qorl::StridedArrays<__VA_ARGS__::Element, 1, 1>;                                          \
        if (inca == 1 && incy == 1) return QORL_UNIT_KERNEL(t, Function, level, Unit)(n, a, y);                  \
        qorl::enter(__VA_ARGS__{}, Arrays{{a}, {inca}, {y}, {incy}}, n, qorl_name_##t##Function##_##level);      \
    }                                                                                                            \
    static_assert(qorl::Kernel<__VA_ARGS__>)

// (n, a, b, y)
#define QORL_BINARY(t, Function, level, ...)                                                                         \
    QORL_ENTRY_SYMBOLS(t, Function, level)                                                                           \
    extern "C" void qorl_kernel_##t##Function##_##level(int32_t n, const __VA_ARGS__::Element *a,                    \
                                                        const __VA_ARGS__::Element *b, __VA_ARGS__::Element *y) {    \
        using Arrays = qorl::UnitArrays<__VA_ARGS__::Element, 2, 1>;                                                 \
        qorl::enter(__VA_ARGS__{}, Arrays{{a, b}, {y}}, n, qorl_name_##t##Function##_##level);                       \
    }                                                                                                                \
    extern "C" void qorl_kernel_##t##Function##I_##level(int32_t n, const __VA_ARGS__::Element *a, int32_t inca,     \
                                                         const __VA_ARGS__::Element *b, int32_t incb,                \
                                                         __VA_ARGS__::Element *y, int32_t incy) {                    \
        using Unit =                                                                                                 \
            void (*)(int32_t, const __VA_ARGS__::Element *, const __VA_ARGS__::Element *, __VA_ARGS__::Element *);   \
        using Arrays = qorl::StridedArrays<__VA_ARGS__::Element, 2, 1>;                                              \
        if (inca == 1 && incb == 1 && incy == 1) return QORL_UNIT_KERNEL(t, Function, level, Unit)(n, a, b, y);      \
        qorl::enter(__VA_ARGS__{}, Arrays{{a, b}, {inca, incb}, {y}, {incy}}, n, qorl_name_##t##Function##_##level); \
    }                                                                                                                \
    static_assert(qorl::Kernel<__VA_ARGS__>)

// (n, a, b, y) with b by value, a data member of the kernel
#define QORL_ARRAY_SCALAR(t, Function, level, ...)                                                                  \
    QORL_ENTRY_SYMBOLS(t, Function, level)                                                                          \
    extern "C" void qorl_kernel_##t##Function##_##level(int32_t n, const __VA_ARGS__::Element *a,                   \
                                                        __VA_ARGS__::Element b, __VA_ARGS__::Element *y) {          \
        using Arrays = qorl::UnitArrays<__VA_ARGS__::Element, 1, 1>;                                                \
        qorl::enter(__VA_ARGS__{{}, b}, Arrays{{a}, {y}}, n, qorl_name_##t##Function##_##level);                    \
    }                                                                                                               \
    extern "C" void qorl_kernel_##t##Function##I_##level(int32_t n, const __VA_ARGS__::Element *a, int32_t inca,    \
                                                         __VA_ARGS__::Element b, __VA_ARGS__::Element *y,           \
                                                         int32_t incy) {                                            \
        using Unit = void (*)(int32_t, const __VA_ARGS__::Element *, __VA_ARGS__::Element, __VA_ARGS__::Element *); \
        using Arrays = qorl::StridedArrays<__VA_ARGS__::Element, 1, 1>;                                             \
        if (inca == 1 && incy == 1) return QORL_UNIT_KERNEL(t, Function, level, Unit)(n, a, b, y);                  \
        qorl::enter(__VA_ARGS__{{}, b}, Arrays{{a}, {inca}, {y}, {incy}}, n, qorl_name_##t##Function##_##level);    \
    }                                                                                                               \
    static_assert(qorl::Kernel<__VA_ARGS__>)

// (n, a, y, z)
#define QORL_TWO_RESULTS(t, Function, level, ...)                                                                     \
    QORL_ENTRY_SYMBOLS(t, Function, level)                                                                            \
    extern "C" void qorl_kernel_##t##Function##_##level(int32_t n, const __VA_ARGS__::Element *a,                     \
                                                        __VA_ARGS__::Element *y, __VA_ARGS__::Element *z) {           \
        using Arrays = qorl::UnitArrays<__VA_ARGS__::Element, 1, 2>;                                                  \
        qorl::enter(__VA_ARGS__{}, Arrays{{a}, {y, z}}, n, qorl_name_##t##Function##_##level);                        \
    }                                                                                                                 \
    extern "C" void qorl_kernel_##t##Function##I_##level(int32_t n, const __VA_ARGS__::Element *a, int32_t inca,      \
                                                         __VA_ARGS__::Element *y, int32_t incy,                       \
                                                         __VA_ARGS__::Element *z, int32_t incz) {                     \
        using Unit = void (*)(int32_t, const __VA_ARGS__::Element *, __VA_ARGS__::Element *, __VA_ARGS__::Element *); \
        using Arrays = qorl::StridedArrays<__VA_ARGS__::Element, 1, 2>;                                               \
        if (inca == 1 && incy == 1 && incz == 1) return QORL_UNIT_KERNEL(t, Function, level, Unit)(n, a, y, z);       \
        qorl::enter(__VA_ARGS__{}, Arrays{{a}, {inca}, {y, z}, {incy, incz}}, n, qorl_name_##t##Function##_##level);  \
    }                                                                                                                 \
    static_assert(qorl::Kernel<__VA_ARGS__>)

// (n, a, b, scalea, shifta, scaleb, shiftb, y), the four scalars data members of the kernel in this order
#define QORL_LINEAR_FRAC(t, Function, level, ...)                                                                   \
    QORL_ENTRY_SYMBOLS(t, Function, level)                                                                          \
    extern "C" void qorl_kernel_##t##Function##_##level(int32_t n, const __VA_ARGS__::Element *a,                   \
                                                        const __VA_ARGS__::Element *b, __VA_ARGS__::Element scalea, \
                                                        __VA_ARGS__::Element shifta, __VA_ARGS__::Element scaleb,   \
                                                        __VA_ARGS__::Element shiftb, __VA_ARGS__::Element *y) {     \
        using Arrays = qorl::UnitArrays<__VA_ARGS__::Element, 2, 1>;                                                \
        qorl::enter(__VA_ARGS__{{}, scalea, shifta, scaleb, shiftb}, Arrays{{a, b}, {y}}, n,                        \
                    qorl_name_##t##Function##_##level);                                                             \
    }                                                                                                               \
    extern "C" void qorl_kernel_##t##Function##I_##level(                                                           \
        int32_t n, const __VA_ARGS__::Element *a, int32_t inca, const __VA_ARGS__::Element *b, int32_t incb,        \
        __VA_ARGS__::Element scalea, __VA_ARGS__::Element shifta, __VA_ARGS__::Element scaleb,                      \
        __VA_ARGS__::Element shiftb, __VA_ARGS__::Element *y, int32_t incy) {                                       \
        using T = __VA_ARGS__::Element;                                                                             \
        using Unit = void (*)(int32_t, const T *, const T *, T, T, T, T, T *);                                      \
        if (inca == 1 && incb == 1 && incy == 1)                                                                    \
            return QORL_UNIT_KERNEL(t, Function, level, Unit)(n, a, b, scalea, shifta, scaleb, shiftb, y);          \
        using Arrays = qorl::StridedArrays<T, 2, 1>;                                                                \
        qorl::enter(__VA_ARGS__{{}, scalea, shifta, scaleb, shiftb}, Arrays{{a, b}, {inca, incb}, {y}, {incy}}, n,  \
                    qorl_name_##t##Function##_##level);                                                             \
    }                                                                                                               \
    static_assert(qorl::Kernel<__VA_ARGS__>)

#endif
