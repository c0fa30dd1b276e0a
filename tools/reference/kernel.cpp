#include "tools/reference/kernel.hpp"

#include <dlfcn.h>

#include <stdexcept>
#include <utility>

#include "frame/call.hpp"

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
    const KernelCaller<T> caller = kernel_caller<T>(entry.shape, entry.form);
    if (caller == nullptr) throw std::logic_error("this shape has no reference");
    const std::size_t size = a.size();
    const bool strided = entry.form == Form::strided;
    qorl::Arguments<T> arguments{{a.data(), b.data()}, {}};
    if (inputs(entry.shape) == 1 && !b.empty()) arguments.scalar[0] = b[0];
    std::vector<T> spread_in[2], out[2];
    for (int k = 0; k < inputs(entry.shape) && strided; ++k) {
        const int stride = arguments.in_stride[k] = k == 0 ? 2 : 5;
        spread_in[k] = spread(k == 0 ? a : b, stride);
        arguments.in[k] = spread_in[k].data();
    }
    for (int k = 0; k < outputs(entry.shape); ++k) {
        const int stride = arguments.out_stride[k] = strided ? 3 + k : 1;
        out[k].resize(size * static_cast<std::size_t>(stride));
        arguments.out[k] = out[k].data();
    }
    caller(kernel, static_cast<std::int32_t>(size), arguments);
    std::vector<std::vector<T>> results;
    for (int k = 0; k < outputs(entry.shape); ++k)
        results.push_back(strided ? gather(out[k], size, arguments.out_stride[k]) : std::move(out[k]));
    return results;
}

template std::vector<std::vector<float>> run(const Entry &, void *, std::span<const float>, std::span<const float>);
template std::vector<std::vector<double>> run(const Entry &, void *, std::span<const double>, std::span<const double>);

}  // namespace qorl::reference
