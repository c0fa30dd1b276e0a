// A stream that is deleted at the end of the scope, and what is drawn from it.
#ifndef QORL_TESTS_GENERATORS_STREAM_HPP
#define QORL_TESTS_GENERATORS_STREAM_HPP

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "generator.hpp"

namespace qorl::test {

class Stream {
  public:
    Stream() = default;
    Stream(std::int32_t id, const Seed &seed) {
        status = __huxNewStreamEx(&state, id, static_cast<std::int32_t>(seed.size()), seed.data());
    }
    ~Stream() {
        if (state != nullptr) __huxDeleteStream(&state);
    }
    Stream(const Stream &) = delete;
    Stream &operator=(const Stream &) = delete;

    const BrngProperties &row() const { return properties_of(*state); }

    Elements integers(int n) const {
        const auto size = static_cast<std::size_t>(row().word_size);
        const auto bytes = drawn<std::uint8_t>(n, size, [&](std::uint8_t *r) { return row().i(state, n, r); });
        Elements elements(bytes.size() / size, Element{});
        for (std::size_t k = 0; k < elements.size(); ++k) std::memcpy(elements[k].data(), &bytes[k * size], size);
        return elements;
    }
    std::vector<double> doubles(int n, double a, double b) const {
        return drawn<double>(n, 1, [&](double *r) { return row().d(state, n, r, a, b); });
    }
    std::vector<float> singles(int n, float a, float b) const {
        return drawn<float>(n, 1, [&](float *r) { return row().s(state, n, r, a, b); });
    }

    std::vector<std::uint8_t> image() const {
        std::vector<std::uint8_t> bytes(static_cast<std::size_t>(__huxGetStreamSize(state)));
        __huxSaveStreamM(state, bytes.data());
        return bytes;
    }

    StreamState *state = nullptr;
    std::int32_t status = HuxStatusOk;

  private:
    // Numbers go to a place that the alignment of the type allows and no more, with marks behind the last.
    template <class T, class Draw>
    static std::vector<T> drawn(int n, std::size_t unit, Draw draw) {
        constexpr T mark = 77;
        const std::size_t count = static_cast<std::size_t>(std::max(n, 0)) * unit, before = sizeof(T) == 1 ? 4 : 1;
        std::vector<T> place(before + count + 16, mark);
        EXPECT_EQ(draw(place.data() + before), HuxStatusOk);
        for (std::size_t k = 0; k < before; ++k) EXPECT_EQ(place[k], mark) << "written ahead of the place";
        for (std::size_t k = before + count; k < place.size(); ++k) EXPECT_EQ(place[k], mark) << "written behind";
        return {place.begin() + static_cast<std::ptrdiff_t>(before), place.end() - 16};
    }
};

}  // namespace qorl::test

#endif
