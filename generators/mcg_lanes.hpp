// The lanes of the congruential generators: a chunk by which MCG31M1 and MCG59 draw four numbers at a time.
//
// With x the next number and a the multiplier of the stream, lane k holds x a^k, and row j of the powers holds
// a^(4(j+1)) in each of its four lanes, all reduced. The record is saved as it is, so its layout is fixed. From a saved
// one only lane 0 is taken; the rest follows from it and the multiplier (rebuild_lanes).
#ifndef QORL_GENERATORS_MCG_LANES_HPP
#define QORL_GENERATORS_MCG_LANES_HPP

#include <cstddef>
#include <cstdint>

namespace qorl {

inline constexpr std::int32_t mcg_lanes_chunk = 14;

enum class McgKind : std::uint32_t { mcg31m1 = 0, mcg59 = 1 };

struct alignas(32) McgLanes {
    McgKind kind;
    std::uint8_t unset[28];
    std::uint64_t lanes[4];
    std::uint64_t powers[8][4];
    std::uint8_t unset_end[32];  // like the first, a part of the saved size without a meaning; new records hold zeros
};
static_assert(sizeof(McgLanes) == 352 && offsetof(McgLanes, lanes) == 32 && offsetof(McgLanes, powers) == 64);

// The states behind the stream's head.
struct Mcg31m1State {
    std::uint32_t x, a;
};
struct Mcg59State {
    std::uint64_t x, a;
};

// Multipliers of a new stream; 13^13 is the second.
inline constexpr std::uint64_t mcg31m1_multiplier = 1132489760, mcg59_multiplier = 302875106592253;

// The product of two reduced numbers, reduced.
template <McgKind kind>
constexpr std::uint64_t mcg_product(std::uint64_t x, std::uint64_t y) {
    if constexpr (kind == McgKind::mcg59) return x * y & ((std::uint64_t{1} << 59) - 1);
    // 2^31 = 1, so the part above bit 31 is added to the part below: from 62 bits to 32, then to 31 and the modulus.
    constexpr std::uint64_t m = (std::uint64_t{1} << 31) - 1;
    std::uint64_t p = x * y;
    p = (p & m) + (p >> 31);
    p = (p & m) + (p >> 31);
    return p >= m ? p - m : p;
}

// Fills in all lanes and powers from the next number x and the multiplier a; 0 stands for that of a new stream. An x
// that is not reduced, as only a file could bring, becomes so.
template <McgKind kind>
constexpr void rebuild_lanes(McgLanes &record, std::uint64_t x, std::uint64_t a) {
    if (a == 0) a = kind == McgKind::mcg31m1 ? mcg31m1_multiplier : mcg59_multiplier;
    record.kind = kind;
    std::uint64_t power = 1;  // of a
    for (int k = 0; k < 4; ++k) {
        record.lanes[k] = k == 0 ? mcg_product<kind>(x, 1) : mcg_product<kind>(record.lanes[k - 1], a);
        power = mcg_product<kind>(power, a);
    }
    const std::uint64_t fourth = power;
    for (auto &row : record.powers) {
        for (std::uint64_t &lane : row) lane = power;
        power = mcg_product<kind>(power, fourth);
    }
}

}  // namespace qorl

#endif
