// Powers of the companion matrix of a recurrence of third order, applied to a vector.
//
// Powers of one matrix commute, so that A^n v needs no product of them but squares: each A^(2^i) with bit i of n set is
// applied to the vector as soon as it is there.
#include "streams/matrix.hpp"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "qorl/hux.h"
#include "streams/streams.hpp"

namespace qorl {
namespace {

// Matrices of nine words by rows, and vectors of three.
template <class Modulus>
struct MatrixArithmetic : ModularArithmetic<Modulus> {
    using ModularArithmetic<Modulus>::sum;
    using ModularArithmetic<Modulus>::product;

    std::uint32_t row_times(const std::uint32_t *row, const std::uint32_t *v, int stride) const {
        return sum(sum(product(row[0], v[0]), product(row[1], v[stride])), product(row[2], v[2 * stride]));
    }

    void apply(const std::uint32_t *matrix, std::uint32_t *v) const {
        const std::uint32_t old[3] = {v[0], v[1], v[2]};
        for (int row = 0; row < 3; ++row) v[row] = row_times(matrix + 3 * row, old, 1);
    }
    void square(std::uint32_t *matrix, std::uint32_t *result) const {
        for (int row = 0; row < 3; ++row)
            for (int column = 0; column < 3; ++column)
                result[3 * row + column] = row_times(matrix + 3 * row, matrix + column, 3);
    }
};

using Matrix = std::uint32_t[9];

// The work is on two matrices, the power that is in use and the next one.
void power_times(std::uint32_t *v, const std::uint32_t *row, std::uint32_t m, std::int32_t words,
                 const std::uint64_t *n, Matrix *work) {
    const MatrixArithmetic<AnyModulus> mod{{{m}}};
    std::uint32_t *power = work[0], *next = work[1];
    const Matrix companion = {0, 1, 0, 0, 0, 1, row[2], row[1], row[0]};
    std::copy_n(companion, 9, power);
    for (std::int32_t word = 0; word < words; ++word) {
        for (int bit = 0; bit < 64; ++bit) {
            if ((n[word] >> bit & 1) != 0) mod.apply(power, v);
            // Nothing is left to be done when the last word has no further bits.
            if (word == words - 1 && n[word] >> bit <= 1) return;
            mod.square(power, next);
            std::swap(power, next);
        }
    }
}

template <std::uint32_t M>
void table_power_times(std::uint32_t *v, std::int32_t words, const std::uint64_t *n, const std::uint32_t *table) {
    const MatrixArithmetic<FixedModulus<M>> mod{};
    for (std::int32_t word = 0; word < words; ++word)
        for (int bit = 0; bit < 64; ++bit, table += 9)
            if ((n[word] >> bit & 1) != 0) mod.apply(table, v);
}

}  // namespace
}  // namespace qorl

using namespace qorl;

void __huxiVect3PowMod(uint32_t *v, const uint32_t *row, uint32_t m, uint64_t n) {
    Matrix work[2];
    power_times(v, row, m, 1, &n, work);
}

int32_t __huxiVect3PowArrayMod(uint32_t *v, const uint32_t *row, uint32_t m, int32_t words, const uint64_t *n) {
    Block<Matrix> work(2);
    if (work.data() == nullptr) return HuxStatusOutOfMemory;
    power_times(v, row, m, words, n, work.data());
    return HuxStatusOk;
}

void __huxiVect3PowArrayMod_M1(uint32_t *v, int32_t words, const uint64_t *n, const uint32_t *table) {
    table_power_times<mrg32k3a_x.m>(v, words, n, table);
}

void __huxiVect3PowArrayMod_M2(uint32_t *v, int32_t words, const uint64_t *n, const uint32_t *table) {
    table_power_times<mrg32k3a_y.m>(v, words, n, table);
}
