#include "tools/reference/kernel.hpp"

#include <dlfcn.h>

#include <stdexcept>
#include <utility>

namespace qorl::reference {
namespace {

// An array spread out by a stride, as strided kernels take it.
template <class T>
std::vector<T> spread(std::span<const T> x, int stride) {
    std::vector<T> out(x.size() * static_cast<std::size_t>(stride) + 1);
    for (std::size_t i = 0; i < x.size(); ++i) out[i * static_cast<std::size_t>(stride)] = x[i];
    return out;
}

template <class T>
std::vector<T> gather(const std::vector<T> &x, std::size_t size, int stride) {
    std::vector<T> out(size);
    for (std::size_t i = 0; i < size; ++i) out[i] = x[i * static_cast<std::size_t>(stride)];
    return out;
}

}  // namespace

Library::Library() : handle_(RTLD_DEFAULT) {}

Library::Library(const std::string &file) : handle_(dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL)) {
    if (handle_ == nullptr) throw std::runtime_error(dlerror());
}

std::array<void *, 3> Library::kernels(const Entry &entry) const {
    const std::string name = "qorl_zet_kernel_" + std::string(1, entry.type) + std::string(entry.function) + "_ttab";
    const auto table = static_cast<void *const *>(dlsym(handle_, name.c_str()));
    if (table == nullptr) return {};
    return {table[0], table[1], table[2]};
}

void Library::silence_errors() const {
    if (void *set_mode = dlsym(handle_, "_zetSetMode"))
        reinterpret_cast<std::uint32_t (*)(std::uint32_t)>(set_mode)(0x2000);
}

template <class T>
std::vector<std::vector<T>> run(const Entry &entry, void *kernel, std::span<const T> a, std::span<const T> b) {
    const auto n = static_cast<std::int32_t>(a.size());
    const std::size_t size = a.size();
    std::vector<std::vector<T>> results;
    if (entry.form == Form::unit) {
        std::vector<T> y(size), z(entry.shape == Shape::two_results ? size : 0);
        switch (entry.shape) {
            case Shape::unary:
                reinterpret_cast<void (*)(std::int32_t, const T *, T *)>(kernel)(n, a.data(), y.data());
                break;
            case Shape::two_results:
                reinterpret_cast<void (*)(std::int32_t, const T *, T *, T *)>(kernel)(n, a.data(), y.data(), z.data());
                break;
            case Shape::binary:
                reinterpret_cast<void (*)(std::int32_t, const T *, const T *, T *)>(kernel)(n, a.data(), b.data(),
                                                                                            y.data());
                break;
            case Shape::unary_param:
            case Shape::array_scalar:
                if (n > 0)
                    reinterpret_cast<void (*)(std::int32_t, const T *, T, T *)>(kernel)(n, a.data(), b[0], y.data());
                break;
            default:
                throw std::logic_error("this shape has no reference");
        }
        results.push_back(std::move(y));
        if (!z.empty()) results.push_back(std::move(z));
        return results;
    }
    const std::vector<T> as = spread(a, 2), bs = entry.shape == Shape::binary ? spread(b, 5) : std::vector<T>();
    std::vector<T> y(size * 3 + 1), z(entry.shape == Shape::two_results ? size * 4 + 1 : 0);
    switch (entry.shape) {
        case Shape::unary:
            reinterpret_cast<void (*)(std::int32_t, const T *, std::int32_t, T *, std::int32_t)>(kernel)(
                n, as.data(), 2, y.data(), 3);
            break;
        case Shape::two_results:
            reinterpret_cast<void (*)(std::int32_t, const T *, std::int32_t, T *, std::int32_t, T *, std::int32_t)>(
                kernel)(n, as.data(), 2, y.data(), 3, z.data(), 4);
            break;
        case Shape::binary:
            reinterpret_cast<void (*)(std::int32_t, const T *, std::int32_t, const T *, std::int32_t, T *,
                                      std::int32_t)>(kernel)(n, as.data(), 2, bs.data(), 5, y.data(), 3);
            break;
        case Shape::unary_param:
        case Shape::array_scalar:
            if (n > 0)
                reinterpret_cast<void (*)(std::int32_t, const T *, std::int32_t, T, T *, std::int32_t)>(kernel)(
                    n, as.data(), 2, b[0], y.data(), 3);
            break;
        default:
            throw std::logic_error("this shape has no reference");
    }
    results.push_back(gather(y, size, 3));
    if (entry.shape == Shape::two_results) results.push_back(gather(z, size, 4));
    return results;
}

template std::vector<std::vector<float>> run(const Entry &, void *, std::span<const float>, std::span<const float>);
template std::vector<std::vector<double>> run(const Entry &, void *, std::span<const double>, std::span<const double>);

}  // namespace qorl::reference
