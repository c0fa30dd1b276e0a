// What a kernel is, and the drivers that turn it into entry points.
//
// A kernel is a structure with the mathematics of one function, type and level:
//
//   struct Kernel : OneResult<double> {                           // or TwoInputs, TwoResults: inputs and outputs
//       static constexpr int packs = 2;                           // registers per block and input
//       template <int N> Pack<double, N> body(Pack<double, N> x) const;    // branch-free, for all lanes
//       template <int N> Mask<double, N> special(Pack<double, N> x) const; // lanes that go to scalar(); NaN among them
//       int scalar(double x, double *y) const;                    // out of line; returns the status, 0 for none
//   };
//
// body is required. special and scalar come together; without them no lane is special and nothing is raised. Optional
// members: tail_body, where the tail differs from the blocks; saturate, lanes that need no scalar call while error
// handling is off; dispatch, which may do a whole call in another way before anything else is done, and returns true
// then; tail_safe, the value of lanes behind the end (0.75); strided_form. Scalar arguments of a function are data
// members. Two results are returned as a std::pair.
//
// The drivers add entry and exit, the block loop, the masked tail, the strided forms and the raise. The result of an
// element depends on its value alone.
#ifndef QORL_FRAME_KERNEL_HPP
#define QORL_FRAME_KERNEL_HPP

#include <array>
#include <concepts>
#include <cstddef>
#include <cstdint>

#include "frame/control.hpp"
#include "frame/entries.hpp"
#include "frame/raise.hpp"
#include "frame/vec.hpp"

namespace qorl {

enum class StridedForm {
    collected,  // scalar loads put vectors together
    gathered    // gather instructions
};

template <class T, int Inputs, int Outputs>
struct KernelOf {
    using Element = T;
    static constexpr int inputs = Inputs, outputs = Outputs;
    static constexpr T tail_safe = T(0.75);
    static constexpr StridedForm strided_form = StridedForm::collected;
};
template <class T>
using OneResult = KernelOf<T, 1, 1>;
template <class T>
using TwoInputs = KernelOf<T, 2, 1>;
template <class T>
using TwoResults = KernelOf<T, 1, 2>;

template <class K, int N>
using Inputs = std::array<Pack<typename K::Element, N>, K::inputs>;
template <class K, int N>
using Outputs = std::array<Pack<typename K::Element, N>, K::outputs>;

template <class R>
QORL_INLINE auto as_array(const R &result) {
    if constexpr (requires { result.first; })
        return std::array{result.first, result.second};
    else
        return std::array{result};
}
template <class K, int N>
QORL_INLINE Outputs<K, N> apply_body(const K &kernel, const Inputs<K, N> &x) {
    if constexpr (K::inputs == 1)
        return as_array(kernel.body(x[0]));
    else
        return as_array(kernel.body(x[0], x[1]));
}
template <class K, int N>
QORL_INLINE auto apply_special(const K &kernel, const Inputs<K, N> &x) {
    if constexpr (K::inputs == 1)
        return kernel.special(x[0]);
    else
        return kernel.special(x[0], x[1]);
}
// The scalar function on lane `lane` of the buffers.
template <class K, class T, std::size_t B>
QORL_INLINE int apply_scalar(const K &kernel, const T (&in)[K::inputs][B], T (&out)[K::outputs][B], int lane) {
    if constexpr (K::inputs == 2)
        return kernel.scalar(in[0][lane], in[1][lane], &out[0][lane]);
    else if constexpr (K::outputs == 2)
        return kernel.scalar(in[0][lane], &out[0][lane], &out[1][lane]);
    else
        return kernel.scalar(in[0][lane], &out[0][lane]);
}

template <class K>
concept HasSpecialLanes = requires(const K &kernel, const Pack<typename K::Element, 1> &x) {
    requires requires {
        kernel.special(x);
    } || requires {
        kernel.special(x, x);
    };
};
template <class K>
concept Kernel = requires(const K &kernel, const Pack<typename K::Element, 1> &x) {
    { K::packs } -> std::convertible_to<int>;
    requires requires {
        kernel.body(x);
    } || requires {
        kernel.body(x, x);
    };
};

// The arrays of a call, unit-stride.
template <class T, int I, int O>
struct UnitArrays {
    std::array<const T *, I> in;
    std::array<T *, O> out;

    template <class K, int N>
    QORL_INLINE std::array<Pack<T, N>, I> read(std::ptrdiff_t i) const {
        std::array<Pack<T, N>, I> x;
        each_register<I>([&](int k) { x[k] = load<N>(in[k] + i); });
        return x;
    }
    template <int N>
    QORL_INLINE void write(std::ptrdiff_t i, const std::array<Pack<T, N>, O> &y) const {
        each_register<O>([&](int k) { store(out[k] + i, y[k]); });
    }
    template <class K>
    QORL_INLINE std::array<Pack<T, 1>, I> read_first(std::ptrdiff_t i, std::ptrdiff_t count) const {
        const FirstLanes<T> first(count);
        std::array<Pack<T, 1>, I> x;
        each_register<I>([&](int k) { x[k] = load_first(in[k] + i, first, K::tail_safe); });
        return x;
    }
    QORL_INLINE void write_first(std::ptrdiff_t i, std::ptrdiff_t count, const std::array<Pack<T, 1>, O> &y) const {
        const FirstLanes<T> first(count);
        each_register<O>([&](int k) { store_first(out[k] + i, first, y[k]); });
    }
    ArrayView<const T> input(int k) const { return {in[k], 1}; }
    ArrayView<T> output(int k) const { return {out[k], 1}; }
};

// The arrays of a call, each with its stride in elements, which may be negative or zero.
template <class T, int I, int O>
struct StridedArrays {
    std::array<const T *, I> in;
    std::array<std::ptrdiff_t, I> in_stride;
    std::array<T *, O> out;
    std::array<std::ptrdiff_t, O> out_stride;

    template <class K, int N>
    QORL_INLINE std::array<Pack<T, N>, I> read(std::ptrdiff_t i) const {
        std::array<Pack<T, N>, I> x;
        each_register<I>([&](int k) {
            const T *const p = in[k] + i * in_stride[k];
            if constexpr (K::strided_form == StridedForm::gathered)
                x[k] = gather<N>(p, in_stride[k]);
            else
                x[k] = collect<N>(p, in_stride[k]);
        });
        return x;
    }
    template <int N>
    QORL_INLINE void write(std::ptrdiff_t i, const std::array<Pack<T, N>, O> &y) const {
        each_register<O>([&](int k) { scatter(out[k] + i * out_stride[k], out_stride[k], y[k]); });
    }
    template <class K>
    QORL_INLINE std::array<Pack<T, 1>, I> read_first(std::ptrdiff_t i, std::ptrdiff_t count) const {
        std::array<Pack<T, 1>, I> x;
        each_register<I>([&](int k) {
            alignas(32) T lanes[Lane<T>::count];
            for (int l = 0; l < Lane<T>::count; ++l)
                lanes[l] = l < count ? in[k][(i + l) * in_stride[k]] : K::tail_safe;
            x[k] = load<1>(lanes);
        });
        return x;
    }
    QORL_INLINE void write_first(std::ptrdiff_t i, std::ptrdiff_t count, const std::array<Pack<T, 1>, O> &y) const {
        each_register<O>([&](int k) {
            alignas(32) T lanes[Lane<T>::count];
            store(lanes, y[k]);
            for (std::ptrdiff_t l = 0; l < count; ++l) out[k][(i + l) * out_stride[k]] = lanes[l];
        });
    }
    ArrayView<const T> input(int k) const { return {in[k], in_stride[k]}; }
    ArrayView<T> output(int k) const { return {out[k], out_stride[k]}; }
};

// What a call brings besides its arrays.
struct Call {
    std::uint32_t error_mode;
    const char *name;  // the kernel's name row
};

// One block with special lanes, or one tail vector of `count` elements with N = 1: off the fast path, computed again
// from the start. The special lanes go to the scalar function in ascending order; one with a status is stored, raised
// and read back before the next, and the whole block is stored last.
template <class K, int N, class Arrays>
[[gnu::noinline, gnu::cold, gnu::flatten]] void special_block(const K &kernel, const Arrays &arrays, std::ptrdiff_t i,
                                                              std::ptrdiff_t count, const Call &call) {
    using T = typename K::Element;
    constexpr std::ptrdiff_t block = N * Lane<T>::count;
    Inputs<K, N> x;
    if constexpr (N == 1)
        x = arrays.template read_first<K>(i, count);
    else
        x = arrays.template read<K, N>(i);
    Outputs<K, N> y = apply_body<K, N>(kernel, x);
    unsigned lanes = lane_bits(apply_special<K, N>(kernel, x)) & static_cast<unsigned>((std::uint64_t{1} << count) - 1);
    if constexpr (requires { kernel.saturate(x[0], y[0]); }) {
        if (call.error_mode == mode::error_none) lanes &= ~lane_bits(kernel.saturate(x[0], y[0]));
    }

    alignas(64) T in[K::inputs][block], out[K::outputs][block];
    for (int k = 0; k < K::inputs; ++k) store(in[k], x[k]);
    for (int k = 0; k < K::outputs; ++k) store(out[k], y[k]);
    for (; lanes != 0; lanes &= lanes - 1) {
        const int lane = __builtin_ctz(lanes);
        const int status = apply_scalar(kernel, in, out, lane);
        if (status == 0) continue;
        const std::ptrdiff_t index = i + lane;
        for (int k = 0; k < K::outputs; ++k) arrays.output(k)[index] = out[k][lane];
        raise<T>(status, static_cast<std::int32_t>(index), arrays.input(0), arrays.input(K::inputs - 1),
                 arrays.output(0), arrays.output(K::outputs - 1), call.name);
        for (int k = 0; k < K::outputs; ++k) out[k][lane] = arrays.output(k)[index];
    }
    for (int k = 0; k < K::outputs; ++k) y[k] = load<N>(out[k]);
    if constexpr (N == 1)
        arrays.write_first(i, count, y);
    else
        arrays.write(i, y);
}

// All elements of a call: blocks of K::packs registers, then one register at a time. The loop over plain blocks calls
// nothing, so that its constants stay in registers; a block with a special lane leaves it.
template <class K, class Arrays>
[[gnu::noinline, gnu::flatten]] void run(const K kernel, const Arrays arrays, std::ptrdiff_t n, const Call call) {
    using T = typename K::Element;
    constexpr std::ptrdiff_t lanes = Lane<T>::count, block = K::packs * lanes;
    std::ptrdiff_t i = 0;
    for (; i + block <= n; i += block) {
        for (; i + block <= n; i += block) {
            const auto x = arrays.template read<K, K::packs>(i);
            const auto y = apply_body<K, K::packs>(kernel, x);
            if constexpr (HasSpecialLanes<K>)
                if (any(apply_special<K, K::packs>(kernel, x))) [[unlikely]]
                    break;
            arrays.write(i, y);
        }
        if (i + block > n) break;
        if constexpr (HasSpecialLanes<K>) special_block<K, K::packs>(kernel, arrays, i, block, call);
    }
    for (; i < n; i += lanes) {
        const std::ptrdiff_t count = n - i < lanes ? n - i : lanes;
        const auto x = arrays.template read_first<K>(i, count);
        if constexpr (HasSpecialLanes<K>) {
            // Lanes behind the end hold the safe value and are never special.
            if (any(apply_special<K, 1>(kernel, x))) [[unlikely]] {
                special_block<K, 1>(kernel, arrays, i, count, call);
                continue;
            }
        }
        if constexpr (requires { kernel.tail_body(x[0]); })
            arrays.write_first(i, count, {kernel.tail_body(x[0])});
        else
            arrays.write_first(i, count, apply_body<K, 1>(kernel, x));
    }
}

template <Kernel K, class Arrays>
QORL_INLINE void enter(const K &kernel, const Arrays &arrays, std::int32_t n, const char *name) {
    if constexpr (requires { kernel.dispatch(arrays, n); }) {
        if (kernel.dispatch(arrays, n)) return;
    }
    const ControlScope control;
    run(kernel, arrays, n, Call{control.error_mode(), name});
}

}  // namespace qorl

#endif
