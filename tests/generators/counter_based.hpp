// Generators that encrypt a counter: the definition given the encryption of a block.
#ifndef QORL_TESTS_GENERATORS_COUNTER_BASED_HPP
#define QORL_TESTS_GENERATORS_COUNTER_BASED_HPP

#include "generator.hpp"

namespace qorl::test {

using Encrypt = Element (*)(const std::uint32_t *key, Element counter);

Generator counter_based(const char *name, GeneratorRow row, std::size_t key_words, Encrypt encrypt);

// The first block of a stream of which `count` words are drawn in one call.
Element first_block(GeneratorRow row, const Seed &seed, int count);

}  // namespace qorl::test

#endif
