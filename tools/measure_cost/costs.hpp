// The text of frame/costs.inc.
#ifndef QORL_TOOLS_MEASURE_COST_COSTS_HPP
#define QORL_TOOLS_MEASURE_COST_COSTS_HPP

#include <span>
#include <string>
#include <string_view>

#include "frame/entries.hpp"

namespace qorl::cost {

// The figure that an entry carries instead of a measurement: 1.0 for the Bessel functions, 1111.0 for Pack and Unpack;
// 0 for all others.
double marker(const Entry &entry);

// The file with the heading comment of an existing one (all before its first line of data), the markers, and the given
// figures, in table order. A strided entry has no line of its own; it carries its twin's figures.
std::string costs_text(std::string_view existing, std::span<const Cost> figures);

}  // namespace qorl::cost

#endif
