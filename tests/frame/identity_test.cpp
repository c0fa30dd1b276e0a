// The result of an element depends on its value alone, and a kernel touches the elements of its call and nothing else.
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "any_shape.hpp"
#include "fresh_thread.hpp"
#include "qorl/zet.h"
#include "toy_kernels.hpp"

namespace {

using qorl::Entry;
using qorl::Form;
using qorl::Level;
using namespace qorl::test;

// Memory between two pages that cannot be touched.
class Guarded {
  public:
    Guarded() {
        base_ = static_cast<char *>(
            mmap(nullptr, size + 2 * page_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
        mprotect(base_, page_, PROT_NONE);
        mprotect(base_ + page_ + size, page_, PROT_NONE);
    }
    ~Guarded() { munmap(base_, size + 2 * page_); }
    Guarded(const Guarded &) = delete;
    Guarded &operator=(const Guarded &) = delete;

    static constexpr std::size_t size = 1 << 14;
    char *begin() { return base_ + page_; }
    char *end() { return begin() + size; }

  private:
    std::size_t page_ = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    char *base_;
};

// An array of n elements at a stride that touches the front guard or the back guard. `first` is element 0.
template <class T>
struct Placed {
    T *first, *low;
    std::ptrdiff_t stride;
    std::size_t span;

    Placed(Guarded &memory, bool at_end, std::ptrdiff_t n, std::ptrdiff_t stride_) : stride(stride_) {
        span = n == 0 ? 0 : static_cast<std::size_t>((n - 1) * std::abs(stride) + 1);
        low = reinterpret_cast<T *>(at_end ? memory.end() - span * sizeof(T) : memory.begin());
        first = stride < 0 && n != 0 ? low + (n - 1) * -stride : low;
    }
    T &operator[](std::ptrdiff_t i) const { return first[i * stride]; }
};

struct Strides {
    std::int32_t a, b, y, z;
};
constexpr Strides strides[] = {{1, 1, 1, 1},    {1, 1, 2, 3},   {2, 1, 1, 1},  {2, 3, 3, 2},
                               {1, 2, 1, 1},    {-1, -1, 1, 1}, {1, 1, -1, 1}, {1, 1, 1, -2},
                               {-2, 3, -3, -1}, {0, 1, 1, 2},   {1, 0, 0, 0},  {0, 0, 0, 1}};

// Values for the inputs of an element: special and ordinary ones of every size, in no order that a vector would match.
// Signalling NaNs are left out: Abs quiets them in blocks only, as its interface says.
template <class T>
std::vector<T> pool(unsigned seed) {
    using L = std::numeric_limits<T>;
    std::vector<T> x = {
        T(0),      T(-0.0),   L::infinity(), -L::infinity(), L::quiet_NaN(), -L::quiet_NaN(), L::denorm_min(),
        -L::min(), L::max(),  L::lowest(),   T(1),           T(-1),          T(0.5),          T(2),
        T(710),    T(-745.1), T(88.75),      T(-103.9)};
    std::mt19937_64 random(seed);
    std::uniform_real_distribution<double> unit(-1, 1);
    for (int i = 0; i < 20; ++i) {
        const T any = from_bits<T>(static_cast<BitsOf<T>>(random()));
        if (any == any) x.push_back(any);
        x.push_back(static_cast<T>(unit(random)));
        for (const double scale : {1e-3, 20.0, 300.0}) x.push_back(static_cast<T>(scale * unit(random)));
    }
    std::shuffle(x.begin(), x.end(), random);
    return x;
}

template <class T>
class Identity {
  public:
    Identity(const Entry &unit, Level level) : unit_(unit), strided_(*qorl::strided_twin(unit)), level_(level) {
        for (std::size_t i = 0; i < a_.size(); ++i) {
            T out[2] = {};
            call(unit_, level_, 1, Arguments<T>{{&a_[i], &b_[i]}, {&out[0], &out[1]}});
            for (int k = 0; k < 2; ++k) expected_[k].push_back(out[k]);
        }
    }

    // All lengths up to three blocks of the widest kernels and one more.
    void run() {
        constexpr int lanes = 32 / sizeof(T), longest = 3 * 4 * lanes + 1;
        for (std::int32_t n = 0; n <= longest && !testing::Test::HasFailure(); ++n) {
            for (const bool at_end : {true, false}) {
                check(unit_, n, strides[0], at_end);
                for (const Strides &s : strides) check(strided_, n, s, at_end);
            }
            check_in_place(unit_, n, 1);
            check_in_place(strided_, n, 3);
            check_in_place(strided_, n, -2);
        }
    }

  private:
    void check(const Entry &entry, std::int32_t n, const Strides &s, bool at_end) {
        const T untouched = from_bits<T>(static_cast<BitsOf<T>>(0xA5A5A5A5A5A5A5A5));
        const Placed<T> a(memory_[0], at_end, n, s.a), b(memory_[1], at_end, n, s.b);
        const Placed<T> y(memory_[2], at_end, n, s.y), z(memory_[3], at_end, n, s.z);
        for (std::ptrdiff_t i = n - 1; i >= 0; --i) {  // with stride 0 the element is that of i = 0
            a[i] = a_[index(i)];
            b[i] = b_[index(i)];
        }
        const Placed<T> out[] = {y, z};
        for (const auto &o : out) std::fill_n(o.low, o.span, untouched);
        call(entry, level_, n, Arguments<T>{{a.first, b.first}, {y.first, z.first}, {s.a, s.b}, {s.y, s.z}});

        for (int k = 0; k < outputs(entry.shape); ++k) {
            std::vector<T> expected(out[k].span, untouched);
            for (std::ptrdiff_t i = 0; i < n; ++i)
                expected[static_cast<std::size_t>(&out[k][i] - out[k].low)] = result(k, entry, s, i);
            for (std::size_t j = 0; j < expected.size(); ++j) {
                ASSERT_EQ(bits(out[k].low[j]), bits(expected[j]))
                    << "n " << n << " strides " << s.a << ' ' << s.b << ' ' << s.y << ' ' << s.z << " element " << j
                    << " of result " << k << (at_end ? " at end" : " at start");
            }
        }
    }

    void check_in_place(const Entry &entry, std::int32_t n, std::int32_t stride) {
        const Placed<T> a(memory_[0], true, n, stride), b(memory_[1], true, n, 1), z(memory_[3], true, n, 1);
        for (std::ptrdiff_t i = 0; i < n; ++i) {
            a[i] = a_[index(i)];
            b[i] = b_[index(i)];
        }
        call(entry, level_, n, Arguments<T>{{a.first, b.first}, {a.first, z.first}, {stride, 1}, {stride, 1}});
        for (std::ptrdiff_t i = 0; i < n; ++i)
            ASSERT_EQ(bits(a[i]), bits(expected_[0][index(i)])) << "in place, n " << n << " element " << i;
    }

    std::size_t index(std::ptrdiff_t i) const { return static_cast<std::size_t>(i + 5) % a_.size(); }

    T result(int k, const Entry &entry, const Strides &s, std::ptrdiff_t i) {
        const bool two = inputs(entry.shape) == 2;
        if (s.a != 0 && (s.b != 0 || !two)) return expected_[k][index(i)];
        T out[2] = {};
        const T a = a_[index(s.a == 0 ? 0 : i)], b = b_[index(s.b == 0 ? 0 : i)];
        call(unit_, level_, 1, Arguments<T>{{&a, &b}, {&out[0], &out[1]}});
        return out[k];
    }

    const Entry &unit_, &strided_;
    const Level level_;
    const std::vector<T> a_ = pool<T>(1), b_ = pool<T>(2);
    std::vector<T> expected_[2];
    Guarded memory_[4];
};

class Kernels : public testing::TestWithParam<qorl::Function> {};

TEST_P(Kernels, GiveTheSameBitsAtEveryPlaceLengthAndStrideAndTouchNothingElse) {
    const qorl::Function &function = GetParam();
    const Entry &unit = *qorl::find_entry(function.type, function.name);
    ASSERT_NE(qorl::kernel_caller<float>(unit.shape, unit.form), nullptr) << "frame/call.hpp does not know this shape";
    in_fresh_thread([&] {
        _zetSetMode(0x100);
        for (const Level level : levels) {
            SCOPED_TRACE(level_names[static_cast<int>(level)]);
            for_type(function, [&]<class T>(T) { Identity<T>(unit, level).run(); });
        }
    });
}

INSTANTIATE_TEST_SUITE_P(Landed, Kernels, testing::ValuesIn(qorl::functions),
                         [](const auto &test) { return name_of(test.param); });

// Pages that are never touched cost nothing, so an array can span gigabytes.
template <class T>
class Sparse {
  public:
    Sparse(std::ptrdiff_t n, std::int32_t stride) {
        const std::ptrdiff_t far = (n - 1) * std::ptrdiff_t{stride};
        size_ = static_cast<std::size_t>(std::abs(far) + 1) * sizeof(T);
        base_ = mmap(nullptr, size_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
        if (base_ != MAP_FAILED) first = static_cast<T *>(base_) + (far < 0 ? -far : 0);
    }
    ~Sparse() {
        if (first != nullptr) munmap(base_, size_);
    }
    Sparse(const Sparse &) = delete;
    Sparse &operator=(const Sparse &) = delete;
    T *first = nullptr;

  private:
    std::size_t size_;
    void *base_;
};

template <class T>
void check_far_strides(qorl::Shape shape, void *kernel, const char *name) {
    constexpr std::int32_t n = 2 * 32 / sizeof(T) + 3;
    for (const std::int32_t stride : {1 << 20, -(1 << 20), std::numeric_limits<std::int32_t>::max() - 4,
                                      std::numeric_limits<std::int32_t>::min() + 4}) {
        const Sparse<T> a(n, stride), y(n, stride);
        if (a.first == nullptr || y.first == nullptr) GTEST_SKIP() << "no address space for a stride of " << stride;
        const std::ptrdiff_t s = stride;
        for (int i = 0; i < n; ++i) a.first[i * s] = static_cast<T>(i + 1) / 8;
        T z[n];
        Arguments<T> arguments{{a.first, a.first}, {y.first, z}, {stride, stride}, {stride, 1}};
        call(shape, Form::strided, kernel, n, arguments);
        T x[n], expected[n];
        for (int i = 0; i < n; ++i) x[i] = static_cast<T>(i + 1) / 8;
        arguments = {{x, x}, {expected, z}};
        call(shape, Form::strided, kernel, n, arguments);
        for (int i = 0; i < n; ++i)
            EXPECT_EQ(y.first[i * s], expected[i]) << name << " stride " << stride << " at " << i;
    }
}

TEST(Strides, ReachFartherThan32BitsOfElements) {
    in_fresh_thread([] {
        for (const Toy &toy : toys) {  // with loads one by one and by gather instructions
            check_far_strides<float>(toy.shape, toy.kernel<float>(Form::strided), toy.name);
            check_far_strides<double>(toy.shape, toy.kernel<double>(Form::strided), toy.name);
        }
        for (const qorl::Function &function : qorl::functions) {
            const Entry &strided = *qorl::strided_twin(*qorl::find_entry(function.type, function.name));
            for_type(function, [&]<class T>(T) {
                check_far_strides<T>(strided.shape, kernel_of(strided, Level::HA), function.name.data());
            });
        }
    });
}

}  // namespace
