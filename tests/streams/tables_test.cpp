#include <gtest/gtest.h>

#include "qorl/hux.h"

// A linker may give a program a copy of exported data. The library must then use that copy: it compares addresses, and
// registration writes.
TEST(StreamTables, AreOneForTheProgramAndTheLibrary) {
    std::int32_t row = -1, member = -1;
    EXPECT_EQ(__huxGetBrngBaseOffset(0, &row, &member), __RegBrngs);
    EXPECT_EQ(__huxGetBrngBaseOffset(1048576, &row, &member), __RegBrngsNew);
    EXPECT_EQ(__huxIsBrngValid(__RegBrngs, 280, 0), HuxStatusOk);
    BrngProperties properties = {16,
                                 1,
                                 1,
                                 4,
                                 32,
                                 [](std::int32_t, StreamState *, std::int32_t, const void *) { return 0; },
                                 [](StreamState *, std::int32_t, float *, float, float) { return 0; },
                                 [](StreamState *, std::int32_t, double *, double, double) { return 0; },
                                 [](StreamState *, std::int32_t, void *) { return 0; }};
    ASSERT_EQ(__huxRegisterBrng(&properties), 17825792);
    EXPECT_EQ(__RegBrngsNew[16].init, properties.init);
}
