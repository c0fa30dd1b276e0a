// The mode word, status and callback of a thread through the public functions.
#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

#include "fresh_thread.hpp"
#include "qorl/zet.h"

namespace {

using qorl::test::in_fresh_thread;

TEST(Mode, MergesEachFieldThatIsNotZero) {
    const struct {
        std::uint32_t before, set, after;
    } rows[] = {
        {0, 0, 0x1A02},
        {0, 0x30, 0x1A02},  // consistency comes from the environment only
        {0, 3, 0x1A03},
        {0, 0xF, 0x1A0F},
        {0, 0x100, 0x102},
        {0, 0x2001, 0x2001},
        {0, 0x140000, 0x141A02},
        {0x280000, 0x140000, 0x141A02},
        {0x280000, 0, 0x281A02},
        {0, 0x5000000, 0x5001A02},
        {0x5000000, 0x8000000, 0x8001A02},
        {0, 0x10000, 0x11A02},
        {0x10000, 0x20000, 0x21A02},
        {0, 0xF0C000F0, 0x1A02},  // no field
        {0, 0xFFFFFFFF, 0xF3FFF0F},
        {0xFFFFFFFF, 0xF0C000F0, 0xF3FFF0F},
        {0xFFFFFFFF, 0x1451A01, 0x1051A01},
    };
    for (const auto &row : rows) {
        in_fresh_thread([&] {
            SCOPED_TRACE(testing::Message() << std::hex << row.before << ' ' << row.set);
            _zetSetMode(row.before);
            const std::uint32_t before = _zetGetMode();
            EXPECT_EQ(_zetSetMode(row.set), before);
            EXPECT_EQ(_zetGetMode(), row.after);
        });
    }
}

TEST(Mode, BracketRoundACallForcesDenormalsAndLeavesTheRest) {
    for (const std::uint32_t before : {0x1A02u, 0x281A02u}) {
        in_fresh_thread([&] {
            _zetSetMode(before);
            const std::uint32_t old = _zetSetMode(0x140000);
            EXPECT_EQ(_zetGetMode(), 0x141A02u);
            _zetSetMode(old);
            // A field of 0 is not merged, so what was forced stays where nothing had been set.
            EXPECT_EQ(_zetGetMode(), before == 0x1A02 ? 0x141A02 : before);
        });
    }
}

TEST(Mode, TableIndexIsTheLevelLessOne) {
    in_fresh_thread([] {
        EXPECT_EQ(qorl_zet_kernel_GetTTableIndexM(77, 3), 2);  // before the thread has a mode word
        EXPECT_EQ(qorl_zet_kernel_GetTTableIndex(), 1);
        for (const std::uint32_t level : {1u, 2u, 3u, 4u, 15u}) {
            _zetSetMode(level);
            EXPECT_EQ(qorl_zet_kernel_GetTTableIndex(), static_cast<std::int32_t>(level) - 1);
            EXPECT_EQ(qorl_zet_kernel_GetTTableIndexM(static_cast<std::int32_t>(level), 0), -1);
            EXPECT_EQ(qorl_zet_kernel_GetTTableIndexM(-1, 0xFFFFFFF2), 1);
        }
    });
}

TEST(Status, IsStoredAsGivenAndEachCallReturnsTheOldOne) {
    in_fresh_thread([] {
        EXPECT_EQ(_zetGetErrStatus(), 0);
        EXPECT_EQ(_zetSetErrStatus(std::numeric_limits<std::int32_t>::min()), 0);
        EXPECT_EQ(_zetSetErrStatus(12345), std::numeric_limits<std::int32_t>::min());
        EXPECT_EQ(in_fresh_thread(_zetGetErrStatus), 0);
        EXPECT_EQ(_zetClearErrStatus(), 12345);
        EXPECT_EQ(_zetGetErrStatus(), 0);
    });
}

std::int32_t one(QorlErrorRecord *) {
    return 0;
}
std::int32_t other(QorlErrorRecord *) {
    return 1;
}

TEST(CallBack, SetsAndClearsItsBitOfTheErrorMode) {
    const struct {
        std::uint32_t before, with, without;
    } rows[] = {
        {0x1A02, 0x1A02, 0xA02},
        {0x202, 0x1202, 0x202},
        {0x102, 0x1102, 0x102},
        {0x1002, 0x1002, 0x1002},  // the bit alone cannot be cleared: a field of 0 is not merged
    };
    for (const auto &row : rows) {
        in_fresh_thread([&] {
            _zetSetMode(row.before);
            EXPECT_EQ(_zetGetErrorCallBack(), nullptr);
            EXPECT_EQ(_zetSetErrorCallBack(one), nullptr);
            EXPECT_EQ(_zetGetMode(), row.with);
            EXPECT_EQ(_zetSetErrorCallBack(other), one);
            EXPECT_EQ(_zetGetErrorCallBack(), other);
            EXPECT_EQ(_zetGetMode(), row.with);
            EXPECT_EQ(_zetClearErrorCallBack(), other);
            EXPECT_EQ(_zetGetErrorCallBack(), nullptr);
            EXPECT_EQ(_zetGetMode(), row.without);
            _zetSetErrorCallBack(one);
            EXPECT_EQ(_zetSetErrorCallBack(nullptr), one);
            EXPECT_EQ(_zetGetMode(), row.without);
        });
    }
}

TEST(InterfaceInputVector, IsReturned) {
    in_fresh_thread([] {
        double x;
        EXPECT_EQ(_zetSetInterfInputVectorPointer(&x), &x);
        EXPECT_EQ(qorl_zet_kernel_SetInterfInputVectorPointer(nullptr), nullptr);
    });
}

}  // namespace
