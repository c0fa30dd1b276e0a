#include "bench/errors.hpp"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <random>
#include <vector>

#include "tools/reference/error.hpp"
#include "tools/reference/formula.hpp"
#include "tools/reference/points.hpp"

namespace qorl::bench {
namespace {

constexpr double hopeless = 1e30;

bool inside(double x, Range range) {
    return x >= range.low && x <= range.high;
}

}  // namespace

struct ErrorProbe::Points {
    virtual ~Points() = default;
    virtual double largest_error(const Contestant &contestant) const = 0;
};

namespace {

template <class T, class Base>
struct PointsOf final : Base {
    std::vector<T> a, b;
    double scalar;
    std::vector<std::vector<reference::Exact<T>>> exact;  // for each result

    PointsOf(const Subject &subject, const Entry &entry, int random_points) : scalar(subject.b.low) {
        const bool by_value = entry.shape == Shape::array_scalar || entry.shape == Shape::unary_param;
        const bool two_arrays = entry.shape == Shape::binary;
        std::mt19937_64 bits(7);
        std::uniform_real_distribution<double> first(subject.a.low, subject.a.high);
        std::uniform_real_distribution<double> second(subject.b.low, subject.b.high);
        const auto draw = [&] {
            a.push_back(
                std::clamp(static_cast<T>(first(bits)), static_cast<T>(subject.a.low), static_cast<T>(subject.a.high)));
            b.push_back(static_cast<T>(by_value ? scalar : second(bits)));
        };
        for (int i = 0; i < random_points; ++i) draw();
        for (const reference::Points<T> &cluster : reference::Sampler<T>(entry, 7).clusters())
            for (std::size_t i = 0; i < cluster.a.size(); ++i) {
                if (!inside(static_cast<double>(cluster.a[i]), subject.a)) continue;
                if (two_arrays && !inside(static_cast<double>(cluster.b[i]), subject.b)) continue;
                a.push_back(cluster.a[i]);
                b.push_back(two_arrays ? cluster.b[i] : static_cast<T>(scalar));
            }
        while (a.size() % 8 != 0) draw();  // as the peers ask

        for (const reference::Formula *formula : reference::formulas_of(entry)) {
            reference::Evaluator<T> evaluate(*formula);
            auto &values = exact.emplace_back();
            for (std::size_t i = 0; i < a.size(); ++i) values.push_back(evaluate(a[i], b[i]));
        }
    }

    double largest_error(const Contestant &contestant) const override {
        if (exact.empty()) return std::numeric_limits<double>::quiet_NaN();
        std::vector<T> results[2];
        for (std::vector<T> &result : results) result.resize(a.size());
        const Work work = {
            static_cast<std::int32_t>(a.size()), 0, a.data(), b.data(), scalar, results[0].data(), results[1].data()};
        contestant.run(contestant.target, work, 1);
        double largest = 0;
        for (std::size_t r = 0; r < exact.size(); ++r)
            for (std::size_t i = 0; i < a.size(); ++i)
                if (exact[r][i].defined) largest = std::max(largest, exact[r][i].error(results[r][i]).ulp);
        return std::min(largest, hopeless);
    }
};

}  // namespace

ErrorProbe::ErrorProbe(const Subject &subject, const Entry &entry, int random_points) {
    if (entry.type == 's')
        points_ = std::make_unique<PointsOf<float, Points>>(subject, entry, random_points);
    else
        points_ = std::make_unique<PointsOf<double, Points>>(subject, entry, random_points);
}

ErrorProbe::~ErrorProbe() = default;

double ErrorProbe::largest_error(const Contestant &contestant) const {
    return points_->largest_error(contestant);
}

}  // namespace qorl::bench
