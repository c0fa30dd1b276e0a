// Registration: gives a kernel the entry points that the kernel table names, unit-stride and strided.
//
// A kernel source ends with one line for each distinct kernel of its functions,
//
//   QORL_UNARY(d, Exp, HA, qorl::Exp<qorl::Level::HA>);
//
// type, function and level as in entries.inc (the level that names the kernel in its slots). The macros give names to
// instantiations of the drivers and hold nothing else: a template cannot have a name that the assembler can spell.
//
// A strided call with all strides 1 goes through the table to the unit-stride kernel of its own level.
#ifndef QORL_FRAME_ENTRY_POINTS_HPP
#define QORL_FRAME_ENTRY_POINTS_HPP

#include "frame/kernel.hpp"

// One macro a shape: (type, function, level, kernel).
#define QORL_UNARY(t, Function, level, ...) QORL_UNARY_OF(QORL_REAL_##t, t, Function, level, (__VA_ARGS__))
#define QORL_BINARY(t, Function, level, ...) QORL_BINARY_OF(QORL_REAL_##t, t, Function, level, (__VA_ARGS__))
#define QORL_TWO_RESULTS(t, Function, level, ...) QORL_TWO_RESULTS_OF(QORL_REAL_##t, t, Function, level, (__VA_ARGS__))
// The scalars by value are the kernel's data members, in their order.
#define QORL_ARRAY_SCALAR(t, Function, level, ...) \
    QORL_ARRAY_SCALAR_OF(QORL_REAL_##t, t, Function, level, (__VA_ARGS__))
#define QORL_LINEAR_FRAC(t, Function, level, ...) QORL_LINEAR_FRAC_OF(QORL_REAL_##t, t, Function, level, (__VA_ARGS__))

#define QORL_REAL_s float
#define QORL_REAL_d double

// clang-format off
#define QORL_UNARY_OF(T, t, Function, level, K)                                                                     \
    QORL_ENTRIES(t, Function, level, K, ({}),                                                                       \
                 (int32_t n, const T *a, T *y), (n, a, y), ({{a}, {y}}),                                            \
                 (int32_t n, const T *a, int32_t inca, T *y, int32_t incy),                                         \
                 (inca == 1 && incy == 1), ({{a}, {inca}, {y}, {incy}}))
#define QORL_BINARY_OF(T, t, Function, level, K)                                                                    \
    QORL_ENTRIES(t, Function, level, K, ({}),                                                                       \
                 (int32_t n, const T *a, const T *b, T *y), (n, a, b, y), ({{a, b}, {y}}),                          \
                 (int32_t n, const T *a, int32_t inca, const T *b, int32_t incb, T *y, int32_t incy),               \
                 (inca == 1 && incb == 1 && incy == 1), ({{a, b}, {inca, incb}, {y}, {incy}}))
#define QORL_TWO_RESULTS_OF(T, t, Function, level, K)                                                               \
    QORL_ENTRIES(t, Function, level, K, ({}),                                                                       \
                 (int32_t n, const T *a, T *y, T *z), (n, a, y, z), ({{a}, {y, z}}),                                \
                 (int32_t n, const T *a, int32_t inca, T *y, int32_t incy, T *z, int32_t incz),                     \
                 (inca == 1 && incy == 1 && incz == 1), ({{a}, {inca}, {y, z}, {incy, incz}}))
#define QORL_ARRAY_SCALAR_OF(T, t, Function, level, K)                                                              \
    QORL_ENTRIES(t, Function, level, K, ({{}, b}),                                                                  \
                 (int32_t n, const T *a, T b, T *y), (n, a, b, y), ({{a}, {y}}),                                    \
                 (int32_t n, const T *a, int32_t inca, T b, T *y, int32_t incy),                                    \
                 (inca == 1 && incy == 1), ({{a}, {inca}, {y}, {incy}}))
#define QORL_LINEAR_FRAC_OF(T, t, Function, level, K)                                                               \
    QORL_ENTRIES(t, Function, level, K, ({{}, scalea, shifta, scaleb, shiftb}),                                     \
                 (int32_t n, const T *a, const T *b, T scalea, T shifta, T scaleb, T shiftb, T *y),                 \
                 (n, a, b, scalea, shifta, scaleb, shiftb, y), ({{a, b}, {y}}),                                     \
                 (int32_t n, const T *a, int32_t inca, const T *b, int32_t incb, T scalea, T shifta, T scaleb,      \
                  T shiftb, T *y, int32_t incy),                                                                    \
                 (inca == 1 && incb == 1 && incy == 1), ({{a, b}, {inca, incb}, {y}, {incy}}))

#define QORL_PLAIN(...) __VA_ARGS__  // takes the parentheses off

// The slots of a function, unit-stride and strided, by level; they come from the assembler.
#define QORL_SLOTS(t, Function) \
    extern "C" [[gnu::visibility("hidden")]] void *const qorl_ttab_##t##Function[3], *const qorl_ttab_##t##Function##I[3]

// The two entry points of a kernel. Its name row comes from the assembler as well.
#define QORL_ENTRIES(t, Function, level, K, scalars, parameters, arguments, arrays, strided_parameters, all_one,    \
                     strided_arrays)                                                                                \
    QORL_SLOTS(t, Function);                                                                                        \
    extern "C" [[gnu::visibility("hidden")]] const char qorl_name_##t##Function##_##level[];                        \
    extern "C" void qorl_kernel_##t##Function##_##level parameters {                                                \
        using Kernel = QORL_PLAIN K;                                                                                \
        using Arrays = qorl::UnitArrays<Kernel::Element, Kernel::inputs, Kernel::outputs>;                          \
        qorl::enter(Kernel QORL_PLAIN scalars, Arrays QORL_PLAIN arrays, n, qorl_name_##t##Function##_##level);     \
    }                                                                                                               \
    extern "C" void qorl_kernel_##t##Function##I_##level strided_parameters {                                       \
        using Kernel = QORL_PLAIN K;                                                                                \
        using Unit = void (*) parameters;                                                                           \
        using Arrays = qorl::StridedArrays<Kernel::Element, Kernel::inputs, Kernel::outputs>;                       \
        if (all_one) {                                                                                              \
            void *const unit = qorl_ttab_##t##Function[static_cast<int>(qorl::Level::level)];                       \
            return reinterpret_cast<Unit>(unit) arguments;                                                          \
        }                                                                                                           \
        qorl::enter(Kernel QORL_PLAIN scalars, Arrays QORL_PLAIN strided_arrays, n,                                 \
                    qorl_name_##t##Function##_##level);                                                             \
    }                                                                                                               \
    static_assert(qorl::Kernel<QORL_PLAIN K>)
// clang-format on

#endif
