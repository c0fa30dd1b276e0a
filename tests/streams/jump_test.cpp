// Jumps of a feedback shift register of words, against its steps.
#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "allocator.hpp"
#include "qorl/hux.h"
#include "streams/streams.hpp"

namespace qorl::test {
namespace {

// w[k + degree] is the sum of w[k + e] over the exponents e below the degree. The state is a circular array that begins
// at `place`; `ready` numbers wait outside of it, as those that a generator has not delivered.
constexpr std::uint32_t largest = 100;
struct Register {
    std::uint32_t place, ready, extra;
    std::uint32_t words[largest];
};
constexpr std::int32_t record_bytes = sizeof(StreamState) + sizeof(Register);

// What the functions of the register are to work with; they get no more than streams.
const std::vector<std::uint32_t> *polynomial = nullptr;

std::uint32_t degree() {
    return polynomial->back();
}

std::uint32_t &word(Register &r, std::uint32_t k) {
    return r.words[(r.place + k) % degree()];
}

void clear(StreamState *temp) {
    auto &r = state_of<Register>(temp);
    r.place = 0;
    std::fill_n(r.words, degree(), 0u);
}

void add(StreamState *temp, const StreamState *other, std::int32_t) {
    Register from = state_of<Register>(other);
    for (std::uint32_t k = 0; k < degree(); ++k) word(state_of<Register>(temp), k) ^= word(from, k);
}

void copy(StreamState *temp, const StreamState *stream, std::int32_t) {
    state_of<Register>(temp) = state_of<Register>(stream);
}

void next(StreamState *temp) {
    auto &r = state_of<Register>(temp);
    std::uint32_t sum = 0;
    for (const std::uint32_t e : *polynomial)
        if (e != degree()) sum ^= word(r, e);
    word(r, 0) = sum;
    r.place = (r.place + 1) % degree();
}

void finish(StreamState *stream, const StreamState *temp, std::int32_t extra) {
    Register from = state_of<Register>(temp);
    auto &r = state_of<Register>(stream);
    r.place = 0;
    for (std::uint32_t k = 0; k < degree(); ++k) r.words[k] = word(from, k);
    r.extra = static_cast<std::uint32_t>(extra);
}

std::int32_t prepare(StreamState *stream, std::uint64_t *nskip, std::int32_t *extra) {
    auto &r = state_of<Register>(stream);
    const std::uint64_t now = std::min<std::uint64_t>(r.ready, *nskip);
    r.ready -= static_cast<std::uint32_t>(now);
    *nskip -= now;
    *extra = 9;
    return *nskip != 0;
}

using Scheme = decltype(&__hux_SkipAheadHorner);

std::int32_t skip(Scheme scheme, StreamState *stream, std::uint64_t n) {
    const auto words = static_cast<std::int32_t>(degree() / 32 + 1);
    return scheme(stream, clear, add, copy, next, finish, prepare, n, words, degree(), record_bytes,
                  static_cast<std::int32_t>(polynomial->size()), polynomial->data());
}

// The numbers that come next.
std::vector<std::uint32_t> ahead(const StreamState *stream) {
    Register r = state_of<Register>(stream);
    std::vector<std::uint32_t> words;
    for (std::uint32_t k = 0; k < degree(); ++k) words.push_back(word(r, k));
    return words;
}

struct alignas(128) Record {
    StreamState head{0, 1, nullptr};
    Register state;

    explicit Record(std::uint32_t ready) : state{3 % degree(), ready, 0, {}} {
        for (std::uint32_t k = 0; k < degree(); ++k) state.words[k] = 2654435761u * (k + 1);
    }
};

class Jump : public Balanced, public testing::WithParamInterface<std::vector<std::uint32_t>> {
  protected:
    void SetUp() override { polynomial = &GetParam(); }
    static constexpr Scheme schemes[] = {__hux_SkipAheadHorner, __hux_SkipAheadSWin};
};

// Of degrees around the width of the window, with periods of 2^d - 1 of which some are within the range, and x^9, by
// which nothing is left of the state after nine steps.
INSTANTIATE_TEST_SUITE_P(Polynomials, Jump,
                         testing::Values(std::vector<std::uint32_t>{0, 1}, std::vector<std::uint32_t>{0, 1, 2},
                                         std::vector<std::uint32_t>{0, 1, 7}, std::vector<std::uint32_t>{0, 2, 3, 4, 8},
                                         std::vector<std::uint32_t>{9}, std::vector<std::uint32_t>{0, 3, 17},
                                         std::vector<std::uint32_t>{0, 11, 36},
                                         std::vector<std::uint32_t>{0, 37, 100}));

TEST_P(Jump, IsSoManySteps) {
    for (const Scheme scheme : schemes) {
        for (const std::uint32_t ready : {0u, 4u}) {
            Record stepped(0);
            for (std::uint64_t n = 0; n < 700; ++n) {
                if (n > ready) next(&stepped.head);
                if (n > 140 && n % 9 != 0) continue;
                Record jumped(ready);
                ASSERT_EQ(skip(scheme, &jumped.head, n), HuxStatusOk);
                ASSERT_EQ(ahead(&jumped.head), ahead(&stepped.head)) << n;
                ASSERT_EQ(jumped.state.ready, ready - std::min<std::uint64_t>(ready, n));
                ASSERT_EQ(jumped.state.extra, n > ready ? 9u : 0u) << "finished when there was something to do";
            }
        }
    }
}

TEST_P(Jump, AddsUpOverLongWays) {
    for (const Scheme scheme : schemes) {
        Record once(0), often(0), other(0);
        ASSERT_EQ(skip(scheme, &once.head, std::uint64_t{1} << 63), HuxStatusOk);
        for (int part = 0; part < 8; ++part)
            ASSERT_EQ(skip(scheme, &often.head, (std::uint64_t{1} << 60) - 1), HuxStatusOk);
        for (int step = 0; step < 8; ++step) next(&often.head);
        ASSERT_EQ(skip(schemes[scheme == schemes[0]], &other.head, std::uint64_t{1} << 63), HuxStatusOk);
        EXPECT_EQ(ahead(&once.head), ahead(&often.head));
        EXPECT_EQ(ahead(&once.head), ahead(&other.head));
    }
}

TEST_P(Jump, WithoutMemoryLeavesTheStream) {
    for (const Scheme scheme : schemes) {
        for (long failing = 1;; ++failing) {
            Record record(4);
            const Register before = record.state;
            fail_allocation(failing);
            const std::int32_t status = skip(scheme, &record.head, 1000);
            const bool failed = allocation_failed();
            fail_allocation(0);
            if (!failed) {
                EXPECT_EQ(status, HuxStatusOk);
                EXPECT_GT(failing, 3);
                break;
            }
            ASSERT_EQ(status, HuxStatusOutOfMemory) << failing;
            ASSERT_EQ(std::memcmp(&record.state, &before, sizeof before), 0) << failing;
        }
    }
}

}  // namespace
}  // namespace qorl::test
