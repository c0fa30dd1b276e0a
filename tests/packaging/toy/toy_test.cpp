// The function that the toy kernel adds: reached by its names and its table, raising, with strides.
#include <gtest/gtest.h>

#include "qorl/zet.h"
#include "qorl/zet_tables.h"

namespace {

TEST(AddedFunction, RunsUnderItsNamesAndRaises) {
    const double a[] = {3, 4, -5};
    double y[3], z[3];
    _zetdJ0_50(3, a, y);
    EXPECT_EQ(y[0], 9.0);
    EXPECT_EQ(y[1], 16.0);
    EXPECT_EQ(y[2], -1.0);
    EXPECT_EQ(_zetClearErrStatus(), QORL_ZET_DOMAIN);
    _zetdJ0I_HA(3, a + 2, -1, z, 1);
    EXPECT_EQ(z[0], -1.0);
    EXPECT_EQ(z[1], 16.0);
    EXPECT_EQ(z[2], 9.0);
    for (void *const slot : qorl_zet_kernel_dJ0_ttab) EXPECT_NE(slot, nullptr);
    for (void *const slot : qorl_zet_kernel_dJ1_ttab) EXPECT_EQ(slot, nullptr) << "the neighbour has no kernel";
}

}  // namespace
