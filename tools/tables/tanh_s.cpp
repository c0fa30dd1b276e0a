#include <cstdlib>

#include "tools/tables/interpolation.hpp"
#include "tools/tables/writer.hpp"

using namespace qorl::tables_tool;

namespace {

constexpr int intervals = 8;

// Eight intervals of |x|: those of u = 1 + scale |x| that share the exponent and the leading `bits` bits of the
// fraction, the low three bits of which are the index into a row of eight.
struct Split {
    float scale;
    int bits;

    double bound(int i) const {  // where interval i begins
        const int m = 1 << bits;
        return (std::ldexp(1.0 + (i % m) / static_cast<double>(m), i / m) - 1) / static_cast<double>(scale);
    }
    std::size_t position(int i) const { return static_cast<std::size_t>((127 << bits) + i) % intervals; }
};

// p(x + by) by Horner's rule, in place.
void move(std::vector<Real> &p, const Real &by) {
    for (std::size_t k = 0; k + 1 < p.size(); ++k)
        for (std::size_t j = p.size() - 1; j-- > k;) p[j] = p[j] + by * p[j + 1];
}

double rounding_error(const Real &x) {
    return std::fabs((x - Real(static_cast<double>(x.to_float()))).to_double());
}

// centre, c0, c1, ...: tanh x = c0 + r (c1 + ...), r = x - centre. The centre is moved from the middle over floats
// within a tenth of the interval to where c0 and, with `exact_slope`, also c1 come closest to floats (the method of
// Gal's accurate tables).
std::vector<float> centred(double low, double high, int count, bool exact_slope) {
    const auto f = [](const Real &x) { return tanh(x); };
    const auto fit = interpolate(f, Real(low), Real(high), count);
    const float middle = static_cast<float>((low + high) / 2);
    const double reach = (high - low) / 2;
    float best = middle;
    double least = 1;
    for (int k = -4000; k <= 4000; ++k) {
        const float c = static_cast<float>((low + high) / 2 + k * (high - low) / 40000);
        Real c0(0), c1(0);
        for (std::size_t j = fit.size(); j-- > 0;) {
            c1 = c1 * Real(static_cast<double>(c)) + c0;
            c0 = c0 * Real(static_cast<double>(c)) + fit[j];
        }
        const double error = rounding_error(c0) + (exact_slope ? reach * rounding_error(c1) : 0.0);
        if (error < least) {
            least = error;
            best = c;
        }
    }
    auto p = fit;
    move(p, Real(static_cast<double>(best)));
    std::vector<float> row{best};
    for (const Real &a : p) row.push_back(a.to_float());
    return row;
}

// The first interval: centre and c0 are 0, c1 is 1, so that tanh x = x where x is tiny.
std::vector<float> about_zero(double high, int count) {
    const auto rest = [](const Real &x) { return (tanh(x) - x) / (x * x); };
    std::vector<float> row{0, 0, 1};
    for (const Real &a : interpolate(rest, Real(0), Real(high), count - 2)) row.push_back(a.to_float());
    return row;
}

// x (c0 + x (c1 + x c2)), and 1 at the last argument `end`, past which x is cut off.
std::vector<float> quotient(double low, double high, float end, bool last) {
    const auto over_x = [](const Real &x) { return tanh(x) / x; };
    const Real bound(static_cast<double>(end));
    const auto joined = [&](const Real &x) {  // bends to 1 at the end, where tanh is 2^-11.3 below
        const Real t = (x - Real(low)) / (bound - Real(low));
        return (tanh(x) + (Real(1) - tanh(bound)) * t * t) / x;
    };
    const auto c = last ? interpolate(joined, Real(low), bound, 3) : interpolate(over_x, Real(low), Real(high), 3);
    std::vector<float> row{c[0].to_float(), c[1].to_float(), c[2].to_float()};
    if (!last) return row;
    // The kernel's own operations are to give 1 at the end and no more before it: c2 takes the difference and, for the
    // last bits, c0 is moved.
    const auto value = [&](float x) { return x * std::fma(x, std::fma(x, row[2], row[1]), row[0]); };
    const auto ends_well = [&] {
        float x = end;
        if (value(x) != 1.0f) return false;
        for (int k = 0; k < 1000; ++k)
            if (value(x = std::nextafter(x, 0.0f)) > 1.0f) return false;
        return true;
    };
    row[2] += (1 - value(end)) / (end * end * end);
    const float c2 = row[2], unit = std::ldexp(1.0f, std::ilogb(c2) - 23);
    for (int moves = 0; !ends_well(); ++moves) {
        if (moves == 64) std::abort();
        row[0] = std::nextafter(row[0], 1.0f);
        for (int k = -64; k < 64 && !ends_well(); ++k) row[2] = c2 + static_cast<float>(k) * unit;
    }
    return row;
}

// log2 of the largest relative error of the rows, evaluated exactly; `centre` is 0 or 1 leading words ahead of c0.
double largest_error(const Split &split, const std::vector<std::vector<float>> &rows, bool has_centre, float end) {
    double largest = 0;
    for (int i = 0; i < intervals; ++i) {
        const auto &row = rows[static_cast<std::size_t>(i)];
        const double low = split.bound(i), high = std::min(split.bound(i + 1), static_cast<double>(end));
        for (int k = 1; k <= 400; ++k) {
            const Real x(low + (high - low) * k / 400);
            const Real r = has_centre ? x - Real(static_cast<double>(row[0])) : x;
            Real sum(0);
            for (std::size_t j = row.size(); j-- > (has_centre ? 1u : 0u);)
                sum = sum * r + Real(static_cast<double>(row[j]));
            if (!has_centre) sum = sum * x;
            const Real exact = tanh(x);
            largest = std::max(largest, std::fabs(((sum - exact) / exact).to_double()));
        }
    }
    return std::log2(largest);
}

// One array of eight for each word of the rows, at the positions that the index finds.
void print(const char *name, const Split &split, const std::vector<std::vector<float>> &rows, const char *rule,
           double error) {
    const std::size_t words = rows[0].size();
    std::printf("\n// %s Relative error 2^%.2f.\n", rule, error);
    std::printf("inline constexpr std::array<std::array<float, 8>, %zu> %s = {{", words, name);
    for (std::size_t w = 0; w < words; ++w) {
        std::vector<float> eight(intervals);
        for (int i = 0; i < intervals; ++i) eight[split.position(i)] = rows[static_cast<std::size_t>(i)][w];
        std::printf("\n    {");
        for (std::size_t i = 0; i < eight.size(); ++i)
            std::printf("%s%s", i == 0 ? "" : i == 4 ? ",\n     " : ", ", hex(eight[i]).c_str());
        std::printf("},");
    }
    std::printf("\n}};\n");
}

std::vector<std::vector<float>> centred_rows(const Split &split, int count, bool exact_slope) {
    std::vector<std::vector<float>> rows{about_zero(split.bound(1), count)};
    for (int i = 1; i < intervals; ++i) rows.push_back(centred(split.bound(i), split.bound(i + 1), count, exact_slope));
    return rows;
}

}  // namespace

int main() {
    constexpr Split fine{1.640625f, 1}, coarse{0.703125f, 2};
    constexpr float fine_end = 9.125f, coarse_end = 4.25f;  // 1 + scale end is below 16, and below 4

    open_header("tanh_s", "Intervals of the single-precision hyperbolic tangent and their polynomials.");
    std::printf("\n");
    constant("tanh_scale", fine.scale, "HA, LA: 1 + scale |x| names the interval by its exponent and one bit");
    constant("tanh_end", fine_end, "beyond it the result is 1");
    constant("tanh_ep_scale", coarse.scale, "EP: by its exponent and two bits");
    constant("tanh_ep_end", coarse_end, "beyond it the result is 1");
    const auto ha = centred_rows(fine, 9, true), la = centred_rows(fine, 7, false);
    print("tanh_ha_rows", fine, ha, "centre, c0 .. c8 of c0 + r (c1 + r (c2 + ...)); c0 and c1 are all but exact.",
          largest_error(fine, ha, true, fine_end));
    print("tanh_la_rows", fine, la, "centre, c0 .. c6 of c0 + r (c1 + r (c2 + ...)); c0 is all but exact.",
          largest_error(fine, la, true, fine_end));
    std::vector<std::vector<float>> ep;
    for (int i = 0; i < intervals; ++i)
        ep.push_back(quotient(coarse.bound(i), coarse.bound(i + 1), coarse_end, i == intervals - 1));
    print("tanh_ep_rows", coarse, ep, "c0 .. c2 of x (c0 + |x| (c1 + |x| c2)).",
          largest_error(coarse, ep, false, coarse_end));
    close_header();
}
