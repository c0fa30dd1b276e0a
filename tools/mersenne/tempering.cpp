#include "tools/mersenne/tempering.hpp"

#include <algorithm>
#include <utility>
#include <vector>

#include "tools/mersenne/characteristic.hpp"

namespace qorl::mersenne {
namespace {

constexpr int shift_b = 7, shift_c = 15;

constexpr std::uint32_t temper(std::uint32_t y, Tempering t) {
    y ^= y >> 12;
    y ^= (y << shift_b) & t.b;
    y ^= (y << shift_c) & t.c;
    return y ^ y >> 18;
}

// A vector of the lattice, t^-count (leading + sum over j >= 1 of the j-th output after the state times t^-j), where
// `leading` holds one bit for each of the v coordinates, at the top of the word. The state is a window of 69 words that
// moves on in its buffer with each step; no vector takes more steps than its count.
struct Vector {
    int count = 0;
    std::uint32_t leading = 0;
    int at = 0;
    std::vector<std::uint32_t> buffer = std::vector<std::uint32_t>(degree + words);

    void add(const Vector &other) {  // of at most this norm: multiplied by t^(other.count - count)
        leading ^= other.leading;
        std::uint32_t *const x = buffer.data() + at;
        const std::uint32_t *const y = other.buffer.data() + other.at;
        for (int i = 0; i < words; ++i) x[i] ^= y[i];
    }
    void step(std::uint32_t a, Tempering tempering, std::uint32_t mask) {
        constexpr std::uint32_t lower = (1u << lower_bits) - 1;
        std::uint32_t *const x = buffer.data() + at;
        const std::uint32_t y = (x[0] & ~lower) | (x[1] & lower);
        const std::uint32_t next = x[middle] ^ y >> 1 ^ ((y & 1) != 0 ? a : 0);
        x[words] = next;
        ++at;
        ++count;
        leading = temper(next, tempering) & mask;
    }
};

// The pairs that agree with (b, c) in the bits already decided and differ in those that decide bit v of the output.
std::vector<Tempering> extensions(Tempering t, int v) {
    const auto bit = [](int k) { return k < bits_of_word ? 0x80000000u >> k : 0u; };
    const auto choices = [](std::uint32_t set) {
        return set != 0 ? std::vector<std::uint32_t>{set, 0} : std::vector<std::uint32_t>{0};
    };
    std::vector<Tempering> list;
    // (y << 15) & c and (y << 7) & b move lower bits up: bit v of the output depends on bit v of c if bit v + 15 of y
    // exists, on bit v of b if bit v + 7 exists, and through the second shift on bit v + 15 of b.
    for (const std::uint32_t c_bit : choices(v + shift_c < bits_of_word ? bit(v) : 0)) {
        const std::uint32_t c = t.c | c_bit;
        const bool decided = v >= shift_c && (c & bit(v - shift_c)) != 0;  // as bit (v - 15) + 15
        const std::vector<std::uint32_t> here = v + shift_b >= bits_of_word ? std::vector<std::uint32_t>{0}
                                                : decided                   ? std::vector<std::uint32_t>{t.b & bit(v)}
                                                                            : choices(bit(v));
        const bool through_c = v + shift_b + shift_c < bits_of_word && (c & bit(v)) != 0;
        for (const std::uint32_t there : choices(through_c ? bit(v + shift_c) : 0))
            for (const std::uint32_t b_bit : here)
                list.push_back({(t.b & ~(bit(v) | bit(v + shift_c))) | b_bit | there, c});
    }
    return list;
}

}  // namespace

int equidistribution(std::uint32_t a, Tempering tempering, int v) {
    const std::uint32_t mask = ~std::uint32_t{0} << (bits_of_word - v);
    // Basis vector i has its first leading bit at coordinate i, so the leading coefficients stay independent: the basis
    // is reduced. One more vector, at first the generating function of the outputs, is reduced against it and takes the
    // place of a longer one; a vector whose leading coefficients vanish moves on. The counts add up to the degree just
    // when the basis spans the whole lattice.
    std::vector<Vector> basis(static_cast<std::size_t>(v));
    for (int i = 0; i < v; ++i) basis[static_cast<std::size_t>(i)].leading = 0x80000000u >> i;
    Vector extra;
    extra.buffer[0] = 0x80000000u;
    for (int sum = 0; sum < degree;) {
        while (extra.leading == 0) extra.step(a, tempering, mask);
        Vector &pivot = basis[static_cast<std::size_t>(__builtin_clz(extra.leading))];
        if (pivot.count < extra.count) {
            sum += extra.count - pivot.count;
            std::swap(pivot, extra);
        }
        extra.add(pivot);
    }
    return std::min_element(basis.begin(), basis.end(),
                            [](const Vector &x, const Vector &y) { return x.count < y.count; })
        ->count;
}

Tempering find_tempering(std::uint32_t a) {
    constexpr int exhaustive = 15;  // bits for which all best pairs are kept
    std::vector<Tempering> best = {{0, 0}};
    for (int v = 0; v < exhaustive; ++v) {
        std::vector<Tempering> next;
        int reached = 0;
        for (const Tempering &t : best) {
            for (const Tempering &extension : extensions(t, v)) {
                const int k = equidistribution(a, extension, v + 1);
                if (k > reached) next.clear();
                reached = std::max(reached, k);
                if (k == reached) next.push_back(extension);
            }
        }
        std::reverse(next.begin(), next.end());
        best = std::move(next);
    }
    Tempering t = best.front();
    for (int v = exhaustive; v < bits_of_word; ++v) {
        const std::vector<Tempering> list = extensions(t, v);
        t = list.front();
        if (list.size() == 1) continue;
        int reached = 0;
        for (const Tempering &extension : list) {
            const int k = equidistribution(a, extension, v + 1);
            if (k > reached) t = extension;
            reached = std::max(reached, k);
        }
    }
    return t;
}

}  // namespace qorl::mersenne
