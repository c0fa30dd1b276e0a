// The tempering words of a generator of the MT2203 family, by its equidistribution.
//
// The output is y ^= y >> 12; y ^= (y << 7) & b; y ^= (y << 15) & c; y ^= y >> 18 of the recurrence's words. Its
// leading v bits are equidistributed in k(v) dimensions when k(v) successive ones take all values equally often. The
// words b and c are chosen bit by bit from the left: for v = 1 .. 15 all pairs that reach the largest k(v) are kept,
// from then on the first best one.
//
// Sources: M. Matsumoto, T. Nishimura, Dynamic creation of pseudorandom number generators, MCQMC 1998 (Springer 2000);
// k(v) from a reduced basis of a lattice of formal Laurent series: R. Couture, P. L'Ecuyer, Lattice computations for
// random numbers, Math. Comp. 69, 2000; basis vectors kept as states of the generator: S. Harase, M. Matsumoto,
// M. Saito, Fast lattice reduction for F2-linear pseudorandom number generators, Math. Comp. 80, 2011.
#ifndef QORL_TOOLS_MERSENNE_TEMPERING_HPP
#define QORL_TOOLS_MERSENNE_TEMPERING_HPP

#include <cstdint>

namespace qorl::mersenne {

struct Tempering {
    std::uint32_t b, c;
    bool operator==(const Tempering &) const = default;
};

// The dimension of equidistribution of the leading v bits. The recurrence of matrix word a must be irreducible.
int equidistribution(std::uint32_t a, Tempering tempering, int v);

Tempering find_tempering(std::uint32_t a);

}  // namespace qorl::mersenne

#endif
