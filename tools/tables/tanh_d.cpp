#include "tools/tables/interpolation.hpp"
#include "tools/tables/writer.hpp"

using namespace qorl::tables_tool;

namespace {

constexpr int per_octave = 32;            // rows in an octave of 1 + |x|
constexpr double last_centre = 19.5;      // tanh rounds to 1 from 19.06 on
constexpr double small_centre = 0.34375;  // up to here the two-word rows hold tanh(x) - x

// The number whose logarithm of base two is, between powers of two linearly, i / 32.
double grid(int i) {
    return std::ldexp(1.0 + (i % per_octave) / static_cast<double>(per_octave), i / per_octave);
}

struct Row {
    double centre, low, high;  // |x| - centre in [low, high]
};
std::vector<Row> rows() {
    std::vector<Row> all;
    for (int i = 0; grid(i) - 1 <= last_centre; ++i) {
        const double below = i == 0 ? grid(0) - (grid(1) - grid(0)) : grid(i - 1);
        all.push_back({grid(i) - 1, (below - grid(i)) / 2, (grid(i + 1) - grid(i)) / 2});
    }
    return all;
}

// c1 .. c_degree of r (c1 + c2 r + ...) = f(r) on the row. About zero f is odd: only odd powers, `first` the lowest.
template <class F>
std::vector<Real> slopes(F f, const Row &row, int degree, int first) {
    if (row.centre > 0) {
        return interpolate([&](const Real &r) { return f(r) / r; }, Real(row.low), Real(row.high), degree);
    }
    const int count = (degree - first) / 2 + 1;
    const auto in_square = interpolate(
        [&](const Real &square) {
            const Real r = sqrt(square);
            Real power = r;
            for (int k = 1; k < first; ++k) power = power * r;
            return f(r) / power;
        },
        Real(0), Real(row.high) * Real(row.high), count);
    std::vector<Real> c(static_cast<std::size_t>(degree), Real(0));
    for (int k = 0; k < count; ++k)
        c[static_cast<std::size_t>(first + 2 * k - 1)] = in_square[static_cast<std::size_t>(k)];
    return c;
}

// log2 of the largest |sum - f| / tanh on the rows, the stored words taken as they are.
class Largest {
  public:
    template <class F>
    void add(F f, const Row &row, const std::vector<double> &c, double constant) {
        constexpr int points = 64;
        for (int i = 0; i <= points; ++i) {
            const Real r(row.low + (row.high - row.low) * i / points);
            const Real x = Real(row.centre) + r;
            if (!(x.to_double() > 0)) continue;
            Real sum(0);
            for (std::size_t k = c.size(); k-- > 0;) sum = (sum + Real(c[k])) * r;
            const Real error = (sum + Real(constant) - f(r)) / tanh(x);
            largest_ = std::max(largest_, std::fabs(error.to_double()));
        }
    }
    std::string text() const {
        char buffer[32];
        std::snprintf(buffer, sizeof buffer, "2^%.2f", std::log2(largest_));
        return buffer;
    }

  private:
    double largest_ = 0;
};

std::vector<double> rounded(const std::vector<Real> &c) {
    std::vector<double> r;
    for (const Real &a : c) r.push_back(a.to_double());
    return r;
}

// base, rest, c1 .. c8.
void two_words() {
    std::vector<double> t;
    Largest error;
    for (const Row &row : rows()) {
        const bool small = row.centre <= small_centre, last = row.centre == last_centre;
        const Real c(row.centre), value = tanh(c);
        const double base = small ? 0.0 : value.to_double();
        const double rest = small ? (value - c).to_double() : (value - Real(base)).to_double();
        // what the row adds to its base, or to |x|, beyond `rest`
        const auto f = [&](const Real &r) { return small ? tanh(c + r) - value - r : tanh(c + r) - value; };
        const auto slope = last ? std::vector<double>(8, 0.0) : rounded(slopes(f, row, 8, 3));
        if (!last) error.add(f, row, slope, 0);
        t.push_back(base);
        t.push_back(last ? 0.0 : rest);
        t.insert(t.end(), slope.begin(), slope.end());
    }
    table("tanh_two_word_rows", t,
          ("Rows for 1 + |x| = 2^e (1 + m/32), ten words each: base, rest, c1 .. c8. For centres up to " +
           std::to_string(small_centre) +
           " tanh x =\n// |x| + rest + r (c1 + c2 r + ...), then base + rest + r (...); the last row is 1. Relative "
           "error " +
           error.text() + ".")
              .c_str(),
          5);
}

// value, c1 .. c7.
void one_word() {
    std::vector<double> t;
    Largest error;
    for (const Row &row : rows()) {
        const bool last = row.centre == last_centre;
        const Real c(row.centre), value = tanh(c);
        const auto f = [&](const Real &r) { return tanh(c + r) - value; };
        auto slope = last ? std::vector<double>(7, 0.0) : rounded(slopes(f, row, 7, 1));
        if (row.centre == 0) slope[0] = 1;  // tiny arguments are their own results
        if (!last) error.add(f, row, slope, 0);
        t.push_back(last ? 1.0 : value.to_double());
        t.insert(t.end(), slope.begin(), slope.end());
    }
    table(
        "tanh_one_word_rows", t,
        ("Rows for 1 + |x| = 2^e (1 + m/32), eight words each: tanh x = t + r (c1 + c2 r + ... + c7 r^6). The last row "
         "is 1.\n// Relative error before t is rounded " +
         error.text() + ".")
            .c_str(),
        4);
}

}  // namespace

int main() {
    open_header("tanh_d", "Intervals of the double-precision hyperbolic tangent and their polynomials.");
    std::printf("\n");
    constant("tanh_last_centre", last_centre, "beyond it the result is 1");
    constant("tanh_small_bound", 1 + small_centre + 1.0 / (2 * per_octave), "1 + |x| below it: a row on the base |x|");
    two_words();
    one_word();
    close_header();
}
