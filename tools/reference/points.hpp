// Arguments for the sampled measurements: strata over the domain and clusters around its adversarial points.
#ifndef QORL_TOOLS_REFERENCE_POINTS_HPP
#define QORL_TOOLS_REFERENCE_POINTS_HPP

#include <cstdint>
#include <random>
#include <vector>

#include "tools/reference/domain.hpp"

namespace qorl::reference {

template <class T>
struct Points {
    std::vector<T> a, b;  // of one size; b is zero for functions of one argument
};

// Draws batches of points of an entry. A batch depends on the seed and its number only, so that threads can share the
// batches of one measurement and a found point can be found again.
template <class T>
class Sampler {
  public:
    Sampler(const Entry &entry, std::uint64_t seed);

    // The marks and their neighbours, at most a few thousand points; the same for every seed. For a scalar second
    // argument one batch for each scalar.
    std::vector<Points<T>> clusters() const;

    Points<T> batch(std::uint64_t number, std::size_t size) const;

  private:
    using Random = std::mt19937_64;
    T draw(const Domain &domain, Random &random) const;
    T partner(T a, Random &random) const;

    Domains domains_;
    bool two_arguments_;
    std::uint64_t seed_;
};

extern template class Sampler<float>;
extern template class Sampler<double>;

}  // namespace qorl::reference

#endif
