// Powers modulo the moduli of the congruential generators, by squaring from the least significant bit of the exponent.
#include "generators/mcg_lanes.hpp"
#include "qorl/hux.h"

namespace qorl {
namespace {

// base^n; 1 for n = 0, without a look at base.
template <class T, class Product>
T power(T base, std::uint64_t n, Product product) {
    T result = 1;
    for (; n != 0; n >>= 1) {
        if ((n & 1) != 0) result = product(result, base);
        base = product(base, base);
    }
    return result;
}

}  // namespace
}  // namespace qorl

using namespace qorl;

uint32_t __huxiPowMod(uint32_t a, uint64_t n, uint32_t m) {
    return power(a, n, [m](uint32_t x, uint32_t y) {
        const uint64_t p = uint64_t{x} * y;
        // Division of 32 bits is the faster one on many processors, and small moduli need no other.
        return p >> 32 == 0 ? static_cast<uint32_t>(p) % m : static_cast<uint32_t>(p % m);
    });
}

uint32_t __huxiPowMod2P31M1(uint32_t a, uint64_t n) {
    constexpr uint64_t m = (uint64_t{1} << 31) - 1;
    return static_cast<uint32_t>(power(a % m, n, mcg_product<McgKind::mcg31m1>));
}

uint64_t __huxiPowMod2P59(uint64_t a, uint64_t n) {
    return power(a, n, mcg_product<McgKind::mcg59>);
}
