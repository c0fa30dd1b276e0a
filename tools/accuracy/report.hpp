// Tables of measured errors: for the terminal, as JSON, and the accuracy document.
#ifndef QORL_TOOLS_ACCURACY_REPORT_HPP
#define QORL_TOOLS_ACCURACY_REPORT_HPP

#include <string>
#include <vector>

#include "tools/accuracy/measure.hpp"

namespace qorl::accuracy {

// One line of a table: a level of a measured function.
struct Row {
    std::string function;
    char type = 's';
    Level level = Level::LA;
    double bound = 0;  // ulp at LA and HA, bits at EP
    double worst = 0;  // largest error, in ulp
    double bits = 0;   // relative error at most 2^-bits; at EP only
    double mean = 0;   // ulp
    double points = 0;
    std::string argument;  // of the largest error, in the unit of the level's bound, in hexadecimal
    bool exhaustive = false;
    bool within = true;
};

std::vector<Row> rows_of(const Measurement &measurement, const std::vector<Level> &levels);

// For people, aligned.
std::string terminal_table(const std::vector<Row> &rows);

std::string json(const std::vector<Row> &rows);

// The accuracy document with the new rows taken into the old one's text (empty when there is none).
//
// Rows of functions that have no bounds any more are dropped, rows that were not measured now are kept with the bound
// of today, and a sampled row doesn't replace an exhaustive one, unless it found a larger error: then the exhaustive
// row belongs to kernels that are gone.
std::string document(const std::vector<Row> &measured, const std::string &old);

}  // namespace qorl::accuracy

#endif
