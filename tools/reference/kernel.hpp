// The kernels of a library, found by name through its exported kernel tables and called by shape.
#ifndef QORL_TOOLS_REFERENCE_KERNEL_HPP
#define QORL_TOOLS_REFERENCE_KERNEL_HPP

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "frame/entries.hpp"

namespace qorl::reference {

// A loaded library of kernels: the one this program is linked with, or a file.
class Library {
  public:
    Library();                                  // the linked one
    explicit Library(const std::string &file);  // throws std::runtime_error when it can't be loaded

    // The three kernels of an entry in the order LA, HA, EP; null where not there.
    std::array<void *, 3> kernels(const Entry &entry) const;

    // Switches error handling off for the calling thread, so that special lanes cost no callbacks and set no flags.
    void silence_errors() const;

  private:
    void *handle_;
};

constexpr std::array<std::string_view, 3> level_names = {"LA", "HA", "EP"};

// Runs a kernel of the entry (unit-stride or strided) over the points and stores the results: one array, or two for
// the entries with two results. A strided kernel is given arrays of its own with different strides.
// Arguments that the shape passes by value are taken from b[0].
template <class T>
std::vector<std::vector<T>> run(const Entry &entry, void *kernel, std::span<const T> a, std::span<const T> b);

extern template std::vector<std::vector<float>> run(const Entry &, void *, std::span<const float>,
                                                    std::span<const float>);
extern template std::vector<std::vector<double>> run(const Entry &, void *, std::span<const double>,
                                                     std::span<const double>);

}  // namespace qorl::reference

#endif
