// A generator of arithmetic progressions, registered by the tests: it shows its position plainly and keeps two chunks.
#ifndef QORL_TESTS_STREAMS_TOY_GENERATOR_HPP
#define QORL_TESTS_STREAMS_TOY_GENERATOR_HPP

#include <cstdint>
#include <vector>

#include "qorl/hux.h"
#include "streams/streams.hpp"

namespace qorl::test {

struct ToyState {
    std::uint64_t next, step;
};

inline constexpr std::int32_t private_chunk = 50, shared_chunk = 51, chunk_bytes = 40;
inline constexpr std::uint64_t shared_key[2] = {0x746F79, 7};

// Its integers are the words next, next + step, ... of 64 bits. The seed is `next`, the first step 1.
BrngProperties toy_properties();
// The number it was registered under, once for the process.
std::int32_t toy_id();
// The same with a seed that counts for more bytes than the state has.
std::int32_t long_seed_id();

// A stream that is deleted at the end of the scope.
class Stream {
  public:
    Stream() = default;
    Stream(std::int32_t id, std::uint32_t seed) { status = __huxNewStreamEx(&state, id, 1, &seed); }
    ~Stream() {
        if (state != nullptr) __huxDeleteStream(&state);
    }
    Stream(const Stream &) = delete;
    Stream &operator=(const Stream &) = delete;

    std::vector<std::uint64_t> draw(std::int32_t n) const {
        std::vector<std::uint64_t> numbers(static_cast<std::size_t>(n));
        properties_of(*state).i(state, n, numbers.data());
        return numbers;
    }

    StreamState *state = nullptr;
    std::int32_t status = HuxStatusOk;
};

// A block of the library's, filled with one byte.
void *new_data(std::int32_t size, int byte);

}  // namespace qorl::test

#endif
