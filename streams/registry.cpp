// The two tables of generators, the resolution of numbers, and registration.
#include <array>

#include "streams/streams.hpp"

namespace qorl {
namespace {

struct BuiltIn {
    BrngProperties properties;
    std::int32_t row, members;
    std::int32_t flat_first, flat_last;  // 0, -1 without flat numbers
};

#define QORL_FUNCTIONS_0(name) nullptr, nullptr, nullptr, nullptr
#define QORL_FUNCTIONS_1(name) __huxBRng##name##InitStream, __huxsBRng##name, __huxdBRng##name, __huxiBRng##name
#define QORL_FLAT_GENERATOR(first, last, row, name, members, state_size, seed_words, zero, word_size, bits, landed) \
    BuiltIn{{state_size, seed_words, zero, word_size, bits, QORL_FUNCTIONS_##landed(name)}, row, members, first, last},
#define QORL_GENERATOR(...) QORL_FLAT_GENERATOR(0, -1, __VA_ARGS__)
constexpr BuiltIn built_in[] = {
#include "streams/generators.inc"
};

constexpr std::int32_t built_in_count = std::size(built_in);
constexpr std::int32_t first_member_id = family_id(0);
constexpr std::int32_t flat_rows = 281;  // the numbers that count as valid; the last two have no generator

constexpr bool rows_are_in_order() {
    for (std::int32_t row = 0; row < built_in_count; ++row)
        if (built_in[row].row != row) return false;
    return true;
}
static_assert(built_in_count == 16 && rows_are_in_order());

constexpr BrngProperties family_row(std::int32_t row) {
    return row < built_in_count ? built_in[row].properties : BrngProperties{};
}

constexpr BrngProperties flat_row(std::int32_t row) {
    for (const BuiltIn &generator : built_in)
        if (row >= generator.flat_first && row <= generator.flat_last) return generator.properties;
    return {};
}

constexpr std::array<std::int32_t, QORL_HUX_ROWS> initial_family_sizes() {
    std::array<std::int32_t, QORL_HUX_ROWS> sizes{};
    for (const BuiltIn &generator : built_in) sizes[generator.row] = generator.members;
    return sizes;
}

constinit std::array<std::int32_t, QORL_HUX_ROWS> family_size = initial_family_sizes();
constinit std::int32_t row_count = built_in_count;

}  // namespace

const BrngProperties *generator_at(const Place &place) {
    if (place.row < 0 || place.member < 0) return nullptr;
    if (__huxIsBrngValid(place.table, place.row, place.member) != HuxStatusOk) return nullptr;
    const BrngProperties &properties = place.table[place.row];
    return properties.init == nullptr ? nullptr : &properties;
}

}  // namespace qorl

// An array that is exported by name has to be written as an initialiser list: row(n), row(n + 1), and so on.
#define QORL_ROWS_8(row, n) \
    row((n)), row((n) + 1), row((n) + 2), row((n) + 3), row((n) + 4), row((n) + 5), row((n) + 6), row((n) + 7)
#define QORL_ROWS_64(row, n)                                                                          \
    QORL_ROWS_8(row, n), QORL_ROWS_8(row, n + 8), QORL_ROWS_8(row, n + 16), QORL_ROWS_8(row, n + 24), \
        QORL_ROWS_8(row, n + 32), QORL_ROWS_8(row, n + 40), QORL_ROWS_8(row, n + 48), QORL_ROWS_8(row, n + 56)
#define QORL_ROWS_512(row)                                                                       \
    QORL_ROWS_64(row, 0), QORL_ROWS_64(row, 64), QORL_ROWS_64(row, 128), QORL_ROWS_64(row, 192), \
        QORL_ROWS_64(row, 256), QORL_ROWS_64(row, 320), QORL_ROWS_64(row, 384), QORL_ROWS_64(row, 448)

using namespace qorl;

constinit const BrngProperties __RegBrngs[QORL_HUX_ROWS] = {QORL_ROWS_512(flat_row)};
constinit BrngProperties __RegBrngsNew[QORL_HUX_ROWS] = {QORL_ROWS_512(family_row)};

const BrngProperties *__huxGetBrngBaseOffset(int32_t id, int32_t *row, int32_t *sub) {
    if (id >= first_member_id) {
        *row = (id >> 20) - 1;
        *sub = id & 0xFFFFF;
        return __RegBrngsNew;
    }
    const BuiltIn &wh = built_in[row_WH];
    const bool is_wh = id >= wh.flat_first && id <= wh.flat_last;
    *row = is_wh ? wh.flat_first : id;
    *sub = is_wh ? id - wh.flat_first : 0;
    return __RegBrngs;
}

int32_t __huxIsBrngValid(const BrngProperties *table, int32_t row, int32_t sub) {
    const bool valid = table == __RegBrngs ? row < flat_rows : row < row_count && (row < 0 || sub < family_size[row]);
    return valid ? HuxStatusOk : HuxStatusBadBrngId;
}

int32_t __huxGetBrngProperties(int32_t id, BrngProperties *out) {
    const Place place = place_of(id);
    if (place.row < 0 || __huxIsBrngValid(place.table, place.row, place.member) != HuxStatusOk)
        return HuxStatusBadBrngId;
    *out = place.table[place.row];
    return HuxStatusOk;
}

int32_t __huxGetNumRegBrngs(void) {
    return row_count;
}

int32_t __huxRegisterBrng(const BrngProperties *properties) {
    const BrngProperties &p = *properties;
    if (p.state_size < 0) return HuxStatusBadStateSize;
    if (p.word_size != 4 && p.word_size != 8 && p.word_size != 16) return HuxStatusBadWordSize;
    if (p.seed_words <= 0) return HuxStatusBadSeedWords;
    if (p.bits <= 0) return HuxStatusBadBits;
    if (p.d == nullptr || p.s == nullptr || p.i == nullptr || p.init == nullptr) return HuxStatusNullPointer;
    if (row_count == QORL_HUX_ROWS) return HuxStatusRegistryFull;
    const std::int32_t row = row_count;
    __RegBrngsNew[row] = p;
    family_size[row] = 1;
    ++row_count;
    return family_id(row);
}
