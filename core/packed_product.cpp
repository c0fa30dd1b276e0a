// Product with a packed triangular matrix, in place: B := alpha op(A) B or B := alpha B op(A).
//
// BLAS has the packed triangle times one vector only, which reads the whole triangle for each column of B. Here the
// triangle is cut into square tiles, each unpacked on the stack, transposed if op asks for it, and handed to the dense
// products. With T for op(A) and blocks numbered along its order, side "L" gives B_i := sum over j of T_ij B_j and side
// "R" gives B_j := sum over i of B_i T_ij. A block of B is written when no block still to be written reads it: in
// descending order for lower T on the left and upper T on the right, in ascending order for the other two.

#include <algorithm>
#include <utility>

#include "qorl/core.h"

namespace {

// 32 KiB of stack in double precision; large enough for the dense product to run near its full speed.
constexpr int32_t tile_order = 64;

bool is(const char *argument, char upper) {
    return (*argument & ~0x20) == upper;
}

template <typename Real>
struct Dense;
template <>
struct Dense<double> {
    static constexpr auto gemm = qorl_core_dgemm;
    static constexpr auto trmm = qorl_blas4zet_dtrmm;
};
template <>
struct Dense<float> {
    static constexpr auto gemm = qorl_core_sgemm;
    static constexpr auto trmm = qorl_blas4zet_strmm;
};

// The packed matrix A of op(A), by elements.
template <typename Real>
struct Packed {
    const Real *elements;
    int64_t order;
    bool upper;
    bool transposed;

    // The element (row, column) of op(A), which must lie in its triangle.
    Real operator()(int64_t row, int64_t column) const {
        if (transposed) std::swap(row, column);
        return elements[row + (upper ? column * (column + 1) / 2 : column * (2 * order - column - 1) / 2)];
    }
};

template <typename Real>
void multiply(const char *side, const char *uplo, const char *transa, const char *diag, int32_t rows, int32_t columns,
              const Real *alpha, const Real *ap, Real *b, int32_t ldb) {
    const bool left = is(side, 'L');
    const int32_t order = left ? rows : columns;
    const Packed<Real> t{ap, order, is(uplo, 'U'), !is(transa, 'N')};
    const bool lower = t.upper == t.transposed;
    const bool descending = left == lower;
    const int32_t blocks = (order + tile_order - 1) / tile_order;
    const auto size = [=](int32_t block) { return std::min(tile_order, order - block * tile_order); };
    const auto place = [=](int32_t block) { return b + int64_t{block} * tile_order * (left ? 1 : ldb); };

    Real tile[tile_order * tile_order];
    const auto unpack = [&](int32_t block_row, int32_t block_column) {
        for (int32_t j = 0; j < size(block_column); ++j) {
            // In a tile on the diagonal only the triangle is there, and only the triangle is read.
            const int32_t first = block_row == block_column && lower ? j : 0;
            const int32_t last = block_row == block_column && !lower ? j + 1 : size(block_row);
            for (int32_t i = first; i < last; ++i) {
                tile[i + j * tile_order] =
                    t(int64_t{block_row} * tile_order + i, int64_t{block_column} * tile_order + j);
            }
        }
    };

    for (int32_t step = 0; step < blocks; ++step) {
        const int32_t target = descending ? blocks - 1 - step : step;
        const int32_t width = size(target);
        const int32_t m = left ? width : rows;
        const int32_t n = left ? columns : width;
        unpack(target, target);
        Dense<Real>::trmm(side, lower ? "L" : "U", "N", diag, &m, &n, alpha, tile, &tile_order, place(target), &ldb);
        for (int32_t source = descending ? 0 : target + 1; source < (descending ? target : blocks); ++source) {
            const int32_t k = size(source);
            constexpr Real one = 1;
            if (left) {
                unpack(target, source);
                Dense<Real>::gemm("N", "N", &m, &n, &k, alpha, tile, &tile_order, place(source), &ldb, &one,
                                  place(target), &ldb);
            } else {
                unpack(source, target);
                Dense<Real>::gemm("N", "N", &m, &n, &k, alpha, place(source), &ldb, tile, &tile_order, &one,
                                  place(target), &ldb);
            }
        }
    }
}

}  // namespace

void qorl_blas4zet_dptrmm(const char *side, const char *uplo, const char *transa, const char *diag, const int32_t *m,
                          const int32_t *n, const double *alpha, const double *ap, double *b, const int32_t *ldb) {
    multiply(side, uplo, transa, diag, *m, *n, alpha, ap, b, *ldb);
}

void qorl_blas4zet_sptrmm(const char *side, const char *uplo, const char *transa, const char *diag, const int32_t *m,
                          const int32_t *n, const float *alpha, const float *ap, float *b, const int32_t *ldb) {
    multiply(side, uplo, transa, diag, *m, *n, alpha, ap, b, *ldb);
}
