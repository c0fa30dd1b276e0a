#include "bench/kernels.hpp"

#include "frame/call.hpp"

namespace qorl::bench {
namespace {

// The target is called straight through its pointer. A fraction is (1.5 a + 0.5) / (0.75 b + 2).
template <Shape shape, Form form, class T>
void run(void *kernel, const Work &w, int repeats) {
    const Arguments<T> arguments{
        {static_cast<const T *>(w.a), static_cast<const T *>(w.b)},
        {static_cast<T *>(w.y), static_cast<T *>(w.z)},
        {w.stride, w.stride},
        {w.stride, w.stride},
        {shape == Shape::linear_frac ? T(1.5) : static_cast<T>(w.scalar), T(0.5), T(0.75), T(2)}};
    for (int i = 0; i < repeats; ++i) call_kernel<shape, form, T>(kernel, w.n, arguments);
}

template <class T>
Run run_of(const Entry &entry) {
    return for_real_shape(entry.shape, entry.form, Run{nullptr},
                          []<Shape shape, Form form>() -> Run { return run<shape, form, T>; });
}

}  // namespace

Run kernel_run(const Entry &entry) {
    if (entry.type == 's') return run_of<float>(entry);
    if (entry.type == 'd') return run_of<double>(entry);
    return nullptr;
}

}  // namespace qorl::bench
