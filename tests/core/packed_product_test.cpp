// The triangular products, dense and packed: all forms, at orders within and across the tiles of the packed one.
#include "linear_algebra.hpp"

namespace qorl::test {
namespace {

template <typename Real>
struct TriangularProduct : testing::Test {};
TYPED_TEST_SUITE(TriangularProduct, Reals);

TYPED_TEST(TriangularProduct, IsTheProductWithTheTriangleInEveryForm) {
    using Real = TypeParam;
    const Real alpha = Real(-0.5);
    for (const int32_t order : {1, 2, 10, 64, 65, 150}) {
        for (const char *side : {"L", "R"}) {
            for (const char *uplo : {"U", "l"}) {
                for (const char *trans : {"N", "t"}) {
                    for (const char *diag : {"N", "U"}) {
                        SCOPED_TRACE(std::string(side) + uplo + trans + diag + " " + std::to_string(order));
                        const bool left = *side == 'L', upper = *uplo == 'U', unit = *diag == 'U';
                        const int32_t rows = left ? order : 3, columns = left ? 4 : order;
                        const auto full = random_matrix<Real>(order, order, 1);
                        const auto b = random_matrix<Real>(rows, columns, 2);
                        auto stored = full.triangle(upper ? 'U' : 'L', nan_of<Real>);
                        auto triangle = full.triangle(upper ? 'U' : 'L', 0);
                        for (int32_t i = 0; unit && i < order; ++i) {
                            stored(i, i) = nan_of<Real>;
                            triangle(i, i) = 1;
                        }
                        std::vector<Real> packed;
                        for (int32_t j = 0; j < order; ++j) {
                            for (int32_t i = upper ? 0 : j; i < (upper ? j + 1 : order); ++i)
                                packed.push_back(stored(i, j));
                        }
                        const auto op = *trans == 'N' ? triangle : triangle.transposed();
                        const auto whole = left ? product(op, b) : product(b, op);
                        const auto expected = sum(double{alpha}, whole, 0, whole);
                        for (const auto trmm : Names<Real>::trmm) {
                            auto dense = b;
                            trmm(side, uplo, trans, diag, &rows, &columns, &alpha, stored.data(), &stored.ld,
                                 dense.data(), &dense.ld);
                            expect_near(dense, expected, order);
                        }
                        auto actual = b;
                        Names<Real>::ptrmm(side, uplo, trans, diag, &rows, &columns, &alpha, packed.data(),
                                           actual.data(), &actual.ld);
                        expect_near(actual, expected, order);
                    }
                }
            }
        }
    }
}

}  // namespace
}  // namespace qorl::test
