// One numeric check per BLAS and LAPACK name: sizes, scalars and strides all differ, so that arguments in a wrong place
// give a wrong result, and what a routine must not read or write holds NaN.
#include "linear_algebra.hpp"

namespace qorl::test {
namespace {

template <typename Real>
struct Blas : testing::Test {};
TYPED_TEST_SUITE(Blas, Reals);

constexpr int32_t m = 7, n = 5, k = 11;

TYPED_TEST(Blas, GemmMultiplies) {
    using Real = TypeParam;
    const Real alpha = Real(1.5), beta = Real(-0.5);
    const auto a = random_matrix<Real>(m, k, 1), b = random_matrix<Real>(k, n, 2), c = random_matrix<Real>(m, n, 3);
    const auto at = a.transposed(), bt = b.transposed();
    const auto expected = sum(double{alpha}, product(a, b), double{beta}, c);
    for (const auto gemm : Names<Real>::gemm) {
        auto plain = c, half = c, turned = c;
        gemm("N", "N", &m, &n, &k, &alpha, a.data(), &a.ld, b.data(), &b.ld, &beta, plain.data(), &plain.ld);
        gemm("N", "T", &m, &n, &k, &alpha, a.data(), &a.ld, bt.data(), &bt.ld, &beta, half.data(), &half.ld);
        gemm("t", "T", &m, &n, &k, &alpha, at.data(), &at.ld, bt.data(), &bt.ld, &beta, turned.data(), &turned.ld);
        expect_near(plain, expected, k);
        expect_near(half, expected, k);
        expect_near(turned, expected, k);
    }
}

TYPED_TEST(Blas, GemvMultiplies) {
    using Real = TypeParam;
    const Real alpha = Real(1.5), beta = Real(-0.5);
    // The vectors are first rows of matrices, so that their steps are not 1, and differ.
    const auto a = random_matrix<Real>(m, n, 1), x = random_matrix<Real>(2, m, 2);
    auto y = random_matrix<Real>(1, n, 3);
    auto expected = y;
    for (int32_t j = 0; j < n; ++j) {
        double dot = 0;
        for (int32_t i = 0; i < m; ++i) dot += double{a(i, j)} * double{x(0, i)};
        expected(0, j) = Real(double{alpha} * dot + double{beta} * double{y(0, j)});
    }
    Names<Real>::gemv("T", &m, &n, &alpha, a.data(), &a.ld, x.data(), &x.ld, &beta, y.data(), &y.ld);
    expect_near(y, expected, m);
}

TYPED_TEST(Blas, SymmReadsOneTriangle) {
    using Real = TypeParam;
    const Real alpha = Real(1.5), beta = Real(-0.5);
    const auto b = random_matrix<Real>(m, n, 2), c = random_matrix<Real>(m, n, 3);
    for (const bool left : {true, false}) {
        for (const char *uplo : {"U", "L"}) {
            const auto a = definite_matrix<Real>(left ? m : n);
            const auto triangle = a.triangle(*uplo, nan_of<Real>);
            const auto expected = sum(double{alpha}, left ? product(a, b) : product(b, a), double{beta}, c);
            for (const auto symm : Names<Real>::symm) {
                auto actual = c;
                symm(left ? "L" : "R", uplo, &m, &n, &alpha, triangle.data(), &triangle.ld, b.data(), &b.ld, &beta,
                     actual.data(), &actual.ld);
                expect_near(actual, expected, m * m);
            }
        }
    }
}

TYPED_TEST(Blas, SyrAndSyrkUpdateOneTriangle) {
    using Real = TypeParam;
    const Real alpha = Real(1.5), beta = Real(-0.5);
    const auto a = random_matrix<Real>(n, k), at = a.transposed(), column = random_matrix<Real>(n, 1);
    const auto c = definite_matrix<Real>(n);
    for (const char *uplo : {"U", "L"}) {
        const auto start = c.triangle(*uplo, nan_of<Real>);
        const auto rank_k = sum(double{alpha}, product(a, at), double{beta}, start);
        for (const auto syrk : Names<Real>::syrk) {
            auto plain = start, turned = start;
            syrk(uplo, "N", &n, &k, &alpha, a.data(), &a.ld, &beta, plain.data(), &plain.ld);
            syrk(uplo, "T", &n, &k, &alpha, at.data(), &at.ld, &beta, turned.data(), &turned.ld);
            expect_near(plain, rank_k, k);
            expect_near(turned, rank_k, k);
        }
        // The vector is a row of a matrix, so that its step is not 1.
        const auto row = column.transposed();
        const auto rank_one = sum(double{alpha}, product(column, row), 1, start);
        for (const auto syr : Names<Real>::syr) {
            auto actual = start;
            syr(uplo, &n, &alpha, row.data(), &row.ld, actual.data(), &actual.ld);
            expect_near(actual, rank_one, n);
        }
    }
}

TYPED_TEST(Blas, PotrfFactorsAndPotriInverts) {
    using Real = TypeParam;
    const auto a = definite_matrix<Real>(n);
    const auto identity = Matrix<Real>(n, n).fill([](int32_t i, int32_t j) { return i == j; });
    for (const char *uplo : {"U", "L"}) {
        auto factor = a.triangle(*uplo, nan_of<Real>);
        int32_t info = -1;
        Names<Real>::potrf(uplo, &n, factor.data(), &factor.ld, &info);
        ASSERT_EQ(info, 0);
        const auto triangle = factor.triangle(*uplo, 0), other = triangle.transposed();
        expect_near(*uplo == 'U' ? product(other, triangle) : product(triangle, other), a, n);

        info = -1;
        Names<Real>::potri(uplo, &n, factor.data(), &factor.ld, &info);
        ASSERT_EQ(info, 0);
        const auto half = factor.triangle(*uplo, 0), mirror = half.transposed();
        const auto inverse = Matrix<Real>(n, n).fill(
            [&](int32_t i, int32_t j) { return i == j ? half(i, i) : half(i, j) + mirror(i, j); });
        expect_near(product(a, inverse), identity, n);

        auto indefinite = a;
        indefinite(2, 2) = -1;
        Names<Real>::potrf(uplo, &n, indefinite.data(), &indefinite.ld, &info);
        EXPECT_EQ(info, 3);
    }
}

TYPED_TEST(Blas, TrtriInvertsATriangle) {
    using Real = TypeParam;
    const auto a = definite_matrix<Real>(n);
    for (const char *uplo : {"U", "L"}) {
        for (const char *diag : {"N", "U"}) {
            auto triangle = a.triangle(*uplo, 0), inverse = a.triangle(*uplo, nan_of<Real>);
            for (int32_t i = 0; *diag == 'U' && i < n; ++i) {
                triangle(i, i) = 1;
                inverse(i, i) = nan_of<Real>;
            }
            int32_t info = -1;
            Names<Real>::trtri(uplo, diag, &n, inverse.data(), &inverse.ld, &info);
            ASSERT_EQ(info, 0);
            auto full = inverse.triangle(*uplo, 0);
            for (int32_t i = 0; *diag == 'U' && i < n; ++i) full(i, i) = 1;
            expect_near(product(triangle, full), Matrix<Real>(n, n).fill([](int32_t i, int32_t j) { return i == j; }),
                        n * n * n);
        }
    }
}

// The second difference matrix of order n has the eigenvalues 2 - 2 cos(i pi / (n + 1)).
template <typename Real>
Matrix<Real> second_difference() {
    return Matrix<Real>(n, n).fill([](int32_t i, int32_t j) { return i == j ? 2 : std::abs(i - j) == 1 ? -1 : 0; });
}

template <typename Real>
void expect_eigensystem(const std::vector<Real> &values, const Matrix<Real> &vectors) {
    for (int32_t i = 0; i < n; ++i) {
        EXPECT_NEAR(double{values[static_cast<size_t>(i)]}, 2 - 2 * std::cos((i + 1) * std::acos(-1.0) / (n + 1)),
                    16 * double{std::numeric_limits<Real>::epsilon()});
    }
    const auto scaled =
        Matrix<Real>(n, n).fill([&](int32_t i, int32_t j) { return vectors(i, j) * values[static_cast<size_t>(j)]; });
    expect_near(product(second_difference<Real>(), vectors), scaled, n);
    expect_near(product(vectors.transposed(), vectors),
                Matrix<Real>(n, n).fill([](int32_t i, int32_t j) { return i == j; }), n);
}

TYPED_TEST(Blas, SyevFindsTheEigensystem) {
    using Real = TypeParam;
    for (const char *uplo : {"U", "L"}) {
        auto a = second_difference<Real>().triangle(*uplo, nan_of<Real>);
        std::vector<Real> values(n);
        Real best = 0;
        const int32_t query = -1;
        int32_t info = -1;
        Names<Real>::syev("V", uplo, &n, a.data(), &a.ld, values.data(), &best, &query, &info);
        ASSERT_EQ(info, 0);
        const auto size = static_cast<int32_t>(best);
        ASSERT_GE(size, 3 * n - 1);
        std::vector<Real> work(static_cast<size_t>(size));
        Names<Real>::syev("V", uplo, &n, a.data(), &a.ld, values.data(), work.data(), &size, &info);
        ASSERT_EQ(info, 0);
        expect_eigensystem(values, a);
    }
}

TYPED_TEST(Blas, SpevdFindsTheEigensystemOfAPackedMatrix) {
    using Real = TypeParam;
    const auto a = second_difference<Real>();
    for (const bool upper : {true, false}) {
        std::vector<Real> packed;
        for (int32_t j = 0; j < n; ++j) {
            for (int32_t i = upper ? 0 : j; i < (upper ? j + 1 : n); ++i) packed.push_back(a(i, j));
        }
        Matrix<Real> vectors(n, n);
        std::vector<Real> values(n), work(1 + 6 * n + n * n);
        std::vector<int32_t> integers(3 + 5 * n);
        const auto size = static_cast<int32_t>(work.size()), integer_size = static_cast<int32_t>(integers.size());
        int32_t info = -1;
        Names<Real>::spevd("V", upper ? "U" : "L", &n, packed.data(), values.data(), vectors.data(), &vectors.ld,
                           work.data(), &size, integers.data(), &integer_size, &info);
        ASSERT_EQ(info, 0);
        expect_eigensystem(values, vectors);
    }
}

}  // namespace
}  // namespace qorl::test
