// SFMT19937: elements of four words, w(k + 156) from w(k), w(k + 122), w(k + 154) and w(k + 155); the words of the
// state are the output.
//
// Method   What w(k) and w(k + 122) contribute is computed for two elements a register; only the shifts and sums of the
//          two latest elements follow one by one.
//          A request may end inside an element: its other words then wait in `pending`, so that `pos` is always between
//          elements.
// Source   Saito and Matsumoto, "SIMD-oriented Fast Mersenne Twister: a 128-bit pseudorandom number generator", MCQMC
//          2006, with its array seeding (lag 11, middle 306) and its certification of the period.
#include <algorithm>
#include <cstdint>
#include <iterator>

#include "generators/mersenne_twister.hpp"
#include "generators/tables/sfmt19937_poly.hpp"

namespace qorl {
namespace {

constexpr std::uint32_t element = 4;  // words

struct Sfmt19937State {
    static constexpr std::uint32_t size = 624;
    std::uint32_t sfmt[size];
    std::uint32_t pos;         // of the next element, in words; 624 when the block is used up
    std::uint32_t pending[3];  // words of an element before `pos`
    std::uint32_t pending_read, pending_end;

    std::uint32_t *ring() { return sfmt; }
    const std::uint32_t *ring() const { return sfmt; }

    std::uint32_t pending_count() const { return pending_end - pending_read; }

    // For a state that a file may have brought.
    void bring_into_range() {
        pos = std::min(pos, size) / element * element;
        pending_end = std::min(pending_end, static_cast<std::uint32_t>(std::size(pending)));
        pending_read = std::min(pending_read, pending_end);
    }

    // The next word is that at `place` of the block.
    void settle(std::uint32_t place) {
        pos = (place + element - 1) / element * element;
        pending_read = 0;
        pending_end = pos - place;
        std::copy(sfmt + place, sfmt + pos, pending);
    }
};

struct Sfmt19937 {
    static constexpr std::uint32_t size = Sfmt19937State::size;
    static constexpr int far = 122 * element, turn = size - far;

    template <int N>
    QORL_INLINE static Pack<std::int32_t, N> output(Pack<std::int32_t, N> words) {
        return words;
    }

    // What an element takes from w(k) and w(k + 122).
    QORL_INLINE static Pack<std::int32_t, 1> earlier(Pack<std::int32_t, 1> a, Pack<std::int32_t, 1> b) {
        static constexpr std::uint32_t mask[8] = {0xDFFFFFEF, 0xDDFECB7F, 0xBFFAFFFF, 0xBFFFFFF6,
                                                  0xDFFFFFEF, 0xDDFECB7F, 0xBFFAFFFF, 0xBFFFFFF6};
        return a ^ shift_quads_left<1>(a) ^
               (shift_right(b, 11) & load<1>(reinterpret_cast<const std::int32_t *>(mask)));
    }
    QORL_INLINE static Quad element_of(Quad earlier_part, Quad before_last, Quad last) {
        return (earlier_part ^ shift_bytes_right<1>(before_last)) ^ shift_words_left<18>(last);
    }

    template <class Use>
    QORL_INLINE static void regenerate(std::int32_t *w, Use use) {
        Quad before_last = Quad::load(w + size - 2 * element), last = Quad::load(w + size - element);
        const auto step = [&](int k, const std::int32_t *far_words) __attribute__((always_inline)) {
            const auto part = earlier(load<1>(w + k), load<1>(far_words));
            before_last = element_of(first_quad(part), before_last, last);
            last = element_of(second_quad(part), last, before_last);
            const auto words = join(before_last, last);
            store(w + k, words);
            use(k, words);
        };
        for (int k = 0; k < turn; k += 8) step(k, w + k + far);
        for (int k = turn; k < static_cast<int>(size); k += 8) step(k, w + k - turn);
    }
};
static_assert(Sfmt19937::turn % 8 == 0 && Sfmt19937::size % 8 == 0);

void certify_period(std::uint32_t (&w)[Sfmt19937State::size]) {
    constexpr std::uint32_t parity[element] = {1, 0, 0, 0x13C9E684};
    std::uint32_t sum = 0;
    for (std::uint32_t k = 0; k < element; ++k) sum ^= w[k] & parity[k];
    if (__builtin_parity(sum) == 0) w[0] ^= parity[0];  // its lowest bit
}

void seed(Sfmt19937State &state, const Key &key) {
    constexpr std::uint32_t size = Sfmt19937State::size, middle = 306, lag = 11;
    auto &w = state.sfmt;
    std::fill_n(w, size, 0x8B8B8B8Bu);
    std::uint32_t i = 0;
    const auto at = [&](std::uint32_t ahead) -> std::uint32_t & { return w[(i + ahead) % size]; };
    const auto mixed = [](std::uint32_t x) { return x ^ (x >> 27); };
    const auto first_pass = [&](std::uint32_t addend) {
        std::uint32_t r = 1664525 * mixed(at(0) ^ at(middle) ^ at(size - 1));
        at(middle) += r;
        r += addend;
        at(middle + lag) += r;
        at(0) = r;
        i = (i + 1) % size;
    };
    first_pass(key.size);
    const std::uint32_t steps = std::max(key.size + 1, size) - 1;
    for (std::uint32_t j = 0; j < steps; ++j) first_pass(i + (j < key.size ? key.words[j] : 0));
    for (std::uint32_t j = 0; j < size; ++j) {
        std::uint32_t r = 1566083941 * mixed(at(0) + at(middle) + at(size - 1));
        at(middle) ^= r;
        r -= i;
        at(middle + lag) ^= r;
        at(0) = r;
        i = (i + 1) % size;
    }
    certify_period(w);
    std::fill(std::begin(state.pending), std::end(state.pending), 0u);
    state.settle(size);
}

void next(StreamState *temp) {
    constexpr std::uint32_t size = Sfmt19937State::size;
    auto &state = state_of<Sfmt19937State>(temp);
    auto *const w = reinterpret_cast<std::int32_t *>(state.sfmt);
    const std::uint32_t k = state.pos % size;
    const auto ahead = [k, w](std::uint32_t elements) {
        const std::uint32_t place = k + element * elements;
        return w + (place < size ? place : place - size);
    };
    const auto two = [](Quad one) { return join(one, one); };
    const auto part = first_quad(Sfmt19937::earlier(two(Quad::load(w + k)), two(Quad::load(ahead(122)))));
    Sfmt19937::element_of(part, Quad::load(ahead(154)), Quad::load(ahead(155))).store(w + k);
    state.pos = k + element < size ? k + element : 0;
}

// Jumps count elements. `extra` tells how many words of the last one are skipped, 0 for all.
std::int32_t prepare(StreamState *stream, std::uint64_t *nskip, std::int32_t *extra) {
    auto &state = state_of<Sfmt19937State>(stream);
    state.bring_into_range();
    *extra = 0;
    if (*nskip <= state.pending_count()) {
        state.pending_read += static_cast<std::uint32_t>(*nskip);
        return 0;
    }
    std::uint64_t rest = *nskip - state.pending_count();
    const std::uint32_t there = Sfmt19937State::size - state.pos;
    if (rest <= there) {
        state.settle(state.pos + static_cast<std::uint32_t>(rest));
        return 0;
    }
    rest -= there;
    state.settle(Sfmt19937State::size);
    *extra = static_cast<std::int32_t>(rest % element);
    *nskip = rest / element + (*extra != 0 ? 1 : 0);
    return 1;
}

void finish(StreamState *stream, const StreamState *temp, std::int32_t extra) {
    Ring<Sfmt19937State>::finish(stream, temp);
    auto &state = state_of<Sfmt19937State>(stream);
    const std::uint32_t skipped = extra != 0 ? static_cast<std::uint32_t>(extra) : element;
    state.settle(Sfmt19937State::size - element + skipped);
}

// Up to here the jump polynomial is a single power, for which Horner's rule adds nothing.
constexpr std::uint64_t longest_plain_skip = 19967;

std::int32_t skip(StreamState *stream, std::uint64_t count) {
    using Jumps = Ring<Sfmt19937State>;
    const auto jump = count <= longest_plain_skip ? __hux_SkipAheadHorner : __hux_SkipAheadSWin;
    return jump(stream, Jumps::clear, Jumps::add, Jumps::copy, next, finish, prepare, count, 624, 19968,
                sizeof(StreamState) + sizeof(Sfmt19937State), std::size(tables::sfmt19937_poly),
                tables::sfmt19937_poly);
}

template <class Form>
std::int32_t draw(StreamState *stream, std::int32_t n, Output<Form> out) {
    if (n <= 0) return HuxStatusOk;
    auto &state = state_of<Sfmt19937State>(stream);
    state.bring_into_range();
    if (state.pending_count() != 0) {
        const auto count = static_cast<int>(std::min(static_cast<std::uint32_t>(n), state.pending_count()));
        const std::int32_t *const words = reinterpret_cast<const std::int32_t *>(state.pending) + state.pending_read;
        out.first(load_first(words, FirstLanes<std::int32_t>(count)), count);
        state.pending_read += static_cast<std::uint32_t>(count);
        n -= count;
        if (n == 0) return HuxStatusOk;
    }
    state.settle(draw_blocks<Sfmt19937>(state.sfmt, state.pos, n, out));
    return HuxStatusOk;
}

}  // namespace
}  // namespace qorl

using namespace qorl;

int32_t __huxBRngSFMT19937InitStream(int32_t method, StreamState *stream, int32_t n, const void *params) {
    switch (method) {
        case method_initialise:
            seed(state_of<Sfmt19937State>(stream), Key(n, params));
            return HuxStatusOk;
        case method_leapfrog:
            return HuxStatusLeapfrogUnsupported;
        case method_skip_ahead:
            return skip(stream, *static_cast<const uint64_t *>(params));
        case method_skip_ahead_long:
            return HuxStatusSkipAheadExUnsupported;
        default:
            return HuxStatusBadMethod;
    }
}

// In single precision, both constants are computed in double and rounded.
int32_t __huxsBRngSFMT19937(StreamState *stream, int32_t n, float *r, float a, float b) {
    const auto wide = scaled_about_middle<double>(a, b);
    return draw(
        stream, n,
        Output(Scaled<SignedNumber, float>{static_cast<float>(wide.factor), static_cast<float>(wide.offset)}, r));
}

int32_t __huxdBRngSFMT19937(StreamState *stream, int32_t n, double *r, double a, double b) {
    return draw(stream, n, Output(scaled_about_middle<double>(a, b), r));
}

int32_t __huxiBRngSFMT19937(StreamState *stream, int32_t n, void *r) {
    return draw(stream, n, Output(Words(), r));
}
