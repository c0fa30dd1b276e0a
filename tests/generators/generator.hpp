// A generator as the tests see it: its definition, evaluated one element at a time by other means than the library's.
#ifndef QORL_TESTS_GENERATORS_GENERATOR_HPP
#define QORL_TESTS_GENERATORS_GENERATOR_HPP

#include <array>
#include <cstdint>
#include <functional>
#include <vector>

#include "streams/streams.hpp"

namespace qorl::test {

__extension__ using Count = unsigned __int128;

using Seed = std::vector<std::uint32_t>;
using Element = std::array<std::uint32_t, 4>;  // what i writes, zeros behind it
using Elements = std::vector<Element>;

struct Generator {
    const char *name;
    std::vector<std::int32_t> ids;  // numbers that all give this definition
    std::vector<Seed> seeds;
    // Elements `skip`, skip + 1, ... of the sequence.
    std::function<Elements(const Seed &, Count skip, int count)> elements;
    // The numbers on [a, b) that stand for an element.
    std::function<double(const Element &, double a, double b)> real_d;
    std::function<float(const Element &, float a, float b)> real_s;
    bool leapfrog, skip_ahead, skip_ahead_long;
    bool integers_apart = false;  // i has a position of its own
};

// Every generator that stands; a source a family.
Generator mcg31m1();
Generator mcg59();
Generator r250();
Generator mrg32k3a();
Generator wh(const char *name, int member);
Generator ars5();
Generator philox4x32x10();
Generator mt19937();
Generator sfmt19937();

inline Element element_of(std::uint64_t word) {
    return {static_cast<std::uint32_t>(word), static_cast<std::uint32_t>(word >> 32), 0, 0};
}

inline std::uint32_t word_of(const Seed &seed, std::size_t index, std::uint32_t otherwise = 0) {
    return index < seed.size() ? seed[index] : otherwise;
}

// Lets the library see a processor without AES instructions, until the end of the scope.
class NoAes {
  public:
    NoAes();
    ~NoAes();
    NoAes(const NoAes &) = delete;
    NoAes &operator=(const NoAes &) = delete;
};

}  // namespace qorl::test

#endif
