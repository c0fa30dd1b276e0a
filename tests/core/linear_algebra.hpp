// Matrices for the tests of the linear algebra names, and products by their definition.
#ifndef TESTS_CORE_LINEAR_ALGEBRA_HPP
#define TESTS_CORE_LINEAR_ALGEBRA_HPP

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "qorl/core.h"

namespace qorl::test {

// Stored by columns, with two rows more than it needs: a routine that mistakes the order of its arguments reads or
// writes the NaN there.
template <typename Real>
struct Matrix {
    int32_t rows, columns, ld;
    std::vector<Real> elements;

    Matrix(int32_t row_count, int32_t column_count)
        : rows(row_count),
          columns(column_count),
          ld(row_count + 2),
          elements(static_cast<size_t>(ld) * static_cast<size_t>(column_count),
                   std::numeric_limits<Real>::quiet_NaN()) {
        fill([](int32_t, int32_t) { return Real{0}; });
    }
    Real *data() { return elements.data(); }
    const Real *data() const { return elements.data(); }
    Real &operator()(int32_t i, int32_t j) { return elements[static_cast<size_t>(i + int64_t{j} * ld)]; }
    Real operator()(int32_t i, int32_t j) const { return elements[static_cast<size_t>(i + int64_t{j} * ld)]; }
    template <typename Rule>
    Matrix &fill(Rule rule) {
        for (int32_t j = 0; j < columns; ++j) {
            for (int32_t i = 0; i < rows; ++i) (*this)(i, j) = static_cast<Real>(rule(i, j));
        }
        return *this;
    }
    Matrix transposed() const {
        return Matrix(columns, rows).fill([&](int32_t i, int32_t j) { return (*this)(j, i); });
    }
    // The upper or lower triangle with the diagonal; `elsewhere` in its other elements.
    Matrix triangle(char uplo, Real elsewhere) const {
        return Matrix(rows, columns).fill([&](int32_t i, int32_t j) {
            return (uplo == 'U' ? i <= j : i >= j) ? (*this)(i, j) : elsewhere;
        });
    }
};

template <typename Real>
constexpr Real nan_of = std::numeric_limits<Real>::quiet_NaN();

template <typename Real>
Matrix<Real> random_matrix(int32_t rows, int32_t columns, unsigned seed = 1) {
    std::mt19937 generator(seed);
    return Matrix<Real>(rows, columns).fill([&](int32_t, int32_t) {
        return std::uniform_real_distribution<double>(-1, 1)(generator);
    });
}

// A positive definite matrix: symmetric with a heavy diagonal.
template <typename Real>
Matrix<Real> definite_matrix(int32_t n) {
    return Matrix<Real>(n, n).fill(
        [&](int32_t i, int32_t j) { return i == j ? n : std::cos(i * j) + std::cos(i + j); });
}

template <typename Real>
Matrix<Real> product(const Matrix<Real> &a, const Matrix<Real> &b) {
    return Matrix<Real>(a.rows, b.columns).fill([&](int32_t i, int32_t j) {
        double sum = 0;
        for (int32_t k = 0; k < a.columns; ++k) sum += double{a(i, k)} * double{b(k, j)};
        return sum;
    });
}

template <typename Real>
Matrix<Real> sum(double alpha, const Matrix<Real> &a, double beta, const Matrix<Real> &b) {
    return Matrix<Real>(a.rows, a.columns).fill([&](int32_t i, int32_t j) {
        return alpha * double{a(i, j)} + beta * double{b(i, j)};
    });
}

// Equal within the rounding of sums of `terms` products of numbers of about 1; elements that are NaN in the expected
// matrix must have been left alone.
template <typename Real>
void expect_near(const Matrix<Real> &actual, const Matrix<Real> &expected, double terms) {
    const double bound = 8 * terms * double{std::numeric_limits<Real>::epsilon()};
    for (int32_t j = 0; j < expected.columns; ++j) {
        for (int32_t i = 0; i < expected.rows; ++i) {
            if (std::isnan(expected(i, j))) {
                ASSERT_TRUE(std::isnan(actual(i, j))) << i << ' ' << j;
            } else {
                ASSERT_NEAR(double{actual(i, j)}, double{expected(i, j)}, bound) << i << ' ' << j;
            }
        }
        for (int32_t i = actual.rows; i < actual.ld; ++i) {
            ASSERT_TRUE(std::isnan(actual.elements[static_cast<size_t>(i + int64_t{j} * actual.ld)]));
        }
    }
}

// The names of the library by type.
template <typename Real>
struct Names;
template <>
struct Names<double> {
    static constexpr auto gemm = {qorl_core_dgemm, qorl_core_xdgemm};
    static constexpr auto symm = {qorl_core_dsymm, qorl_core_xdsymm};
    static constexpr auto syr = {qorl_core_dsyr, qorl_core_xdsyr};
    static constexpr auto syrk = {qorl_core_dsyrk, qorl_core_xdsyrk};
    static constexpr auto trmm = {qorl_blas4zet_dtrmm, qorl_blas_xdtrmm_4zet};
    static constexpr auto ptrmm = qorl_blas4zet_dptrmm;
    static constexpr auto gemv = qorl_core_dgemv;
    static constexpr auto potrf = qorl_core_dpotrf;
    static constexpr auto potri = qorl_core_dpotri;
    static constexpr auto trtri = qorl_core_dtrtri;
    static constexpr auto syev = qorl_core_dsyev;
    static constexpr auto spevd = qorl_core_dspevd;
};
template <>
struct Names<float> {
    static constexpr auto gemm = {qorl_core_sgemm, qorl_core_xsgemm};
    static constexpr auto symm = {qorl_core_ssymm, qorl_core_xssymm};
    static constexpr auto syr = {qorl_core_ssyr, qorl_core_xssyr};
    static constexpr auto syrk = {qorl_core_ssyrk, qorl_core_xssyrk};
    static constexpr auto trmm = {qorl_blas4zet_strmm, qorl_blas_xstrmm_4zet};
    static constexpr auto ptrmm = qorl_blas4zet_sptrmm;
    static constexpr auto gemv = qorl_core_sgemv;
    static constexpr auto potrf = qorl_core_spotrf;
    static constexpr auto potri = qorl_core_spotri;
    static constexpr auto trtri = qorl_core_strtri;
    static constexpr auto syev = qorl_core_ssyev;
    static constexpr auto spevd = qorl_core_sspevd;
};

using Reals = testing::Types<double, float>;

}  // namespace qorl::test

#endif
