// What the table programs share: numbers rounded from 200 bits, and arrays printed as C++.
//
// A program prints one header of kernels/tables to standard output, byte for byte as it is committed; its name is that
// of the header. A test runs every program and compares.
#ifndef QORL_TOOLS_TABLES_WRITER_HPP
#define QORL_TOOLS_TABLES_WRITER_HPP

#include <mpfr.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

namespace qorl::tables_tool {

// An MPFR number of 200 bits with just the operations that tables need.
class Real {
  public:
    static constexpr mpfr_prec_t precision = 200;

    Real() { mpfr_init2(x_, precision); }
    Real(double value) : Real() { mpfr_set_d(x_, value, MPFR_RNDN); }
    Real(const Real &other) : Real() { mpfr_set(x_, other.x_, MPFR_RNDN); }
    Real &operator=(const Real &other) {
        mpfr_set(x_, other.x_, MPFR_RNDN);
        return *this;
    }
    ~Real() { mpfr_clear(x_); }

    mpfr_ptr get() { return x_; }
    mpfr_srcptr get() const { return x_; }
    double to_double() const { return mpfr_get_d(x_, MPFR_RNDN); }
    float to_float() const { return mpfr_get_flt(x_, MPFR_RNDN); }

    friend Real operator+(const Real &a, const Real &b) { return apply(mpfr_add, a, b); }
    friend Real operator-(const Real &a, const Real &b) { return apply(mpfr_sub, a, b); }
    friend Real operator*(const Real &a, const Real &b) { return apply(mpfr_mul, a, b); }
    friend Real operator/(const Real &a, const Real &b) { return apply(mpfr_div, a, b); }
    friend Real exp(const Real &a) { return apply(mpfr_exp, a); }
    friend Real exp2(const Real &a) { return apply(mpfr_exp2, a); }
    friend Real log(const Real &a) { return apply(mpfr_log, a); }
    friend Real sinh(const Real &a) { return apply(mpfr_sinh, a); }
    friend Real cosh(const Real &a) { return apply(mpfr_cosh, a); }
    friend Real tanh(const Real &a) { return apply(mpfr_tanh, a); }
    friend Real sqrt(const Real &a) { return apply(mpfr_sqrt, a); }

    // The value with the mantissa cut to `bits` bits, to nearest.
    Real rounded_to(int bits) const {
        Real r = *this;
        mpfr_prec_round(r.x_, bits, MPFR_RNDN);
        mpfr_prec_round(r.x_, precision, MPFR_RNDN);
        return r;
    }

  private:
    template <class F>
    static Real apply(F f, const Real &a, const Real &b) {
        Real r;
        f(r.x_, a.x_, b.x_, MPFR_RNDN);
        return r;
    }
    template <class F>
    static Real apply(F f, const Real &a) {
        Real r;
        f(r.x_, a.x_, MPFR_RNDN);
        return r;
    }

    mpfr_t x_;
};

inline Real ln2() {
    return log(Real(2.0));
}

inline std::string hex(double x) {
    char text[64];
    std::snprintf(text, sizeof text, "%a", x);
    return text;
}
inline std::string hex(float x) {
    return hex(static_cast<double>(x)) + "f";
}
inline const char *type_name(double) {
    return "double";
}
inline const char *type_name(float) {
    return "float";
}

inline void open_header(const char *name, const char *title) {
    std::string guard = "QORL_KERNELS_TABLES_";
    for (const char *p = name; *p != '\0'; ++p)
        guard += *p >= 'a' && *p <= 'z' ? static_cast<char>(*p - 'a' + 'A') : *p;
    std::printf(
        "// %s\n//\n// Written by tools/tables/%s.cpp: every number from its rule in 200 bits, rounded once. Do not "
        "edit.\n",
        title, name);
    std::printf("#ifndef %s_HPP\n#define %s_HPP\n\n#include <array>\n\nnamespace qorl::tables {\n", guard.c_str(),
                guard.c_str());
}
inline void close_header() {
    std::printf("\n}  // namespace qorl::tables\n\n#endif\n");
}

template <class T>
void constant(const char *name, T value, const char *rule) {
    std::printf("inline constexpr %s %s = %s;  // %s\n", type_name(value), name, hex(value).c_str(), rule);
}

template <class T>
void comment_and_values(const std::vector<T> &values) {
    double sum = 0;
    for (const T value : values) sum += static_cast<double>(value);
    std::printf("// %zu numbers, their sum in order %a.\n", values.size(), sum);
}

// A table that is read by address, aligned to a cache line; `row` numbers stand on a line.
template <class T>
void table(const char *name, const std::vector<T> &values, const char *rule, std::size_t row) {
    std::printf("\n// %s\n", rule);
    comment_and_values(values);
    std::printf("alignas(64) inline constexpr %s %s[%zu] = {", type_name(values[0]), name, values.size());
    for (std::size_t i = 0; i < values.size(); ++i)
        std::printf("%s%s,", i % row == 0 ? "\n    " : " ", hex(values[i]).c_str());
    std::printf("\n};\n");
}

template <class T>
void coefficients(const char *name, const std::vector<T> &values) {
    std::printf("inline constexpr std::array<%s, %zu> %s = {", type_name(values[0]), values.size(), name);
    for (std::size_t i = 0; i < values.size(); ++i) std::printf("\n    %s,", hex(values[i]).c_str());
    std::printf("\n};\n");
}

// The largest |p(x) - f(x)|, divided by |f(x)| where `relative`, on 4001 Chebyshev points of [low, high].
template <class T, class F>
double largest_error(const std::vector<T> &c, F f, const Real &low, const Real &high, bool relative) {
    constexpr int points = 4001;
    double largest = 0;
    for (int i = 0; i < points; ++i) {
        const double c_i = std::cos(3.141592653589793 * (i + 0.5) / points);
        const Real x = (low + high) * Real(0.5) + (high - low) * Real(0.5 * c_i);
        Real p(static_cast<double>(c.back()));
        for (std::size_t k = c.size() - 1; k-- > 0;) p = p * x + Real(static_cast<double>(c[k]));
        const Real exact = f(x);
        Real error = p - exact;
        if (relative) error = error / exact;
        largest = std::max(largest, std::fabs(error.to_double()));
    }
    return largest;
}

enum class Error { absolute, relative };

// A fitted polynomial, lowest order first: its function, interval and error stand in its comment. `leading` are exact
// coefficients that the kernel supplies itself and that are not printed. The coefficients come from the Sollya script
// of the same name; the error is measured here, each time the header is written.
template <class T, class F>
void fitted(const char *name, const std::vector<T> &leading, const std::vector<T> &c, const char *function, F f,
            const Real &low, const Real &high, Error kind) {
    const bool relative = kind == Error::relative;
    std::vector<T> whole = leading;
    whole.insert(whole.end(), c.begin(), c.end());
    const double error = largest_error(whole, f, low, high, relative);
    std::printf("\n// %s on [%.9g, %.9g], %s error 2^%.2f.\n", function, low.to_double(), high.to_double(),
                relative ? "relative" : "absolute", std::log2(error));
    coefficients(name, c);
}

// Coefficients of a polynomial, lowest order first.
template <class T>
void polynomial(const char *name, const std::vector<T> &values, const char *rule) {
    std::printf("\n// %s\n", rule);
    coefficients(name, values);
}

}  // namespace qorl::tables_tool

#endif
