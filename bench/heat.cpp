#include "bench/heat.hpp"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <random>
#include <span>

#include "bench/errors.hpp"
#include "bench/kernels.hpp"
#include "bench/peers.hpp"
#include "tools/reference/kernel.hpp"

namespace qorl::bench {
namespace {

// Four arrays, each on its own pages but a quarter page further than the one before: a load right behind a store to the
// same place of another page would wait for it.
constexpr std::size_t array_pitch = 3 * 4096 + 1024;
static_assert(array_pitch >= strided_length * 3 * sizeof(double) && array_pitch >= full_length * sizeof(double));

template <class T>
void fill(void *array, Range range, std::uint64_t seed) {
    std::mt19937_64 bits(seed);
    std::uniform_real_distribution<double> uniform(range.low, range.high);
    for (T &x : std::span(static_cast<T *>(array), array_pitch / sizeof(T))) x = static_cast<T>(uniform(bits));
}

// Errors are compared as they are printed: two that differ by less count as equal.
double printed(double ulp) {
    return std::round(ulp * 100);
}

}  // namespace

Heat::Heat(const Subject &subject, const Entry &entry, const HeatOptions &options)
    : subject_(subject),
      entry_(entry),
      options_(options),
      arrays_(static_cast<std::byte *>(std::aligned_alloc(4096, 4 * array_pitch)), std::free) {
    for (const char c : subject.function) label_ += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    if (!subject.tag.empty()) label_.append("_").append(subject.tag);
    label_.append("/").append(1, entry.type);

    std::byte *const arrays = arrays_.get();
    for (int i = 0; i < 2; ++i) {
        const Range range = i == 0 ? subject.a : subject.b;
        const auto seed = static_cast<std::uint64_t>(1 + i);
        if (entry.type == 's')
            fill<float>(arrays + static_cast<std::size_t>(i) * array_pitch, range, seed);
        else
            fill<double>(arrays + static_cast<std::size_t>(i) * array_pitch, range, seed);
    }

    const reference::Library library;
    const Entry *const twin = strided_twin(entry);
    for (const Level level : {Level::LA, Level::HA, Level::EP}) {
        const auto slot = static_cast<std::size_t>(level);
        const std::string owner(reference::level_names[slot]);
        if (void *const kernel = library.kernels(entry)[slot]) {
            add(owner, true, level, Kind::full, 0, kernel_run(entry), kernel);
            if (options.calls) add(owner, true, level, Kind::call, 0, kernel_run(entry), kernel);
        }
        if (!options.strided || twin == nullptr) continue;
        if (void *const kernel = library.kernels(*twin)[slot])
            for (const int stride : strides) add(owner, true, level, Kind::strided, stride, kernel_run(*twin), kernel);
    }
    if (!options.peers) return;
    for (const Peer &peer : find_peers(entry.type, entry.shape, subject)) {
        add(peer.name, false, Level::LA, Kind::full, 0, peer.run, peer.target);
        if (options.calls) add(peer.name, false, Level::LA, Kind::call, 0, peer.run, peer.target);
    }
}

void Heat::add(std::string owner, bool ours, Level level, Kind kind, int stride, Run run, void *target) {
    if (run == nullptr) return;
    const int n = kind == Kind::full ? full_length : kind == Kind::call ? call_length : strided_length;
    std::byte *const arrays = arrays_.get();
    Contestant contestant;
    contestant.run = run;
    contestant.target = target;
    contestant.work = {
        n, stride, arrays, arrays + array_pitch, subject_.b.low, arrays + 2 * array_pitch, arrays + 3 * array_pitch};
    contestants_.push_back(contestant);

    std::string name = label_ + "/" + owner + "/n=" + std::to_string(n);
    if (stride != 0) name += "/stride=" + std::to_string(stride);
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    entrants_.push_back({std::move(name), std::move(owner), ours, kind, level, n, none, none, none, none, none, none,
                         none, none, none, "", ""});
}

bool Heat::has_kernel() const {
    return std::any_of(entrants_.begin(), entrants_.end(), [](const Entrant &one) { return one.ours; });
}

void Heat::measure_errors() {
    if (options_.error_points == 0) return;
    const ErrorProbe probe(subject_, entry_, options_.error_points);
    for (std::size_t i = 0; i < entrants_.size(); ++i) {
        if (entrants_[i].kind != Kind::full) continue;
        const double ulp = probe.largest_error(contestants_[i]);
        for (Entrant &one : entrants_)
            if (one.owner == entrants_[i].owner) one.ulp = ulp;
    }
}

void Heat::evaluate(const Clock &clock) {
    for (std::size_t i = 0; i < entrants_.size(); ++i) {
        Entrant &one = entrants_[i];
        const double n = contestants_[i].work.n;
        one.call_clocks = contestants_[i].ticks / clock.ticks_per_clock;
        one.ticks = contestants_[i].ticks / n;
        one.clocks = one.call_clocks / n;
        one.nanoseconds = one.ticks / clock.ticks_per_nanosecond;
        one.spread = contestants_[i].spread;
    }
    for (Entrant &one : entrants_) {
        if (!one.ours) continue;
        evaluate_ratios(one, entrants_);
        if (one.kind != Kind::call) continue;
        for (const Entrant &full : entrants_)
            if (full.kind == Kind::full && full.owner == one.owner)
                one.overhead = one.call_clocks - call_length * full.clocks;
    }
}

void evaluate_ratios(Entrant &ours, const std::vector<Entrant> &entrants) {
    const Entrant *fastest = nullptr, *fastest_any = nullptr;
    for (const Entrant &peer : entrants) {
        if (peer.ours || peer.kind != ours.kind) continue;
        if (fastest_any == nullptr || peer.clocks < fastest_any->clocks) fastest_any = &peer;
        const bool more_accurate = printed(peer.ulp) < printed(ours.ulp);  // false where an error is not known
        if (ours.level != Level::EP && more_accurate) continue;
        if (fastest == nullptr || peer.clocks < fastest->clocks) fastest = &peer;
    }
    if (fastest != nullptr) ours.ratio = ours.clocks / fastest->clocks, ours.rival = fastest->owner;
    if (fastest_any != nullptr) ours.ratio_any = ours.clocks / fastest_any->clocks, ours.rival_any = fastest_any->owner;
}

std::vector<Heat> all_heats(const HeatOptions &options) {
    std::vector<Heat> heats;
    for (const Subject &subject : subjects)
        for (const char type : {'s', 'd'}) {
            Heat heat(subject, *find_entry(type, subject.function), options);
            if (heat.has_kernel() || (options.absent && !heat.contestants().empty())) heats.push_back(std::move(heat));
        }
    return heats;
}

Clock run_heats(const std::vector<Heat *> &heats, const ContestOptions &options) {
    std::vector<std::vector<Contestant> *> groups;
    for (Heat *heat : heats) {
        heat->measure_errors();
        groups.push_back(&heat->contestants());
    }
    const Clock clock = run_contest(groups, options);
    for (Heat *heat : heats) heat->evaluate(clock);
    return clock;
}

}  // namespace qorl::bench
