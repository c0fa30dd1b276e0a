// The performance document of the random streams.
#ifndef QORL_TOOLS_SUMMARY_STREAMS_HPP
#define QORL_TOOLS_SUMMARY_STREAMS_HPP

#include <nlohmann/json.hpp>
#include <string>

namespace qorl::summary {

// From the JSON of bench_streams; its rows are described at the head of bench/bench_streams.cpp.
std::string streams_document(const nlohmann::json &report);

}  // namespace qorl::summary

#endif
