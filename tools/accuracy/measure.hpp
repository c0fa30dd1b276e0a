// Measures the error of kernels against the high-precision reference, by sampling or over all single-precision inputs.
#ifndef QORL_TOOLS_ACCURACY_MEASURE_HPP
#define QORL_TOOLS_ACCURACY_MEASURE_HPP

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "frame/entries.hpp"
#include "tools/reference/kernel.hpp"

namespace qorl::accuracy {

struct Options {
    std::uint64_t points = 1'000'000;  // of a sampled measurement, besides the clusters
    std::uint64_t seed = 1;
    unsigned threads = 1;
    std::vector<std::array<double, 2>> extra = {};  // more points for a sampled measurement
    bool strided = false;  // also run the strided kernels and count the elements whose bits differ
};

// A worst case: where, what came out and what would have been right.
struct Worst {
    double size = -1;  // of the error, in the unit of its use
    double a = 0, b = 0;
    double result = 0, expected = 0;

    void take(const Worst &other) {
        if (other.size > size || (other.size == size && other.a < a)) *this = other;
    }
};

// What was measured of one level.
struct Tally {
    Worst ulp;                 // largest error in ulp
    Worst relative;            // largest relative error; an exhaustive run takes it at EP only
    double sum = 0;            // of the errors in ulp
    std::uint64_t points = 0;  // results compared
    std::uint64_t unlike = 0;  // elements whose strided result has other bits
    Worst unlike_at;

    void take(const Tally &other);
    double mean() const { return points == 0 ? 0 : sum / static_cast<double>(points); }
};

struct Measurement {
    Function function;
    bool two_arguments = false;
    bool exhaustive = false;
    std::array<Tally, 3> levels;

    // Largest difference between the double-precision filter and MPFR that the re-checked points of an exhaustive run
    // showed, in single-precision ulp, and how many points were re-checked.
    double filter_error = 0;
    std::uint64_t filter_points = 0;
};

// The points of a list of found worst cases: a point a line, arguments in hexadecimal, comments after #. Throws
// std::runtime_error on a line that is no point. A file that is not there is an empty list.
std::vector<std::array<double, 2>> read_points(const std::string &file);

// The name of a function's list of found worst cases, as Exp_d.txt.
std::string worst_file(const Function &function);

// Why a function can't be measured, or an empty string.
std::string_view obstacle(const reference::Library &library, const Function &function, bool exhaustive);

// Called now and then from one thread at a time with the finished share.
using Progress = std::function<void(double)>;

// Stratified random points and adversarial clusters, all compared with MPFR or Arb.
Measurement sample(const reference::Library &library, const Function &function, const Options &options,
                   const Progress &progress);

// All finite single-precision inputs of a function of one argument. Every result is compared with the double-precision
// filter; the worst of each block of 2^20 inputs is measured again with MPFR, and that is what is reported. A random
// sample of the points checks the filter itself.
Measurement exhaust(const reference::Library &library, const Function &function, const Options &options,
                    const Progress &progress);

// Whether the measured errors of a level keep the bounds of the function's row.
bool within_bound(const Measurement &measurement, Level level);

// The filter's largest tolerable error, in single-precision ulp.
constexpr double filter_tolerance = 0.001;

}  // namespace qorl::accuracy

#endif
