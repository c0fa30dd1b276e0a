// What the sources of the random streams and the generators share behind qorl/hux.h.
//
// A state may have been read from a file, so it is data from outside: a generator that uses a word of it as an index or
// a count brings the word into its range at the entry of a call, and one that keeps a chunk checks the chunk's size.
#ifndef QORL_STREAMS_STREAMS_HPP
#define QORL_STREAMS_STREAMS_HPP

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "qorl/core.h"
#include "qorl/hux.h"

namespace qorl {

inline constexpr std::size_t stream_alignment = 128;

// Methods of a generator's `init`.
inline constexpr std::int32_t method_initialise = 0, method_leapfrog = 1, method_skip_ahead = 2,
                              method_skip_ahead_long = 3;

// Rows of __RegBrngsNew by the names of the generators.
#define QORL_GENERATOR(row, name, ...) row_##name = row,
enum GeneratorRow : std::int32_t {
#include "streams/generators.inc"
};

constexpr std::int32_t family_id(std::int32_t row, std::int32_t member = 0) {
    return (row + 1) * (std::int32_t{1} << 20) + member;
}

// A generator's number, resolved.
struct Place {
    const BrngProperties *table;
    std::int32_t row;
    std::int32_t member;
};

inline Place place_of(std::int32_t id) {
    Place place{};
    place.table = __huxGetBrngBaseOffset(id, &place.row, &place.member);
    return place;
}

// The generator at a place; null when the place is outside its table or no generator stands there.
const BrngProperties *generator_at(const Place &place);

// For streams that exist, whose number is known to be good.
inline const BrngProperties &properties_of(const StreamState &stream) {
    const Place place = place_of(stream.id);
    return place.table[place.row];
}

inline std::int32_t member_of(const StreamState &stream) {
    return place_of(stream.id).member;
}

// A registered generator may have named fewer bytes than the head of the record takes.
inline std::size_t record_bytes(const BrngProperties &properties) {
    return std::max(static_cast<std::size_t>(properties.state_size), sizeof(StreamState));
}

inline std::size_t state_bytes(const BrngProperties &properties) {
    return record_bytes(properties) - sizeof(StreamState);
}

// The generator's state behind the head. State is a plain structure laid out as the saved form tells.
template <class State = std::byte>
State &state_of(StreamState *stream) {
    return *reinterpret_cast<State *>(stream + 1);
}

template <class State = std::byte>
const State &state_of(const StreamState *stream) {
    return *reinterpret_cast<const State *>(stream + 1);
}

// Memory for the time of a call. `data` is null when there was none.
template <class T>
class Block {
  public:
    explicit Block(std::size_t count)
        : data_(static_cast<T *>(
              count > SIZE_MAX / sizeof(T) ? nullptr : qorl_serv_allocate(count * sizeof(T), stream_alignment))) {}
    ~Block() { qorl_serv_deallocate(data_); }
    Block(const Block &) = delete;
    Block &operator=(const Block &) = delete;

    T *data() { return data_; }
    // Gives the memory to a new owner.
    T *release() {
        T *const data = data_;
        data_ = nullptr;
        return data;
    }

  private:
    T *data_;
};

// The first chunk with that id, or null: for users that check its size.
StreamChunk *find_chunk(const StreamState &stream, std::int32_t id);

// The table of shared data, each call under its lock once.
//
// Gives the data that a new chunk of `size` bytes is to use. With a known key: the entry's, with one more reference.
// With a new one: `data`, entered into the table. Otherwise `data`, and the key is cleared: the chunk owns them.
void *share(std::uint64_t (&key)[2], void *data, std::int32_t size);
// Whether the key is in the table.
bool is_shared(const std::uint64_t (&key)[2]);

}  // namespace qorl

#endif
