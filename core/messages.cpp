// The message catalogue and its printing.

#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <cstdarg>
#include <cstdio>

#include "qorl/core.h"

namespace {

enum class Arguments { none, name, name_and_index, index_and_value };

struct Message {
    int32_t code;
    Arguments arguments;
    const char *text;
};

constexpr Message catalogue[] = {
    {748, Arguments::name_and_index, "invalid argument"},
    {749, Arguments::name, "the call was refused"},
    {750, Arguments::name, "domain error: the function is not defined for an argument"},
    {751, Arguments::name, "singularity: the exact result is infinite"},
    {752, Arguments::name, "overflow: the result is too large for its type"},
    {753, Arguments::name, "underflow: the result is too small for its type"},
    {754, Arguments::name, "unknown error"},
    {755, Arguments::index_and_value, "input"},
    {756, Arguments::index_and_value, "result"},
    {757, Arguments::index_and_value, "input"},
    {758, Arguments::index_and_value, "first result"},
    {759, Arguments::index_and_value, "second result"},
    {760, Arguments::index_and_value, "first input"},
    {761, Arguments::index_and_value, "second input"},
    {762, Arguments::index_and_value, "result"},
    {763, Arguments::index_and_value, "first input"},
    {764, Arguments::index_and_value, "second input"},
    {765, Arguments::index_and_value, "first result"},
    {766, Arguments::index_and_value, "second result"},
    {773, Arguments::none, "no memory for the state that each thread keeps"},
};

constexpr int32_t argument_count(Arguments arguments) {
    switch (arguments) {
        case Arguments::none:
            return 0;
        case Arguments::name:
            return 1;
        case Arguments::name_and_index:
        case Arguments::index_and_value:
            return 2;
    }
    return -1;
}

const Message *find(int32_t code, int32_t count) {
    for (const Message &message : catalogue) {
        if (message.code == code && argument_count(message.arguments) == count) return &message;
    }
    return nullptr;
}

// A name of 200 bytes, a value of at most 24, a text and the frame round them fit.
constexpr size_t line_size = 320;
constexpr int name_limit = 200;

// The arguments of a call, those that its message has.
struct Values {
    const char *name = nullptr;
    int32_t index = 0;
    double value = 0;
};

int format(char (&line)[line_size], const Message &message, const Values &values) {
    const char *name = values.name != nullptr ? values.name : "?";
    switch (message.arguments) {
        case Arguments::none:
            return std::snprintf(line, line_size, "qorl: %s\n", message.text);
        case Arguments::name:
            return std::snprintf(line, line_size, "qorl: %.*s: %s\n", name_limit, name, message.text);
        case Arguments::name_and_index:
            return std::snprintf(line, line_size, "qorl: %.*s: %s, index %d\n", name_limit, name, message.text,
                                 values.index);
        case Arguments::index_and_value: {
            // Not by printf, whose digits depend on the locale and on the rounding mode.
            char digits[32];
            *std::to_chars(digits, digits + sizeof digits - 1, values.value).ptr = '\0';
            return std::snprintf(line, line_size, "qorl:   element %d: %s = %s\n", values.index, message.text, digits);
        }
    }
    return 0;
}

// True when all was written. One call writes the line; more are needed only when a signal or a full pipe cuts it.
bool write_all(int descriptor, const char *bytes, size_t count) {
    while (count != 0) {
        const ssize_t written = write(descriptor, bytes, count);
        if (written < 0) {
            if (errno == EINTR) continue;
            return false;
        }
        bytes += written;
        count -= static_cast<size_t>(written);
    }
    return true;
}

}  // namespace

int32_t qorl_serv_print(int32_t destination, int32_t code, int32_t count, ...) {
    if (destination != 1) return -1;
    // Messages are printed in the middle of a kernel, after errno was set for its caller.
    const int saved_errno = errno;
    char line[line_size];
    const Message *message = find(code, count);
    int length;
    if (message == nullptr) {
        length =
            std::snprintf(line, line_size, "qorl: message %d with %d arguments is not in the catalogue\n", code, count);
    } else {
        const Arguments kind = message->arguments;
        Values values;
        va_list arguments;
        va_start(arguments, count);
        if (kind == Arguments::name || kind == Arguments::name_and_index) values.name = va_arg(arguments, const char *);
        if (kind == Arguments::name_and_index || kind == Arguments::index_and_value) {
            values.index = va_arg(arguments, int32_t);
        }
        if (kind == Arguments::index_and_value) values.value = va_arg(arguments, double);
        va_end(arguments);
        length = format(line, *message, values);
    }
    const bool written = length > 0 && write_all(STDERR_FILENO, line, static_cast<size_t>(length));
    errno = saved_errno;
    return written && message != nullptr ? 0 : -1;
}
