// What a drawing function writes: the output forms of all generators, behind one name.
//
// A generator is written once, as a template over an Output, to which it hands packs of its words in the order of the
// sequence. The form of the output turns words into elements; it is all that i, d and s of a generator differ in. Whole
// packs and the rest of a call go through the same form, so an element depends on its word alone.
#ifndef QORL_GENERATORS_OUTPUT_HPP
#define QORL_GENERATORS_OUTPUT_HPP

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "frame/vec.hpp"

namespace qorl {

// The number that a word stands for, in the type of the arithmetic. Words of 32 bits are exact in double, so that of
// those each number is rounded once.
struct SignedNumber {
    template <class Real, int N>
    QORL_INLINE static auto of(Pack<std::int32_t, N> words) {
        if constexpr (std::is_same_v<Real, float>)
            return to_float(words);
        else
            return to_double(words);
    }
};

struct UnsignedNumber {  // of 64 bits: rounded to double, then to the type
    template <class Real, class Word, int N>
    QORL_INLINE static auto of(Pack<Word, N> words) {
        if constexpr (std::is_same_v<Real, float>)
            return narrow(unsigned_to_double(words));
        else
            return unsigned_to_double(words);
    }
};

struct Below2To52Number {  // of 64 bits, exact in double
    template <class Real, int N>
    QORL_INLINE static auto of(Pack<std::int64_t, N> words) {
        if constexpr (std::is_same_v<Real, float>)
            return narrow(below_2_to_52_to_double(words));
        else
            return below_2_to_52_to_double(words);
    }
};

struct RealNumber {  // of generators that compute in double
    template <class Real, int N>
    QORL_INLINE static Pack<double, N> of(Pack<double, N> numbers) {
        return numbers;
    }
};

// The words themselves.
template <class Word = std::int32_t>
struct Words {
    using Element = Word;
    template <int N>
    QORL_INLINE Pack<Word, N> operator()(Pack<Word, N> words) const {
        return words;
    }
};

// The low halves of words of 64 bits, in even numbers of registers.
struct LowHalves {
    using Element = std::int32_t;
    template <int N>
    QORL_INLINE auto operator()(Pack<std::int64_t, N> words) const {
        return low_halves(words);
    }
};

// factor * number + offset, one fused operation in Real, then rounded to the element's type.
template <class Number, class Real, class Stored = Real>
struct Scaled {
    using Element = Stored;
    Real factor, offset;

    template <class Word, int N>
    QORL_INLINE auto operator()(Pack<Word, N> words) const {
        const auto number = Number::template of<Real>(words);
        using Numbers = std::remove_const_t<decltype(number)>;
        const auto result = fma(number, Numbers(factor), Numbers(offset));
        if constexpr (std::is_same_v<Real, Stored>)
            return result;
        else
            return narrow(result);
    }
};

// u in [0, 1) is word * scale.
template <class Real, class Stored = Real, class Number = UnsignedNumber>
constexpr Scaled<Number, Real, Stored> scaled_from(Real a, Real b, Real scale) {
    return {(b - a) * scale, a};
}

// u - 1/2 is the signed word * 2^-32, added to the middle.
template <class Real>
constexpr Scaled<SignedNumber, Real> scaled_about_middle(Real a, Real b) {
    return {(b - a) * Real(0x1p-32), (a + b) * Real(0.5)};
}

// The place where elements go, which moves on with each call.
template <class Form>
class Output {
  public:
    using Element = typename Form::Element;

    Output(const Form &form, void *r) : form_(form), r_(static_cast<std::byte *>(r)) {}

    // Elements of all lanes.
    template <class Word, int N>
    QORL_INLINE void all(Pack<Word, N> words) {
        const auto elements = form_(words);
        store(place(), elements);
        r_ += elements.lanes * sizeof(Element);
    }

    // Elements of the first k lanes, 0 <= k <= lanes. Memory behind them is not touched.
    template <class Word, int N>
    QORL_INLINE void first(Pack<Word, N> words, int k) {
        const auto elements = form_(words);
        alignas(32) Element buffer[elements.lanes];
        store(buffer, elements);
        const std::size_t bytes = static_cast<std::size_t>(k) * sizeof(Element);
        // By pieces of known size: copying a number of bytes that is not known takes many times as long.
        const auto *from = reinterpret_cast<const std::byte *>(buffer);
        std::byte *to = r_;
        const auto piece = [&]<std::size_t Bytes> {
            std::memcpy(to, from, Bytes);
            to += Bytes, from += Bytes;
        };
        for (std::size_t left = bytes / 32; left > 0; --left) piece.template operator()<32>();
        if ((bytes & 16) != 0) piece.template operator()<16>();
        if ((bytes & 8) != 0) piece.template operator()<8>();
        if ((bytes & 4) != 0) piece.template operator()<4>();
        r_ = to;
    }

  private:
    Element *place() const { return reinterpret_cast<Element *>(r_); }

    Form form_;
    std::byte *r_;
};

}  // namespace qorl

#endif
