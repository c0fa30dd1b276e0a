// Where each function is worth measuring: its domain, the ranges that matter, and the points around which errors are
// likely. The strata and the adversarial clusters of the sampled measurements are drawn from this data alone.
#ifndef QORL_TOOLS_REFERENCE_DOMAIN_HPP
#define QORL_TOOLS_REFERENCE_DOMAIN_HPP

#include <limits>
#include <string_view>
#include <vector>

#include "frame/entries.hpp"

namespace qorl::reference {

inline constexpr double unbounded = std::numeric_limits<double>::infinity();

struct Range {
    double low = -unbounded, high = unbounded;
};

struct Domain {
    Range ends = {};                  // no point is drawn outside
    std::vector<Range> uniform = {};  // drawn from uniformly
    Range exponents = {-40, 40};      // binary exponents of interest; the whole format is covered more thinly

    // Ends, thresholds, zeros, poles: each is taken with both signs where the ends allow it, with its neighbours.
    std::vector<double> marks = {};

    // Points near k * spacing for integers k up to 2^reach: zeros, poles, ends of sectors. 0 for none.
    double spacing = 0;
    int reach = 12;
};

enum class Pairing {
    independent,  // b from its own domain
    similar,      // b also close to a: of equal magnitude, of close exponent
    power,        // b so that a^b runs through the exponents of the format
    scalar        // one b for a whole array, from the marks of its domain
};

struct Domains {
    Domain a = {}, b = {};
    Pairing pairing = Pairing::independent;
};

// The domains of an entry's arguments; the whole format for a function without a row.
Domains domains_of(const Entry &entry);

}  // namespace qorl::reference

#endif
