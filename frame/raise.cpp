#include "frame/raise.hpp"

#include <bit>
#include <cerrno>
#include <cstring>
#include <type_traits>

#include "frame/control.hpp"
#include "frame/status.hpp"
#include "qorl/core.h"

namespace qorl {
namespace {

constexpr std::int32_t refused_call = -2, invalid_argument = -1, no_error = 0;
constexpr std::int32_t error_stream = 1;

// What the default handling does for a status.
struct Action {
    int error_number;
    std::uint16_t exception_flag;  // as in the x87 status word; 0 for none
    std::int32_t message;
};

constexpr Action action_of(std::int32_t status) {
    switch (status) {
        case refused_call:
            return {EACCES, 0, 749};
        case invalid_argument:
            return {EINVAL, 0, 748};
        case no_error:
            return {0, 0, 0};
        case 1:
            return {EDOM, x87_invalid, 750};
        case 2:
            return {ERANGE, x87_zero_divide, 751};
        case 3:
            return {ERANGE, x87_overflow, 752};
        case 4:
            return {ERANGE, x87_underflow, 753};
        default:
            return {EFAULT, 0, 754};
    }
}

bool has_arrays(std::int32_t status) {
    return status != refused_call && status != invalid_argument;
}

// A second value counts as absent if it repeats the first or is zero; so a second input of 0.0 is not printed.
bool is_second(double first, double second) {
    return std::bit_cast<std::uint64_t>(first) != std::bit_cast<std::uint64_t>(second) && second != 0.0;
}

void print(const QorlErrorRecord &record, std::int32_t message) {
    if (message == 0) return;
    if (record.code == refused_call) {
        qorl_serv_print(error_stream, message, 1, record.funcName);
        return;
    }
    if (record.code == invalid_argument) {
        qorl_serv_print(error_stream, message, 2, record.funcName, record.index);
        return;
    }
    qorl_serv_print(error_stream, message, 1, record.funcName);
    const bool second_input = is_second(record.in1, record.in2), second_result = is_second(record.out1, record.out2);
    std::int32_t code = second_input ? (second_result ? 763 : 760) : (second_result ? 757 : 755);
    const auto value = [&](double x) { qorl_serv_print(error_stream, code++, 2, record.index, x); };
    value(record.in1);
    if (second_input) value(record.in2);
    value(record.out1);
    if (second_result) value(record.out2);
}

void raise_exception(std::uint16_t flag) {
    const std::uint32_t traps = mode_word() & mode::traps_mask;
    std::uint16_t unmasked = 0;
    if ((traps & mode::trap_invalid) != 0) unmasked |= x87_invalid;
    if ((traps & mode::trap_zero_divide) != 0) unmasked |= x87_zero_divide;
    if ((traps & mode::trap_overflow) != 0) unmasked |= x87_overflow;
    if ((traps & mode::trap_underflow) != 0) unmasked |= x87_underflow;
    raise_x87_exception(flag, unmasked);
}

void default_handling(const QorlErrorRecord &record) {
    const std::uint32_t word = mode_word();  // read again: the callback may have changed it
    const Action action = action_of(record.code);
    if ((word & mode::error_errno) != 0) errno = action.error_number;
    if ((word & mode::error_print) != 0) print(record, action.message);
    if ((word & mode::error_except) != 0) raise_exception(action.exception_flag);
}

template <class Element>
void read(const Element &element, double &re, double &im) {
    if constexpr (std::is_floating_point_v<Element>) {
        re = element;
    } else {
        re = element.re;
        im = element.im;
    }
}

template <class Element>
void write(Element &element, double re, double im) {
    if constexpr (std::is_floating_point_v<Element>) {
        element = static_cast<Element>(re);
    } else {
        using T = decltype(element.re);
        element = {static_cast<T>(re), static_cast<T>(im)};
    }
}

}  // namespace

template <class Element>
void raise(std::int32_t status, std::int32_t index, ArrayView<const Element> a, ArrayView<const Element> b,
           ArrayView<Element> r1, ArrayView<Element> r2, const char *name) {
    KernelStatus &thread = thread_record();
    const std::uint32_t word = mode_word();
    const std::uint32_t actions = word & mode::error_mask;
    if (actions == mode::error_none) return;
    thread.status = status;
    if (actions == mode::error_ignore) return;

    QorlErrorRecord record{};
    record.code = status;
    record.index = index;
    if (thread.interfInputVector != nullptr) {
        // A front end that cuts an array into pieces wants indices into the whole array.
        const std::ptrdiff_t bytes =
            reinterpret_cast<const char *>(a.start) - static_cast<const char *>(thread.interfInputVector);
        record.index = static_cast<std::int32_t>(index + bytes / static_cast<std::ptrdiff_t>(sizeof(Element)));
    }
    constexpr std::size_t longest_name = 47;
    record.funcNameLen = static_cast<std::int32_t>(strnlen(name, longest_name));
    std::memcpy(record.funcName, name, static_cast<std::size_t>(record.funcNameLen));
    if (has_arrays(status)) {
        read(a[index], record.in1, record.in1Im);
        read(b[index], record.in2, record.in2Im);
        read(r1[index], record.out1, record.out1Im);
        read(r2[index], record.out2, record.out2Im);
    }
    if ((word & mode::error_callback) != 0 && thread.callback != nullptr && thread.callback(&record) != 0) return;
    if ((word & mode::error_any_default) != 0) default_handling(record);
    if (has_arrays(status)) {
        write(r2[index], record.out2, record.out2Im);
        write(r1[index], record.out1, record.out1Im);
    }
}

template void raise(std::int32_t, std::int32_t, ArrayView<const float>, ArrayView<const float>, ArrayView<float>,
                    ArrayView<float>, const char *);
template void raise(std::int32_t, std::int32_t, ArrayView<const double>, ArrayView<const double>, ArrayView<double>,
                    ArrayView<double>, const char *);
template void raise(std::int32_t, std::int32_t, ArrayView<const Complex<float>>, ArrayView<const Complex<float>>,
                    ArrayView<Complex<float>>, ArrayView<Complex<float>>, const char *);
template void raise(std::int32_t, std::int32_t, ArrayView<const Complex<double>>, ArrayView<const Complex<double>>,
                    ArrayView<Complex<double>>, ArrayView<Complex<double>>, const char *);

}  // namespace qorl
