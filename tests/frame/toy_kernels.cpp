#include "toy_kernels.hpp"

#include <limits>

#include "frame/entry_points.hpp"

namespace qorl::test {
namespace {

template <class T>
constexpr T infinity = std::numeric_limits<T>::infinity();

template <class T>
struct Negative : OneResult<T> {  // -x; a negative x is out of the domain
    static constexpr int packs = toy_packs;
    template <int N>
    static Pack<T, N> body(Pack<T, N> x) {
        return -x;
    }
    template <int N>
    static Mask<T, N> special(Pack<T, N> x) {
        return less(x, T(0));
    }
    static int scalar(T, T *y) {
        *y = T(0.5);
        return 1;
    }
};

template <class T>
struct Ratio : TwoInputs<T> {
    static constexpr int packs = toy_packs;
    template <int N>
    static Pack<T, N> body(Pack<T, N> a, Pack<T, N> b) {
        return a / b;
    }
    template <int N>
    static Mask<T, N> special(Pack<T, N>, Pack<T, N> b) {
        return equal(b, T(0));
    }
    static int scalar(T, T, T *y) {
        *y = infinity<T>;
        return 2;
    }
};

template <class T>
struct Scaled : OneResult<T> {
    static constexpr int packs = toy_packs;
    static constexpr StridedForm strided_form = StridedForm::gathered;
    T factor;
    template <int N>
    Pack<T, N> body(Pack<T, N> x) const {
        return x * Pack<T, N>(factor);
    }
    template <int N>
    Mask<T, N> special(Pack<T, N> x) const {
        return less(x, T(0));
    }
    int scalar(T, T *y) const {
        *y = 2 * factor;
        return 1;
    }
};

template <class T>
struct Neighbours : TwoResults<T> {
    static constexpr int packs = toy_packs;
    template <int N>
    static std::pair<Pack<T, N>, Pack<T, N>> body(Pack<T, N> x) {
        return {x + Pack<T, N>(1), x - Pack<T, N>(1)};
    }
    template <int N>
    static Mask<T, N> special(Pack<T, N> x) {
        return greater(x, T(100));
    }
    static int scalar(T, T *y, T *z) {
        *y = 11;
        *z = 12;
        return 3;
    }
};

template <class T>
struct Fraction : TwoInputs<T> {
    static constexpr int packs = toy_packs;
    T scalea, shifta, scaleb, shiftb;
    template <int N>
    Pack<T, N> body(Pack<T, N> a, Pack<T, N> b) const {
        using P = Pack<T, N>;
        return fma(a, P(scalea), P(shifta)) / fma(b, P(scaleb), P(shiftb));
    }
    template <int N>
    Mask<T, N> special(Pack<T, N>, Pack<T, N> b) const {
        using P = Pack<T, N>;
        return equal(fma(b, P(scaleb), P(shiftb)), T(0));
    }
    int scalar(T, T, T *y) const {
        *y = 0;
        return 4;
    }
};

}  // namespace
}  // namespace qorl::test

// Two instances of a kernel with entry points, and what the assembler defines for those of the library: the table,
// through which a strided call with strides 1 reaches its unit-stride twin, and the name row.
#define TOY_OF(SHAPE, t, Function, T)                                                   \
    QORL_##SHAPE(t, Toy##Function, LA, qorl::test::Function<T>);                        \
    extern "C" const char qorl_name_##t##Toy##Function##_LA[] = "v" #t "Toy" #Function; \
    extern "C" void *const qorl_ttab_##t##Toy##Function[3] = {                          \
        reinterpret_cast<void *>(qorl_kernel_##t##Toy##Function##_LA)}
#define TOY(SHAPE, Function)           \
    TOY_OF(SHAPE, s, Function, float); \
    TOY_OF(SHAPE, d, Function, double)

TOY(UNARY, Negative);
TOY(BINARY, Ratio);
TOY(ARRAY_SCALAR, Scaled);
TOY(TWO_RESULTS, Neighbours);
TOY(LINEAR_FRAC, Fraction);

// Form by type.
#define TOY_KERNELS(Function)                                              \
    {                                                                      \
        {reinterpret_cast<void *>(qorl_kernel_sToy##Function##_LA),        \
         reinterpret_cast<void *>(qorl_kernel_dToy##Function##_LA)},       \
        {                                                                  \
            reinterpret_cast<void *>(qorl_kernel_sToy##Function##I_LA),    \
                reinterpret_cast<void *>(qorl_kernel_dToy##Function##I_LA) \
        }                                                                  \
    }

namespace qorl::test {

const Toy toys[5] = {
    {"ToyNegative", Shape::unary, {}, {3, 3}, {-3, -3}, {-2, -2}, {0.5, 0.5}, 1, TOY_KERNELS(Negative)},
    {"ToyRatio",
     Shape::binary,
     {},
     {6, 2},
     {3, 3},
     {5, 0},
     {infinity<double>, infinity<double>},
     2,
     TOY_KERNELS(Ratio)},
    {"ToyScaled", Shape::array_scalar, {4}, {2, 2}, {8, 8}, {-2, -2}, {8, 8}, 1, TOY_KERNELS(Scaled)},
    {"ToyNeighbours", Shape::two_results, {}, {5, 5}, {6, 4}, {200, 200}, {11, 12}, 3, TOY_KERNELS(Neighbours)},
    {"ToyFraction", Shape::linear_frac, {2, 1, 1, -3}, {1, 4}, {3, 3}, {7, 3}, {0, 0}, 4, TOY_KERNELS(Fraction)},
};

}  // namespace qorl::test
