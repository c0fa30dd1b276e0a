// The kernels that stand, as linked into a test, called by entry and level.
#ifndef QORL_TESTS_FRAME_ANY_SHAPE_HPP
#define QORL_TESTS_FRAME_ANY_SHAPE_HPP

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <type_traits>

#include "frame/call.hpp"
#include "frame/entries.hpp"

extern "C" [[gnu::visibility("hidden")]] const char qorl_kernel_table[];

namespace qorl::test {

using qorl::Arguments, qorl::inputs, qorl::outputs;

inline constexpr Level levels[] = {Level::LA, Level::HA, Level::EP};
inline constexpr const char *level_names[] = {"LA", "HA", "EP"};

inline void *kernel_of(const Entry &entry, Level level) {
    void *kernel;
    std::memcpy(&kernel, qorl_kernel_table + 48 * entry.index + 8 * static_cast<int>(level), sizeof kernel);
    return kernel;
}

template <class T>
void call(Shape shape, Form form, void *kernel, std::int32_t n, const Arguments<T> &x) {
    kernel_caller<T>(shape, form)(kernel, n, x);
}

template <class T>
void call(const Entry &entry, Level level, std::int32_t n, const Arguments<T> &x) {
    call(entry.shape, entry.form, kernel_of(entry, level), n, x);
}

template <class T>
inline constexpr char letter = sizeof(T) == sizeof(float) ? 's' : 'd';

// Calls f with a zero of the function's element type.
template <class F>
void for_type(const Function &function, F &&f) {
    function.type == 's' ? f(float{}) : f(double{});
}

template <class T>
using BitsOf = std::conditional_t<sizeof(T) == sizeof(float), std::uint32_t, std::uint64_t>;
template <class T>
BitsOf<T> bits(T x) {
    return std::bit_cast<BitsOf<T>>(x);
}
template <class T>
T from_bits(BitsOf<T> x) {
    return std::bit_cast<T>(x);
}

inline std::string name_of(const Function &function) {
    return function.type + std::string(function.name);
}

}  // namespace qorl::test

#endif
