// The main program of the tests. It is compiled for plain x86-64, so that a processor without AVX2 or FMA gets a
// message and not an illegal instruction.
#include <gtest/gtest.h>

#include <cstdio>

#include "qorl/core.h"

int main(int argc, char **argv) {
    // The list of the cases is asked for at build time and runs no kernel.
    testing::InitGoogleTest(&argc, argv);
    if (!testing::GTEST_FLAG(list_tests) && qorl_serv_processor_has(QORL_PROCESSOR_AVX2_FMA) == 0) {
        std::fputs("This processor has no AVX2 or no FMA; qorl_zet_avx2 needs both.\n", stderr);
        return 1;
    }
    return RUN_ALL_TESTS();
}
