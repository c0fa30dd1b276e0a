// The error path: what happens when a kernel reports a status for one element.
#ifndef QORL_FRAME_RAISE_HPP
#define QORL_FRAME_RAISE_HPP

#include <cstddef>
#include <cstdint>

namespace qorl {

template <class T>
struct Complex {
    T re, im;
};

// An array as a kernel sees it: element i stands at start[i * stride]. Unit-stride arrays have stride 1.
template <class Element>
struct ArrayView {
    Element *start;
    std::ptrdiff_t stride;
    Element &operator[](std::ptrdiff_t i) const { return start[i * stride]; }
};

// Reports `status` for element `index`, whose result the kernel has stored: status, callback, errno, message,
// exception, and the results written back, r2 before r1, so that a callback's change shows in the arrays. A kernel with
// one input or one result passes its array twice. `name` is the kernel's name row.
//
// One template serves the four element types (float, double and their complex pairs) and both index forms.
template <class Element>
void raise(std::int32_t status, std::int32_t index, ArrayView<const Element> a, ArrayView<const Element> b,
           ArrayView<Element> r1, ArrayView<Element> r2, const char *name);

extern template void raise(std::int32_t, std::int32_t, ArrayView<const float>, ArrayView<const float>, ArrayView<float>,
                           ArrayView<float>, const char *);
extern template void raise(std::int32_t, std::int32_t, ArrayView<const double>, ArrayView<const double>,
                           ArrayView<double>, ArrayView<double>, const char *);
extern template void raise(std::int32_t, std::int32_t, ArrayView<const Complex<float>>, ArrayView<const Complex<float>>,
                           ArrayView<Complex<float>>, ArrayView<Complex<float>>, const char *);
extern template void raise(std::int32_t, std::int32_t, ArrayView<const Complex<double>>,
                           ArrayView<const Complex<double>>, ArrayView<Complex<double>>, ArrayView<Complex<double>>,
                           const char *);

}  // namespace qorl

#endif
