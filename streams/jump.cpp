// Jumps of linear recurrences over GF(2).
//
// Method  With A one step, p its characteristic polynomial and g = x^n mod p, A^n = g(A) by the theorem of Cayley and
//         Hamilton, and g(A) s is evaluated by Horner's rule: a step for each power, an addition of s for each bit of
//         g. The sliding window takes eight powers at once where the leading bit of them is set, with the 128 states
//         that may then be added in a table: an addition for about nine powers instead of two.
// Source  Haramoto, Matsumoto, Nishimura, Panneton and L'Ecuyer, INFORMS Journal on Computing 20(3), 2008.
#include <cstddef>
#include <cstring>
#include <new>

#include "qorl/hux.h"
#include "streams/streams.hpp"

namespace qorl {
namespace {

// The functions of a generator, and what it says of its recurrence.
struct Recurrence {
    HuxJumpClear clear;
    HuxJumpAdd add;
    HuxJumpCopy copy;
    HuxJumpNext next;
    HuxJumpFinish finish;
    HuxJumpPrepare prepare;
    std::int32_t poly_words;
    std::int64_t degree;
    std::int32_t state_bytes;
    std::int32_t terms;
    const std::uint32_t *exponents;
};

// Records for the time of a jump, in one block, each as aligned as a stream and with the head of one.
class Records {
  public:
    Records(const StreamState *like, std::int32_t bytes, std::size_t count)
        : stride_((static_cast<std::size_t>(bytes) + stream_alignment - 1) / stream_alignment * stream_alignment),
          block_(stride_ * count) {
        for (std::size_t k = 0; block_.data() != nullptr && k < count; ++k) new ((*this)[k]) StreamState(*like);
    }

    bool there() { return block_.data() != nullptr; }
    StreamState *operator[](std::size_t k) { return reinterpret_cast<StreamState *>(block_.data() + k * stride_); }

  private:
    std::size_t stride_;
    Block<std::byte> block_;
};

struct JumpPolynomial {
    const std::uint32_t *words;
    std::int64_t degree;  // -1 of the polynomial 0

    bool operator[](std::int64_t i) const { return (words[i / 32] >> i % 32 & 1) != 0; }
};

constexpr int window = 7;  // bits behind the leading one

// temp = g(A) s. False when there is no memory for it.
bool horner(const Recurrence &r, const JumpPolynomial &g, const StreamState *s, StreamState *temp) {
    if (g.degree < 0) {
        r.clear(temp);
        return true;
    }
    r.copy(temp, s, 0);
    for (std::int64_t i = g.degree - 1; i >= 0; --i) {
        r.next(temp);
        if (g[i]) r.add(temp, s, 0);
    }
    return true;
}

bool sliding_window(const Recurrence &r, const JumpPolynomial &g, const StreamState *s, StreamState *temp) {
    constexpr std::size_t entries = std::size_t{1} << window;
    Records table(s, r.state_bytes, entries), powers(s, r.state_bytes, 1);
    if (!table.there() || !powers.there()) return false;
    // Entry w is (x^7 + w)(A) s, w as a polynomial: each power of x doubles the part of the table that stands.
    StreamState *const power = powers[0];
    r.copy(table[0], s, 0);
    for (int i = 0; i < window; ++i) r.next(table[0]);
    r.copy(power, s, 0);
    for (std::size_t half = 1; half < entries; half *= 2) {
        for (std::size_t w = 0; w < half; ++w) {
            r.copy(table[half + w], table[w], 0);
            r.add(table[half + w], power, 0);
        }
        r.next(power);
    }

    r.clear(temp);
    for (std::int64_t i = g.degree; i >= 0; --i) {
        if (g[i] && i >= window) {
            std::size_t below = 0;
            for (int k = 0; k < window + 1; ++k) {
                r.next(temp);
                if (k > 0) below = 2 * below + g[i - k];
            }
            r.add(temp, table[below], 0);
            i -= window;
        } else {
            r.next(temp);
            if (g[i]) r.add(temp, s, 0);
        }
    }
    return true;
}

// The stream is written to when nothing can fail any more, so that a jump without memory leaves it where it was: its
// preparation is done on a copy.
template <class Evaluation>
std::int32_t jump(const Recurrence &r, StreamState *stream, std::uint64_t nskip, Evaluation evaluate) {
    if (nskip == 0) return HuxStatusOk;
    const std::size_t state = static_cast<std::size_t>(r.state_bytes) - sizeof(StreamState);
    Records prepared(stream, r.state_bytes, 1);
    if (!prepared.there()) return HuxStatusOutOfMemory;
    StreamState *const start = prepared[0];
    std::memcpy(&state_of(start), &state_of(stream), state);
    std::int32_t extra = 0;
    if (r.prepare(start, &nskip, &extra) == 0) {
        std::memcpy(&state_of(stream), &state_of(start), state);
        return HuxStatusOk;
    }

    Block<std::uint32_t> words(static_cast<std::size_t>(r.poly_words));
    Records result(stream, r.state_bytes, 1);
    if (words.data() == nullptr || !result.there()) return HuxStatusOutOfMemory;
    if (__huxPolyRem(nskip, r.degree, r.terms, r.exponents, r.poly_words, words.data()) != HuxStatusOk)
        return HuxStatusOutOfMemory;
    JumpPolynomial g{words.data(), r.degree - 1};
    while (g.degree >= 0 && !g[g.degree]) --g.degree;
    if (!evaluate(r, g, start, result[0])) return HuxStatusOutOfMemory;
    std::memcpy(&state_of(stream), &state_of(start), state);
    r.finish(stream, result[0], extra);
    return HuxStatusOk;
}

}  // namespace
}  // namespace qorl

using namespace qorl;

int32_t __hux_SkipAheadHorner(StreamState *stream, HuxJumpClear clear, HuxJumpAdd add, HuxJumpCopy copy,
                              HuxJumpNext next, HuxJumpFinish finish, HuxJumpPrepare prepare, uint64_t nskip,
                              int32_t poly_words, int64_t degree, int32_t state_bytes, int32_t terms,
                              const uint32_t *exponents) {
    return jump({clear, add, copy, next, finish, prepare, poly_words, degree, state_bytes, terms, exponents}, stream,
                nskip, horner);
}

int32_t __hux_SkipAheadSWin(StreamState *stream, HuxJumpClear clear, HuxJumpAdd add, HuxJumpCopy copy, HuxJumpNext next,
                            HuxJumpFinish finish, HuxJumpPrepare prepare, uint64_t nskip, int32_t poly_words,
                            int64_t degree, int32_t state_bytes, int32_t terms, const uint32_t *exponents) {
    return jump({clear, add, copy, next, finish, prepare, poly_words, degree, state_bytes, terms, exponents}, stream,
                nskip, sliding_window);
}
