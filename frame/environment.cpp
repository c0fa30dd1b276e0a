// The environment variable QORL_ZET_MODE: "ZET_x,ZET_y,...", tokens of the table below joined by single commas.
#include <cstring>
#include <string_view>

#include "frame/status.hpp"
#include "qorl/core.h"

namespace qorl {
namespace {

struct Keyword {
    std::string_view text;
    std::uint32_t value;
};

// In the order in which they are tried. A keyword that matches is final, so one that begins another would hide it.
// DOUBLE_CONSISTEN has one letter less than one expects; the spelling is part of the interface, since programs in the
// field set it, and the full word is refused like any other unknown token.
constexpr Keyword keywords[] = {
    {"LA", 0x1},
    {"HA", 0x2},
    {"EP", 0x3},
    {"DEFAULT_PRECISION", 0x0},
    {"FLOAT_CONSISTENT", 0x10},
    {"DOUBLE_CONSISTEN", 0x20},
    {"RESTORE", 0x30},
    {"ERRMODE_IGNORE", mode::error_ignore},
    {"ERRMODE_ERRNO", mode::error_errno},
    {"ERRMODE_STDERR", mode::error_print},
    {"ERRMODE_EXCEPT", mode::error_except},
    {"ERRMODE_CALLBACK", mode::error_callback},
    {"ERRMODE_NOERR", mode::error_none},
    {"ERRMODE_DEFAULT", mode::error_default},
    {"TRAP_INVALID", mode::trap_invalid},
    {"TRAP_DIVBYZERO", mode::trap_zero_divide},
    {"TRAP_OVERFLOW", mode::trap_overflow},
    {"TRAP_UNDERFLOW", mode::trap_underflow},
};
constexpr std::string_view prefix = "ZET_";
constexpr std::int64_t malformed = -1;
constexpr std::size_t longest = 255;

constinit std::int32_t lock = 0;

std::int64_t parse(std::string_view rest) {
    std::uint32_t value = 0;
    for (;;) {
        if (!rest.starts_with(prefix)) return malformed;
        rest.remove_prefix(prefix.size());
        const Keyword *match = nullptr;
        for (const Keyword &keyword : keywords) {
            if (rest.starts_with(keyword.text)) {
                match = &keyword;
                break;
            }
        }
        if (match == nullptr) return malformed;
        value |= match->value;
        rest.remove_prefix(match->text.size());
        if (rest.empty()) return value;
        if (rest.front() != ',') return malformed;
        rest.remove_prefix(1);
    }
}

}  // namespace

std::int64_t mode_from_environment() {
    char buffer[longest + 1];
    qorl_serv_lock(&lock);
    const std::int32_t length = qorl_serv_getenv("QORL_ZET_MODE", buffer, static_cast<std::int32_t>(sizeof buffer));
    qorl_serv_unlock(&lock);
    if (length < 1) return malformed;
    return parse(std::string_view(buffer, strnlen(buffer, longest)));
}

}  // namespace qorl
