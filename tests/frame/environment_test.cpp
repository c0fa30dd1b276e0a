// The environment variable that a thread reads when it first needs its mode word.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <string>

#include "fresh_thread.hpp"
#include "qorl/zet.h"

namespace {

using qorl::test::in_fresh_thread;

std::uint32_t mode_with(const char *value) {
    if (value != nullptr)
        setenv("QORL_ZET_MODE", value, 1);
    else
        unsetenv("QORL_ZET_MODE");
    const std::uint32_t mode = in_fresh_thread(_zetGetMode);
    unsetenv("QORL_ZET_MODE");
    return mode;
}

TEST(Environment, SeedsTheModeWordByItsGrammar) {
    constexpr std::uint32_t initial = 0x1A02;
    const struct {
        const char *value;
        std::uint32_t mode;
    } rows[] = {
        {nullptr, initial},
        {"", initial},
        {"ZET_LA", 0x1A01},
        {"ZET_HA", 0x1A02},
        {"ZET_EP", 0x1A03},
        {"ZET_DEFAULT_PRECISION", initial},
        {"ZET_FLOAT_CONSISTENT", 0x1A12},
        {"ZET_DOUBLE_CONSISTEN", 0x1A22},
        {"ZET_DOUBLE_CONSISTENT", initial},
        {"ZET_LA,ZET_DOUBLE_CONSISTENT", initial},  // a failure throws away what was read before it
        {"ZET_RESTORE", 0x1A32},
        {"ZET_ERRMODE_IGNORE", 0x102},
        {"ZET_ERRMODE_ERRNO", 0x202},
        {"ZET_ERRMODE_STDERR", 0x402},
        {"ZET_ERRMODE_EXCEPT", 0x802},
        {"ZET_ERRMODE_CALLBACK", 0x1002},
        {"ZET_ERRMODE_NOERR", 0x2002},
        {"ZET_ERRMODE_DEFAULT", 0x1A02},
        {"ZET_TRAP_INVALID", 0x1001A02},
        {"ZET_TRAP_DIVBYZERO", 0x2001A02},
        {"ZET_TRAP_OVERFLOW", 0x4001A02},
        {"ZET_TRAP_UNDERFLOW", 0x8001A02},
        {"ZET_LA,ZET_ERRMODE_NOERR", 0x2001},
        {"ZET_LA,ZET_HA", 0x1A03},  // values are or-ed
        {"ZET_RESTORE,ZET_TRAP_INVALID", 0x1001A32},
        {"ZET_TRAP_OVERFLOW,ZET_EP,ZET_ERRMODE_ERRNO,ZET_ERRMODE_STDERR", 0x4000603},
        {"zet_ha", initial},
        {"ZET_ep", initial},
        {"ZET_EP,", initial},
        {",ZET_EP", initial},
        {"ZET_EP,,ZET_LA", initial},
        {"ZET_EP, ZET_LA", initial},
        {"ZET_EP ", initial},
        {" ZET_EP", initial},
        {"ZET_", initial},
        {"ZET_EPX", initial},
        {"ZET_EP,EP", initial},
        {"ZET_E", initial},
    };
    for (const auto &row : rows) EXPECT_EQ(mode_with(row.value), row.mode) << (row.value ? row.value : "(absent)");
}

TEST(Environment, ValueThatDoesNotFitIntoItsBufferCountsAsAbsent) {
    std::string start;
    for (int i = 0; i < 34; ++i) start += "ZET_LA,";
    EXPECT_EQ(mode_with((start + "ZET_TRAP_INVALID").c_str()), 0x1001A01u);  // 254 bytes
    EXPECT_EQ(mode_with((start + "ZET_ERRMODE_ERRNO").c_str()), 0x201u);     // 255, the last that fit
    EXPECT_EQ(mode_with((start + "ZET_ERRMODE_IGNORE").c_str()), 0x1A02u);   // 256
    EXPECT_EQ(mode_with((start + start + "ZET_ERRMODE_ERRNO").c_str()), 0x1A02u);
    // What is cut off must not turn a refused value into an accepted one.
    EXPECT_EQ(mode_with((start + "ZET_ERRMODE_ERRNO,ZET_EP").c_str()), 0x1A02u);
    EXPECT_EQ(mode_with((start + "ZET_ERRMODE_ERRNOX").c_str()), 0x1A02u);
}

TEST(Environment, IsReadOnceInAThreadAndNotInherited) {
    setenv("QORL_ZET_MODE", "ZET_EP", 1);
    in_fresh_thread([] {
        EXPECT_EQ(_zetSetMode(0x1), 0x1A03u);
        setenv("QORL_ZET_MODE", "ZET_ERRMODE_ERRNO", 1);
        EXPECT_EQ(_zetGetMode(), 0x1A01u);
        EXPECT_EQ(in_fresh_thread(_zetGetMode), 0x202u);
        EXPECT_EQ(_zetGetMode(), 0x1A01u);
    });
    unsetenv("QORL_ZET_MODE");
}

}  // namespace
