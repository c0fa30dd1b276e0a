// Powx bit for bit: each exponent with a function of its own against that function, everything else against Pow.
#include <bit>
#include <cmath>
#include <random>

#include <algorithm>

#include "tests/kernels/special_values.hpp"

namespace qorl::test {
namespace {

struct HandedOver {
    double exponent;
    const char *function, *levels;
};
constexpr HandedOver handed_over[] = {
    {-1, "Inv", "LA HA EP"},   {0.5, "Sqrt", "LA HA EP"}, {-0.5, "InvSqrt", "LA HA EP"}, {1.5, "Pow3o2", "LA HA EP"},
    {2.0 / 3, "Pow2o3", "EP"}, {1.0 / 3, "Cbrt", "EP"},   {-1.0 / 3, "InvCbrt", "EP"}};

template <class T>
struct Outcome {
    std::vector<T> together;           // results of one call
    std::vector<T> alone;              // and of a call for each element,
    std::vector<std::int32_t> status;  // with its status

    bool operator==(const Outcome &other) const {
        const auto same = [](const std::vector<T> &x, const std::vector<T> &y) {
            return std::equal(x.begin(), x.end(), y.begin(), y.end(), [](T a, T b) { return bits(a) == bits(b); });
        };
        return same(together, other.together) && same(alone, other.alone) && status == other.status;
    }
};

// The function `name` at x, with b as second argument or exponent of those that have one.
template <class T>
Outcome<T> outcome(const char *name, Level level, Form form, const std::vector<T> &x, T b) {
    const Entry *entry = find_entry(letter<T>, name);
    if (form == Form::strided) entry = strided_twin(*entry);
    const auto n = static_cast<std::int32_t>(x.size());
    const std::int32_t in = form == Form::unit ? 1 : 3, out = form == Form::unit ? 1 : 2;
    std::vector<T> a(x.size() * in), y(x.size() * out), bs(x.size() * in, b);
    for (std::size_t i = 0; i < x.size(); ++i) a[i * in] = x[i];
    Arguments<T> arguments{{a.data(), bs.data()}, {y.data()}, {in, in}, {out}, {b}};
    Outcome<T> o;
    call(*entry, level, n, arguments);
    for (std::size_t i = 0; i < x.size(); ++i) o.together.push_back(y[i * out]);
    for (std::size_t i = 0; i < x.size(); ++i) {
        arguments.in[0] = &a[i * in];
        _zetClearErrStatus();
        call(*entry, level, 1, arguments);
        o.alone.push_back(y[0]);
        o.status.push_back(_zetGetErrStatus());
    }
    return o;
}

// Numbers of every kind, with every exponent of the format, and ordinary ones.
template <class T>
std::vector<T> arguments_of_all_kinds() {
    using L = std::numeric_limits<T>;
    std::vector<T> x;
    for (const T a : {T(0), T(1), T(2), T(8), T(0.25), L::denorm_min(), L::min(), L::max(), L::infinity(),
                      L::quiet_NaN(), std::nextafter(T(1), T(2)), std::nextafter(T(1), T(0))}) {
        x.push_back(a);
        x.push_back(-a);
    }
    std::mt19937_64 random(20);
    for (int i = 0; i < 60; ++i) {
        x.push_back(from_bits<T>(static_cast<BitsOf<T>>(random())));
        x.push_back(static_cast<T>(random() % 1000000) / 65536);
    }
    return x;
}

class Powx : public testing::TestWithParam<Function> {
  protected:
    // f(x, b, level, form) for every level and form, with the error status on.
    template <class F>
    void for_each_form(F &&f) {
        in_fresh_thread([&] {
            _zetSetMode(0x100);
            for_type(GetParam(), [&]<class T>(T) {
                const std::vector<T> x = arguments_of_all_kinds<T>();
                for (const Level level : levels)
                    for (const Form form : {Form::unit, Form::strided}) f(x, level, form);
            });
        });
    }
};

std::string place(double b, Level level, Form form) {
    return testing::PrintToString(b) + ' ' + level_names[static_cast<int>(level)] +
           (form == Form::unit ? " unit" : " strided");
}

TEST_P(Powx, HandsOverToTheFunctionThatTheExponentNames) {
    for_each_form([]<class T>(const std::vector<T> &x, Level level, Form form) {
        for (const HandedOver &row : handed_over) {
            const T b = static_cast<T>(row.exponent);
            const char *const function = lists(row.levels, level_names[static_cast<int>(level)]) ? row.function : "Pow";
            EXPECT_EQ(outcome("Powx", level, form, x, b), outcome(function, level, form, x, b))
                << place(row.exponent, level, form);
        }
    });
}

TEST_P(Powx, IsPowForAllOtherExponents) {
    for_each_form([]<class T>(const std::vector<T> &x, Level level, Form form) {
        std::vector<T> others = {T(-0.0), 3, -2, T(2.5), T(-0.3), 100, T(inf), T(-inf), T(nan)};
        const auto add_neighbours = [&](T b) {
            others.push_back(std::nextafter(b, T(-inf)));
            others.push_back(std::nextafter(b, T(inf)));
        };
        for (const HandedOver &row : handed_over) add_neighbours(static_cast<T>(row.exponent));
        for (const T loop : {T(0), T(1), T(2)}) add_neighbours(loop);
        for (const T b : others)
            EXPECT_EQ(outcome("Powx", level, form, x, b), outcome("Pow", level, form, x, b))
                << place(static_cast<double>(b), level, form);
    });
}

TEST_P(Powx, FillsCopiesAndSquares) {
    for_each_form([]<class T>(std::vector<T> x, Level level, Form form) {
        const BitsOf<T> signalling = bits(std::numeric_limits<T>::infinity()) | 1;
        x.push_back(from_bits<T>(signalling));
        const Outcome<T> one = outcome("Powx", level, form, x, T(0)), copy = outcome("Powx", level, form, x, T(1)),
                         square = outcome("Powx", level, form, x, T(2));
        for (std::size_t i = 0; i < x.size(); ++i) {
            EXPECT_EQ(one.together[i], 1) << x[i];
            EXPECT_EQ(bits(copy.together[i]), bits(x[i])) << x[i];
            if (std::isnan(x[i]))
                EXPECT_TRUE(std::isnan(square.together[i]));
            else
                EXPECT_EQ(square.together[i], x[i] * x[i]) << x[i];
            EXPECT_EQ(one.status[i] | copy.status[i] | square.status[i], 0) << x[i];
        }
    });
}

INSTANTIATE_TEST_SUITE_P(Landed, Powx, testing::ValuesIn(landed("Powx")), case_name);

}  // namespace
}  // namespace qorl::test
