// The real functions of the library as formulas in high precision, looked up by function name.
//
// A formula is evaluated by MPFR where MPFR has the function and by Arb's ball arithmetic elsewhere. Both deliver a
// result whose relative error is below 2^-(precision - 4), so that a result compared at 128 bits has its error in ulp
// right to far more digits than anybody prints.
#ifndef QORL_TOOLS_REFERENCE_FORMULA_HPP
#define QORL_TOOLS_REFERENCE_FORMULA_HPP

#include <mpfr.h>

#include <span>
#include <string_view>
#include <vector>

#include "frame/entries.hpp"

namespace qorl::reference {

struct Arguments {
    mpfr_srcptr a, b;  // b is the second argument or the scalar; not to be read by functions of one argument
    char type;         // s or d; only NextAfter depends on it
};

enum class Symmetry { none, odd, even };

// Below which size of the result the error is judged as an absolute one. Near their zeros the gamma logarithm and the
// oscillating Bessel functions lose relative accuracy in every method that costs a bounded time.
enum class Floor { none, constant, amplitude };

struct Formula {
    std::string_view name;  // as in the list of entries
    int arguments;          // 1 or 2
    Symmetry symmetry;
    void (*exact)(mpfr_ptr y, const Arguments &x);  // rounds to the precision of y; NaN outside the domain

    // The same function of one argument in double precision, good enough to judge a single-precision result: off by
    // less than 0.001 of a single-precision ulp for every single-precision argument. Null where there is none.
    double (*fast)(double) = nullptr;
    Floor floor = Floor::none;
};

std::span<const Formula> formulas();

// Null when there is no formula of this name.
const Formula *find_formula(std::string_view name);

// The formulas behind the results of an entry: one, two for the entries with two results, none for entries that have
// no formula (complex types, linear fraction, pack).
std::vector<const Formula *> formulas_of(const Entry &entry);

// The size of result below which errors are absolute; 0 for most functions.
double error_floor(const Formula &formula, double a);

// Frees what MPFR and Arb keep for the calling thread. To be called at the end of a thread that evaluated formulas.
void release_thread();

}  // namespace qorl::reference

#endif
