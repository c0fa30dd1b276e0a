// The error path, from kernels of every shape and by direct calls.
#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <functional>
#include <limits>
#include <string>
#include <vector>

#include "any_shape.hpp"
#include "frame/raise.hpp"
#include "fresh_thread.hpp"
#include "qorl/zet.h"
#include "toy_kernels.hpp"

namespace {

using qorl::Form;
using namespace qorl::test;

constexpr double inf = std::numeric_limits<double>::infinity();

thread_local std::function<std::int32_t(QorlErrorRecord &)> on_raise;
std::int32_t call_back(QorlErrorRecord *record) {
    return on_raise(*record);
}

// Every raise path test runs in a thread of its own, without errno left from before.
void with_call_back(std::function<std::int32_t(QorlErrorRecord &)> f, const std::function<void()> &body) {
    in_fresh_thread([&] {
        on_raise = std::move(f);
        _zetSetErrorCallBack(call_back);
        _zetSetInterfInputVectorPointer(nullptr);
        body();
        on_raise = nullptr;
    });
}

// The arrays of one call of a toy, some lanes special, with room for strides.
template <class T>
struct ToyCall {
    static constexpr int lanes = static_cast<int>(32 / sizeof(T)), block = toy_packs * lanes, n = 2 * block + lanes + 2;
    static constexpr T untouched = -99;
    const Toy &toy;
    Form form;
    Arguments<T> arguments;
    std::vector<T> memory[4];
    std::vector<int> special_lanes;

    ToyCall(const Toy &toy_, Form form_, std::vector<int> at_lanes = {1, 6, block + 1, n - 1})
        : toy(toy_), form(form_), special_lanes(std::move(at_lanes)) {
        const std::int32_t strides[] = {2, 3, 3, 2};
        for (int k = 0; k < 4; ++k) {
            memory[k].assign(3 * n, untouched);
            stride(k) = form == Form::unit ? 1 : strides[k];
        }
        for (int k = 0; k < 4; ++k) arguments.scalar[k] = static_cast<T>(toy.scalar[k]);
        for (int k = 0; k < 2; ++k) {
            for (int i = 0; i < n; ++i) at(k, i) = static_cast<T>(toy.regular[k]);
            for (const int i : special_lanes) at(k, i) = static_cast<T>(toy.special[k]);
            arguments.in[k] = memory[k].data();
            arguments.out[k] = memory[2 + k].data();
        }
    }
    std::int32_t &stride(int k) { return k < 2 ? arguments.in_stride[k] : arguments.out_stride[k - 2]; }
    T &at(int k, int i) { return memory[k][static_cast<std::size_t>(i * stride(k))]; }
    T &out(int k, int i) { return at(2 + k, i); }
    int outputs() const { return qorl::test::outputs(toy.shape); }
    bool is_special(int i) const {
        return std::find(special_lanes.begin(), special_lanes.end(), i) != special_lanes.end();
    }
    T expected(int k, int i) const { return static_cast<T>((is_special(i) ? toy.special_out : toy.regular_out)[k]); }
    void run() { call(toy.shape, form, toy.kernel<T>(form), n, arguments); }
};

template <class T>
class RaiseOf : public testing::Test {};
using Types = testing::Types<double, float>;
TYPED_TEST_SUITE(RaiseOf, Types);

TYPED_TEST(RaiseOf, CallBackSeesRecordsInOrderAndBlocksBeforeItsOwnComplete) {
    using T = TypeParam;
    for (const Toy &toy : toys) {
        for (const Form form : {Form::unit, Form::strided}) {
            SCOPED_TRACE(std::string(toy.name) + (form == Form::unit ? " unit" : " strided"));
            ToyCall<T> x(toy, form);
            std::size_t raised = 0;
            const std::string name = std::string("v") + letter<T> + toy.name;
            with_call_back(
                [&](QorlErrorRecord &r) {
                    const int index = r.index;
                    EXPECT_EQ(index, x.special_lanes.at(raised));
                    EXPECT_EQ(r.code, toy.status);
                    EXPECT_EQ(r.in1, toy.special[0]);
                    EXPECT_EQ(r.in2, inputs(toy.shape) == 2 ? toy.special[1] : toy.special[0]);
                    EXPECT_EQ(r.out1, toy.special_out[0]);
                    EXPECT_EQ(r.out2, toy.special_out[1]);
                    EXPECT_EQ(r.funcName, name);
                    EXPECT_EQ(static_cast<std::size_t>(r.funcNameLen), name.size());
                    EXPECT_EQ(_zetGetErrStatus(), toy.status);
                    // Whole blocks and then single registers are written at once, when their last lane is dealt with.
                    const int begin = index < 2 * x.block ? index / x.block * x.block : index / x.lanes * x.lanes;
                    for (int k = 0; k < x.outputs(); ++k) {
                        for (int i = 0; i < x.n; ++i) {
                            const bool written = i < begin || (i <= index && x.is_special(i));
                            EXPECT_EQ(x.out(k, i), written ? x.expected(k, i) : x.untouched) << i;
                        }
                    }
                    ++raised;
                    return 0;
                },
                [&] { x.run(); });
            EXPECT_EQ(raised, x.special_lanes.size());
            for (int k = 0; k < x.outputs(); ++k)
                for (int i = 0; i < x.n; ++i) EXPECT_EQ(x.out(k, i), x.expected(k, i)) << i;
        }
    }
}

TYPED_TEST(RaiseOf, CallBackReplacesResultsIfItReturnsZero) {
    using T = TypeParam;
    const double replacement[] = {1 + 0x1p-30, 2 + 0x1p-29};  // narrowed in single precision
    for (const Toy &toy : toys) {
        for (const Form form : {Form::unit, Form::strided}) {
            for (const std::int32_t answer : {0, 1, -1}) {
                SCOPED_TRACE(std::string(toy.name) + " answer " + std::to_string(answer));
                ToyCall<T> x(toy, form);
                with_call_back(
                    [&](QorlErrorRecord &r) {
                        r.out1 = replacement[0];
                        r.out2 = replacement[1];
                        return answer;
                    },
                    [&] {
                        errno = 0;
                        x.run();
                        EXPECT_EQ(errno != 0, answer == 0);  // else the default handling is skipped
                        EXPECT_EQ(_zetGetErrStatus(), toy.status);
                    });
                for (int k = 0; k < x.outputs(); ++k) {
                    for (int i = 0; i < x.n; ++i) {
                        const bool replaced = answer == 0 && x.is_special(i);
                        EXPECT_EQ(x.out(k, i), replaced ? static_cast<T>(replacement[k]) : x.expected(k, i)) << i;
                    }
                }
            }
        }
    }
}

TYPED_TEST(RaiseOf, InPlaceTheRecordHoldsTheResultAsInput) {
    for (const Toy &toy : toys) {
        for (const Form form : {Form::unit, Form::strided}) {
            SCOPED_TRACE(toy.name);
            ToyCall<TypeParam> x(toy, form);
            x.arguments.out[0] = x.memory[0].data();
            x.arguments.out_stride[0] = x.arguments.in_stride[0];
            int raised = 0;
            with_call_back(
                [&](QorlErrorRecord &r) {
                    EXPECT_EQ(r.in1, toy.special_out[0]);
                    ++raised;
                    return 0;
                },
                [&] { x.run(); });
            EXPECT_EQ(raised, 4);
            for (int i = 0; i < x.n; ++i) EXPECT_EQ(x.at(0, i), x.expected(0, i));
        }
    }
}

TYPED_TEST(RaiseOf, IndexCountsFromTheInterfaceInputVector) {
    using T = TypeParam;
    for (const Form form : {Form::unit, Form::strided}) {
        for (const std::ptrdiff_t offset : {std::ptrdiff_t{-5}, std::ptrdiff_t{1000}}) {
            ToyCall<T> x(toys[toy_binary], form, {7});
            int index = 0;
            with_call_back(
                [&](QorlErrorRecord &r) {
                    index = r.index;
                    return 0;
                },
                [&] {
                    const auto start = reinterpret_cast<std::uintptr_t>(x.arguments.in[0]);
                    _zetSetInterfInputVectorPointer(
                        reinterpret_cast<void *>(start - static_cast<std::uintptr_t>(offset) * sizeof(T)));
                    x.run();
                });
            EXPECT_EQ(index, 7 + offset);  // steps and elements, added as they are
        }
    }
}

// A raise by direct call on arrays of one element.
template <class Element>
void raise_one(std::int32_t status, Element *in1, Element *in2, Element *out1, Element *out2,
               const char *name = "vdToy") {
    qorl::raise<Element>(status, 0, {in1, 1}, {in2, 1}, {out1, 1}, {out2, 1}, name);
}

TEST(Raise, KernelsOfTheLibraryNameThemselvesWithoutLevel) {
    for (const qorl::Level level : levels) {
        for (const Form form : {Form::unit, Form::strided}) {
            double x[60], y[60];
            for (double &value : x) value = 0;
            x[16] = 1000;
            int raised = 0;
            with_call_back(
                [&](QorlErrorRecord &r) {
                    ++raised;
                    EXPECT_STREQ(r.funcName, "vdExp");
                    EXPECT_EQ(r.funcNameLen, 5);
                    EXPECT_EQ(r.index, form == Form::unit ? 16 : 8);
                    EXPECT_EQ(r.code, 3);
                    EXPECT_EQ(r.in1, 1000);
                    EXPECT_EQ(r.in2, 1000);
                    EXPECT_EQ(r.out1, inf);
                    EXPECT_EQ(r.out2, inf);
                    r.out1 = -4;
                    return 0;
                },
                [&] {
                    const std::string_view function = form == Form::unit ? "Exp" : "ExpI";
                    const std::int32_t stride = form == Form::unit ? 1 : 2;
                    const Arguments<double> arguments{{x, x}, {y, y}, {stride, stride}, {stride, stride}, {}};
                    call(*qorl::find_entry('d', function), level, 60 / stride, arguments);
                });
            EXPECT_EQ(raised, 1);
            EXPECT_EQ(y[16], -4);
        }
    }
}

TEST(Raise, ActsByTheErrorMode) {
    const struct {
        std::uint32_t error_mode;
        bool stored, called, error_number, printed;
    } rows[] = {
        {0x100, true, false, false, false},  // alone: the status and nothing else
        {0x200, true, false, true, false},    {0x300, true, false, true, false},  {0x400, true, false, false, true},
        {0x500, true, false, false, true},    {0x800, true, false, false, false}, {0x1000, true, true, false, false},
        {0x1100, true, true, false, false},   {0x1A00, true, true, true, false},  {0x1E00, true, true, true, true},
        {0x2000, false, false, false, false},  // alone: nothing at all
        {0x2200, true, false, true, false},   {0x3100, true, true, false, false},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(testing::Message() << std::hex << row.error_mode);
        bool called = false;
        with_call_back(
            [&](QorlErrorRecord &) {
                called = true;
                return 0;
            },
            [&] {
                double x = 1, y = 2;
                _zetSetMode(row.error_mode);
                errno = 0;
                testing::internal::CaptureStderr();
                raise_one(3, &x, &x, &y, &y);
                const int number = errno;
                EXPECT_EQ(testing::internal::GetCapturedStderr().empty(), !row.printed);
                EXPECT_EQ(number, row.error_number ? ERANGE : 0);
                EXPECT_EQ(_zetGetErrStatus(), row.stored ? 3 : 0);
                EXPECT_EQ(called, row.called);
            });
    }
}

TEST(Raise, WithoutACallBackTheBitIsHarmless) {
    in_fresh_thread([] {
        double x = 1, y = 2;
        _zetSetMode(0x1000);
        raise_one(3, &x, &x, &y, &y);
        EXPECT_EQ(_zetGetErrStatus(), 3);
    });
}

TEST(Raise, ModeChangedByTheCallBackHoldsForTheDefaultHandlingOnly) {
    double x = 1, y = 2;
    // The handling reads the mode anew ...
    with_call_back(
        [](QorlErrorRecord &) {
            _zetSetMode(0x400);
            return 0;
        },
        [&] {
            errno = 0;
            testing::internal::CaptureStderr();
            raise_one(3, &x, &x, &y, &y);
            const int number = errno;
            EXPECT_FALSE(testing::internal::GetCapturedStderr().empty());
            EXPECT_EQ(number, 0);
        });
    // ... and whether it is entered was settled before.
    with_call_back(
        [](QorlErrorRecord &) {
            _zetSetMode(0x200);
            return 0;
        },
        [&] {
            _zetSetMode(0x1000);
            errno = 0;
            raise_one(3, &x, &x, &y, &y);
            EXPECT_EQ(errno, 0);
        });
}

TEST(Raise, StatusDecidesErrnoAndMessage) {
    const struct {
        std::int32_t status;
        int error_number;
        const char *first_line;
    } rows[] = {
        {-2, EACCES, "qorl: vdToy: the call was refused\n"},
        {-1, EINVAL, "qorl: vdToy: invalid argument, index 0\n"},
        {0, 0, ""},
        {1, EDOM, "qorl: vdToy: domain error: the function is not defined for an argument\n"},
        {2, ERANGE, "qorl: vdToy: singularity: the exact result is infinite\n"},
        {3, ERANGE, "qorl: vdToy: overflow: the result is too large for its type\n"},
        {4, ERANGE, "qorl: vdToy: underflow: the result is too small for its type\n"},
        {5, EFAULT, "qorl: vdToy: unknown error\n"},
        {-3, EFAULT, "qorl: vdToy: unknown error\n"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.status);
        in_fresh_thread([&] {
            double x = 1, y = 2;
            // These two say nothing of elements: arrays that cannot be read must stay untouched.
            const bool has_arrays = row.status != -1 && row.status != -2;
            double *const in = has_arrays ? &x : nullptr, *const out = has_arrays ? &y : nullptr;
            _zetSetMode(0x600);
            errno = ENOENT;
            testing::internal::CaptureStderr();
            raise_one(row.status, in, in, out, out);
            const int number = errno;
            std::string expected = row.first_line;
            if (has_arrays && row.status != 0)
                expected += "qorl:   element 0: input = 1\nqorl:   element 0: result = 2\n";
            EXPECT_EQ(testing::internal::GetCapturedStderr(), expected);
            EXPECT_EQ(number, row.error_number);
            EXPECT_EQ(_zetGetErrStatus(), row.status);
        });
    }
}

TEST(Raise, MessageTellsTheValuesThereAre) {
    const std::string at = "qorl:   element 12: ";
    const struct {
        double in1, in2, out1, out2;
        std::string text;
    } rows[] = {
        {1, 1, 3, 3, at + "input = 1\n" + at + "result = 3\n"},
        {1, 0, 3, -0.0, at + "input = 1\n" + at + "result = 3\n"},  // a second value of zero counts as absent
        {1, 1, 3, 4, at + "input = 1\n" + at + "first result = 3\n" + at + "second result = 4\n"},
        {1, 2, 3, 3, at + "first input = 1\n" + at + "second input = 2\n" + at + "result = 3\n"},
        {0.0, -0.0, 3, 3, at + "input = 0\n" + at + "result = 3\n"},
        {1, inf, -inf, 4,
         at + "first input = 1\n" + at + "second input = inf\n" + at + "first result = -inf\n" + at +
             "second result = 4\n"},
    };
    for (const auto &row : rows) {
        in_fresh_thread([&] {
            double a[25] = {}, b[25] = {}, y[25] = {}, z[25] = {};
            a[24] = row.in1;
            b[12] = row.in2;
            y[24] = row.out1;
            z[12] = row.out2;
            _zetSetMode(0x400);
            testing::internal::CaptureStderr();
            qorl::raise<double>(1, 12, {a, 2}, {b, 1}, {y, 2}, {z, 1}, "vdToy");
            EXPECT_EQ(testing::internal::GetCapturedStderr(),
                      "qorl: vdToy: domain error: the function is not defined for an argument\n" + row.text);
        });
    }
}

TEST(Raise, FirstResultStaysWhereOneArrayHoldsBoth) {
    double x = 1, y = 2;
    with_call_back(
        [](QorlErrorRecord &r) {
            r.out1 = 5;
            r.out2 = 6;
            return 0;
        },
        [&] { raise_one(3, &x, &x, &y, &y); });
    EXPECT_EQ(y, 5);
}

TEST(Raise, LongNameIsCutAfter47Characters) {
    const std::string longest(47, 'n'), longer(60, 'n');
    for (const std::string &name : {longest, longer}) {
        int raised = 0;
        with_call_back(
            [&](QorlErrorRecord &r) {
                ++raised;
                EXPECT_EQ(r.funcName, longest);
                EXPECT_EQ(r.funcNameLen, 47);
                return 1;
            },
            [&] {
                double x = 1;
                raise_one(3, &x, &x, &x, &x, name.c_str());
            });
        EXPECT_EQ(raised, 1);
    }
}

template <class T>
class RaiseOfComplex : public testing::Test {};
TYPED_TEST_SUITE(RaiseOfComplex, Types);

TYPED_TEST(RaiseOfComplex, CarriesBothParts) {
    using C = qorl::Complex<TypeParam>;
    C a[9] = {}, b[9] = {}, y[9] = {}, z[9] = {};
    a[6] = {1, 2};
    b[3] = {3, 4};
    y[6] = {5, 6};
    z[3] = {7, 8};
    int raised = 0;
    with_call_back(
        [&](QorlErrorRecord &r) {
            ++raised;
            const double seen[] = {r.in1, r.in1Im, r.in2, r.in2Im, r.out1, r.out1Im, r.out2, r.out2Im};
            for (int i = 0; i < 8; ++i) EXPECT_EQ(seen[i], i + 1);
            EXPECT_EQ(r.index, 3 + 2);  // elements are pairs
            r.out1 = 15;
            r.out1Im = 16;
            r.out2 = 17;
            r.out2Im = 18;
            return 0;
        },
        [&] {
            _zetSetInterfInputVectorPointer(a - 2);
            qorl::raise<C>(1, 3, {a, 2}, {b, 1}, {y, 2}, {z, 1}, "vcToy");
        });
    EXPECT_EQ(raised, 1);
    EXPECT_TRUE(y[6].re == 15 && y[6].im == 16 && z[3].re == 17 && z[3].im == 18);
}

}  // namespace
