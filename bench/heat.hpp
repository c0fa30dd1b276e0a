// One function and type under one range of arguments: our levels and the peers that have the function, their arrays,
// and what came out.
#ifndef QORL_BENCH_HEAT_HPP
#define QORL_BENCH_HEAT_HPP

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "bench/contest.hpp"
#include "bench/subjects.hpp"
#include "frame/entries.hpp"

namespace qorl::bench {

inline constexpr int full_length = 1000;    // elements, in the first-level cache
inline constexpr int call_length = 8;       // where the call's own cost shows
inline constexpr int strided_length = 480;  // so that three arrays at stride 3 stay in the cache
inline constexpr int strides[] = {1, 3};

enum class Kind { full, call, strided };

// Figures that do not apply or were not measured are NaN.
struct Entrant {
    std::string name;   // exp/d/HA/n=1000, exp/d/HA/n=480/stride=3, exp/d/libmvec/n=8
    std::string owner;  // LA, HA, EP, or the peer's name
    bool ours;
    Kind kind;
    Level level;  // of ours
    int n;

    double nanoseconds;     // of an element
    double ticks;           // of an element, time-stamp counter
    double clocks;          // of an element, core clocks
    double call_clocks;     // of the whole call
    double overhead;        // ours at n = 8: core clocks beyond 8 elements at the pace of n = 1000
    double ulp;             // largest error seen on the range of arguments
    double ratio;           // ours: time over the fastest peer of equal or larger error; at EP, over any peer
    double ratio_any;       // ours: time over the fastest peer whatever its error
    double spread;          // median over minimum of the runs: how loud the machine was
    std::string rival;      // the peer of `ratio`
    std::string rival_any;  // the peer of `ratio_any`
};

// Sets the ratios and rivals of an entrant of ours by the times and errors of the peers in the same kind of call.
void evaluate_ratios(Entrant &ours, const std::vector<Entrant> &entrants);

struct HeatOptions {
    bool peers = true;
    bool calls = true;    // n = 8 as well
    bool absent = false;  // functions without kernels as well, peers alone
    bool strided = true;  // the strided kernels as well
    int error_points =
        8000;  // random arguments for the errors, beside those around zeros and ends; 0 leaves errors out
};

class Heat {
  public:
    // Finds the contestants and fills the arrays. The entry is the unit-stride one that the subject names.
    Heat(const Subject &subject, const Entry &entry, const HeatOptions &options);

    // Runs every contestant on the same arguments and compares with MPFR or Arb.
    void measure_errors();

    // Turns the contestants' times into figures, once the contest is over.
    void evaluate(const Clock &clock);

    std::string label() const { return label_; }  // exp/d
    const Subject &subject() const { return subject_; }
    const Entry &entry() const { return entry_; }
    std::vector<Contestant> &contestants() { return contestants_; }
    const std::vector<Entrant> &entrants() const { return entrants_; }
    bool has_kernel() const;

  private:
    void add(std::string owner, bool ours, Level level, Kind kind, int stride, Run run, void *target);

    const Subject &subject_;
    const Entry &entry_;
    HeatOptions options_;
    std::string label_;
    std::unique_ptr<std::byte[], void (*)(void *)> arrays_;
    std::vector<Contestant> contestants_;
    std::vector<Entrant> entrants_;  // one for each contestant
};

// The heats of all subjects, s and d, in the order of the subjects; without those that have no contestant.
std::vector<Heat> all_heats(const HeatOptions &options);

// Lets the heats run in one contest and evaluates them.
Clock run_heats(const std::vector<Heat *> &heats, const ContestOptions &options);

}  // namespace qorl::bench

#endif
