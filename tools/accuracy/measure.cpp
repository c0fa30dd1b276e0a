#include "tools/accuracy/measure.hpp"

#include <algorithm>
#include <atomic>
#include <bit>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <exception>
#include <fstream>
#include <mutex>
#include <random>
#include <span>
#include <stdexcept>
#include <thread>

#include "tools/reference/error.hpp"
#include "tools/reference/points.hpp"

namespace qorl::accuracy {
namespace {

using reference::Evaluator;
using reference::Exact;
using reference::Formula;
using reference::Library;

// Runs task(number) for the numbers below count on several threads; passes the first exception on.
template <class Task>
void share(std::uint64_t count, unsigned threads, const Progress &progress, const Task &task) {
    std::atomic<std::uint64_t> next = 0, finished = 0;
    std::mutex mutex;
    std::exception_ptr failure;
    const auto work = [&] {
        try {
            for (std::uint64_t number; (number = next++) < count;) {
                task(number);
                const std::uint64_t done = ++finished;
                if (!progress) continue;
                if (const std::unique_lock lock(mutex, std::try_to_lock); lock)
                    progress(static_cast<double>(done) / static_cast<double>(count));
            }
        } catch (...) {
            const std::scoped_lock lock(mutex);
            if (!failure) failure = std::current_exception();
            next = count;
        }
        reference::release_thread();
    };
    std::vector<std::jthread> team;
    for (unsigned i = 1; i < threads; ++i) team.emplace_back(work);
    work();
    team.clear();
    if (failure) std::rethrow_exception(failure);
}

// The kernels behind the slots of a unit-stride entry and its strided twin; slots that share a kernel share its run.
struct Slots {
    const Entry *unit, *strided;
    std::array<void *, 3> unit_kernels, strided_kernels;
    std::array<std::size_t, 3> same;  // the first slot with the same kernel

    Slots(const Library &library, const Function &function)
        : unit(find_entry(function.type, function.name)), strided(strided_twin(*unit)) {
        unit_kernels = library.kernels(*unit);
        strided_kernels = strided == nullptr ? std::array<void *, 3>{} : library.kernels(*strided);
        for (std::size_t slot = 0; slot < 3; ++slot)
            same[slot] =
                static_cast<std::size_t>(std::ranges::find(unit_kernels, unit_kernels[slot]) - unit_kernels.begin());
    }
};

template <class T>
void compare_bits(Tally &level, std::span<const T> a, std::span<const T> b, const std::vector<std::vector<T>> &unit,
                  const std::vector<std::vector<T>> &strided) {
    for (std::size_t part = 0; part < unit.size(); ++part) {
        for (std::size_t i = 0; i < a.size(); ++i) {
            if (std::memcmp(&unit[part][i], &strided[part][i], sizeof(T)) == 0) continue;
            ++level.unlike;
            level.unlike_at.take({1, a[i], b[i], strided[part][i], unit[part][i]});
        }
    }
}

template <class T>
std::array<Tally, 3> measure_points(const Slots &slots, std::deque<Evaluator<T>> &evaluators,
                                    const reference::Points<T> &points, bool strided) {
    const std::size_t n = points.a.size();
    std::vector<std::vector<Exact<T>>> exact(evaluators.size(), std::vector<Exact<T>>(n));
    for (std::size_t part = 0; part < evaluators.size(); ++part)
        for (std::size_t i = 0; i < n; ++i) exact[part][i] = evaluators[part](points.a[i], points.b[i]);

    std::array<Tally, 3> levels;
    for (std::size_t slot = 0; slot < 3; ++slot) {
        Tally &level = levels[slot];
        if (slots.same[slot] != slot) {
            level = levels[slots.same[slot]];
            continue;
        }
        const auto results = reference::run<T>(*slots.unit, slots.unit_kernels[slot], points.a, points.b);
        for (std::size_t part = 0; part < results.size(); ++part) {
            for (std::size_t i = 0; i < n; ++i) {
                const Exact<T> &right = exact[part][i];
                if (!right.defined) continue;
                const reference::Error error = right.error(results[part][i]);
                const Worst here = {0, points.a[i], points.b[i], results[part][i], right.rounded()};
                if (error.ulp > level.ulp.size) level.ulp = here, level.ulp.size = error.ulp;
                if (error.relative > level.relative.size) level.relative = here, level.relative.size = error.relative;
                level.sum += error.ulp;
                ++level.points;
            }
        }
        if (strided && slots.strided != nullptr && slots.strided_kernels[slot] != nullptr)
            compare_bits<T>(level, points.a, points.b, results,
                            reference::run<T>(*slots.strided, slots.strided_kernels[slot], points.a, points.b));
    }
    return levels;
}

template <class T>
Measurement sample_type(const Library &library, const Function &function, const Options &options,
                        const Progress &progress) {
    const Slots slots(library, function);
    const auto formulas = reference::formulas_of(*slots.unit);
    const reference::Sampler<T> sampler(*slots.unit, options.seed);
    auto clusters = sampler.clusters();
    const bool scalar = slots.unit->shape == Shape::array_scalar || slots.unit->shape == Shape::unary_param;
    for (std::size_t i = 0; i < options.extra.size(); ++i) {  // a scalar argument is one for a whole batch
        if (i == 0 || scalar) clusters.emplace_back();
        clusters.back().a.push_back(static_cast<T>(options.extra[i][0]));
        clusters.back().b.push_back(static_cast<T>(options.extra[i][1]));
    }
    constexpr std::uint64_t size = 4096;
    const std::uint64_t random = (options.points + size - 1) / size;
    const std::uint64_t count = clusters.size() + random;

    // Kept apart by batch and added in order, so that sums don't depend on the schedule.
    std::vector<std::array<Tally, 3>> parts(count);
    share(count, options.threads, progress, [&](std::uint64_t number) {
        library.silence_errors();
        std::deque<Evaluator<T>> evaluators;
        for (const Formula *formula : formulas) evaluators.emplace_back(*formula);
        const std::uint64_t batch = number - clusters.size();
        parts[number] =
            number < clusters.size()
                ? measure_points(slots, evaluators, clusters[number], options.strided)
                : measure_points(slots, evaluators, sampler.batch(batch, std::min(size, options.points - batch * size)),
                                 options.strided);
    });
    Measurement measurement{function, formulas[0]->arguments == 2, false, {}};
    for (const auto &part : parts)
        for (std::size_t slot = 0; slot < 3; ++slot) measurement.levels[slot].take(part[slot]);
    return measurement;
}

// --------------------------------------------------------------------------------------------------- all inputs of s

// The defined points of some consecutive inputs with what judging results there needs.
struct Block {
    // The arrays stay in the second-level cache, and below the size at which the allocator maps pages for each.
    static constexpr std::size_t capacity = 1 << 12;
    std::vector<float> x, zero;    // zero stands for the second argument
    std::vector<double> value;     // by the filter
    std::vector<double> per_unit;  // 1 / unit in the last place of the rounded value
    std::vector<bool> denormal;

    void fill(std::uint64_t first, const Formula &formula) {
        x.clear(), value.clear(), per_unit.clear(), denormal.clear();
        constexpr double smallest = std::numeric_limits<float>::min(), largest = std::numeric_limits<float>::max();
        bool infinite = false, pole = false;
        for (std::uint64_t bits = first; bits < first + capacity; ++bits) {
            const float a = std::bit_cast<float>(static_cast<std::uint32_t>(bits));
            if (!std::isfinite(a)) continue;
            const double y = formula.fast(static_cast<double>(a));
            if (std::isnan(y)) continue;
            // An infinity of the filter is an overflow, which is judged, or a pole, which is not. A run of infinities
            // is of one kind.
            if (std::isinf(y) && !infinite) pole = !Evaluator<float>(formula)(a).defined;
            infinite = std::isinf(y);
            if (infinite && pole) continue;
            const double rounded = std::clamp(static_cast<double>(static_cast<float>(y)), -largest, largest);
            const double floor = reference::error_floor(formula, static_cast<double>(a));
            x.push_back(a);
            value.push_back(y);
            per_unit.push_back(1 / reference::unit_in_last_place<float>(std::fmax(std::fabs(rounded), floor)));
            denormal.push_back(std::fabs(rounded) < smallest);
        }
        zero.assign(x.size(), 0);
    }
};

// The errors of results in ulp, by the rules of Exact::error.
void judge(const Block &block, const std::vector<float> &result, std::vector<double> &error) {
    constexpr double infinity = std::numeric_limits<double>::infinity(), end = 0x1p128;
    const std::size_t n = block.x.size();
    error.resize(n);
    for (std::size_t i = 0; i < n; ++i) {
        const double got = static_cast<double>(result[i]), value = block.value[i];
        const bool infinite = std::fabs(got) > 0x1.fffffep127;
        const double clipped = infinite ? std::copysign(end, got) : got;
        const double target = infinite && std::fabs(value) > end ? std::copysign(end, value) : value;
        const double ulp = std::fabs(clipped - target) * block.per_unit[i];
        error[i] = ulp >= 0 ? ulp : infinity;
    }
}

std::size_t place_of_largest(const std::vector<double> &error) {
    std::size_t place = 0;
    double most = -1;
    for (std::size_t i = 0; i < error.size(); ++i)
        if (error[i] > most) most = error[i], place = i;
    return place;
}

double sum(const std::vector<double> &x) {
    double parts[4] = {};
    std::size_t i = 0;
    for (; i + 4 <= x.size(); i += 4)
        for (std::size_t j = 0; j < 4; ++j) parts[j] += x[i + j];
    for (; i < x.size(); ++i) parts[0] += x[i];
    return parts[0] + parts[1] + (parts[2] + parts[3]);
}

}  // namespace

void Tally::take(const Tally &other) {
    ulp.take(other.ulp);
    relative.take(other.relative);
    sum += other.sum;
    points += other.points;
    unlike += other.unlike;
    unlike_at.take(other.unlike_at);
}

std::vector<std::array<double, 2>> read_points(const std::string &file) {
    std::vector<std::array<double, 2>> points;
    std::ifstream in(file);
    for (std::string line; std::getline(in, line);) {
        const char *text = line.c_str();
        std::array<double, 2> point = {};
        std::size_t count = 0;
        for (;; ++count) {
            while (*text == ' ' || *text == '\t' || *text == '\r') ++text;
            if (*text == '\0' || *text == '#') break;
            char *end = nullptr;
            const double value = std::strtod(text, &end);
            if (end == text || count == point.size()) throw std::runtime_error(file + ": no point: " + line);
            point[count] = value;
            text = end;
        }
        if (count != 0) points.push_back(point);
    }
    return points;
}

std::string worst_file(const Function &function) {
    return std::string(function.name) + "_" + function.type + ".txt";
}

std::string_view obstacle(const Library &library, const Function &function, bool exhaustive) {
    const Entry *entry = find_entry(function.type, function.name);
    if (reference::formulas_of(*entry).empty()) return "no reference formula";
    for (const void *kernel : library.kernels(*entry))
        if (kernel == nullptr) return "the library has no kernel in a slot";
    if (exhaustive) {
        if (function.type != 's' || entry->shape != Shape::unary)
            return "only single-precision functions of one argument and one result have all inputs measured";
        if (reference::formulas_of(*entry)[0]->fast == nullptr) return "no double-precision formula for the filter";
    }
    return {};
}

Measurement sample(const Library &library, const Function &function, const Options &options, const Progress &progress) {
    return function.type == 's' ? sample_type<float>(library, function, options, progress)
                                : sample_type<double>(library, function, options, progress);
}

Measurement exhaust(const Library &library, const Function &function, const Options &options,
                    const Progress &progress) {
    const Slots slots(library, function);
    const Formula &formula = *reference::formulas_of(*slots.unit)[0];
    constexpr std::uint64_t chunk = 1 << 20, chunks = (std::uint64_t{1} << 32) / chunk;
    constexpr std::uint64_t checks = 10;  // of the filter in a chunk, about one point in 100 000

    struct Part {
        std::array<Tally, 3> levels;
        double filter_error = 0;
        std::uint64_t filter_points = 0;
    };
    std::vector<Part> parts(chunks);
    share(chunks, options.threads, progress, [&](std::uint64_t number) {
        library.silence_errors();
        Part &part = parts[number];
        Evaluator<float> evaluate(formula);
        Block block;
        std::vector<double> error;
        std::array<std::array<Worst, 2>, 3> candidates;  // by ulp and by relative error, as the filter sees them
        for (std::uint64_t first = number * chunk; first < (number + 1) * chunk; first += Block::capacity) {
            block.fill(first, formula);
            if (block.x.empty()) continue;
            for (std::size_t slot = 0; slot < 3; ++slot) {
                if (slots.same[slot] != slot) continue;
                Tally &level = part.levels[slot];
                const auto results = reference::run<float>(*slots.unit, slots.unit_kernels[slot], block.x, block.zero);
                judge(block, results[0], error);
                level.sum += sum(error);
                level.points += error.size();
                const std::size_t i = place_of_largest(error);
                candidates[slot][0].take({error[i], block.x[i], 0, results[0][i], 0});
                if (slot == slots.same[2]) {
                    for (std::size_t k = 0; k < error.size(); ++k)
                        error[k] = reference::relative_error<float>(
                            error[k], std::fabs(block.value[k]) * block.per_unit[k], block.denormal[k]);
                    const std::size_t j = place_of_largest(error);
                    candidates[slot][1].take({error[j], block.x[j], 0, results[0][j], 0});
                }
                if (options.strided && slots.strided_kernels[slot] != nullptr)
                    compare_bits<float>(
                        level, block.x, block.zero, results,
                        reference::run<float>(*slots.strided, slots.strided_kernels[slot], block.x, block.zero));
            }
        }
        for (std::size_t slot = 0; slot < 3; ++slot) {
            Tally &level = part.levels[slot];
            if (slots.same[slot] != slot) level = part.levels[slots.same[slot]];
            if (slots.same[slot] != slot || level.points == 0) continue;
            for (Worst worst : candidates[slot]) {
                if (worst.size < 0) continue;
                const Exact<float> exact = evaluate(static_cast<float>(worst.a));
                if (!exact.defined) continue;
                const reference::Error measured = exact.error(static_cast<float>(worst.result));
                worst.expected = static_cast<double>(exact.rounded());
                worst.size = measured.ulp;
                level.ulp.take(worst);
                worst.size = measured.relative;
                level.relative.take(worst);
            }
        }
        std::seed_seq sequence{options.seed & 0xFFFFFFFF, options.seed >> 32, number};
        std::mt19937_64 random(sequence);
        for (std::uint64_t i = 0; i < checks; ++i) {
            const float a = std::bit_cast<float>(static_cast<std::uint32_t>(number * chunk + random() % chunk));
            const Exact<float> exact = evaluate(a);
            if (!exact.defined) continue;
            ++part.filter_points;
            const double value = formula.fast(static_cast<double>(a));
            if (exact.overflow && std::fabs(value) >= 0x1.fffffefp127) continue;
            const double off = std::fabs((value - exact.nearest) / exact.unit - exact.rest);
            part.filter_error = std::fmax(part.filter_error, off >= 0 ? off : Exact<float>::infinity);
        }
    });
    Measurement measurement{function, false, true, {}};
    for (const Part &part : parts) {
        for (std::size_t slot = 0; slot < 3; ++slot) measurement.levels[slot].take(part.levels[slot]);
        measurement.filter_error = std::fmax(measurement.filter_error, part.filter_error);
        measurement.filter_points += part.filter_points;
    }
    return measurement;
}

bool within_bound(const Measurement &measurement, Level level) {
    const Tally &measured = measurement.levels[static_cast<std::size_t>(level)];
    const Function &bound = measurement.function;
    if (measured.points == 0 || measured.unlike != 0) return false;
    if (level == Level::EP) return measured.relative.size <= std::exp2(-bound.ep_bits);
    return measured.ulp.size <= (level == Level::LA ? bound.la_ulp : bound.ha_ulp);
}

}  // namespace qorl::accuracy
