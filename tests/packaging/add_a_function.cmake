# Adds a function as docs/add_a_function.md says and checks that nothing else had to be touched: one kernel source and one
# line in frame/functions.inc, in a copy of the sources; then the ABI test of that copy and a call of the new function.
#   cmake -DSOURCE=top folder -DSCRATCH=folder -DC_COMPILER=... -DCXX_COMPILER=... -P add_a_function.cmake
file(REMOVE_RECURSE ${SCRATCH})
file(MAKE_DIRECTORY ${SCRATCH}/source/tests)
file(COPY ${SOURCE}/CMakeLists.txt ${SOURCE}/cmake ${SOURCE}/LICENSE ${SOURCE}/include ${SOURCE}/core ${SOURCE}/frame
          ${SOURCE}/library DESTINATION ${SCRATCH}/source)
file(COPY ${SOURCE}/tests/CMakeLists.txt ${SOURCE}/tests/main.cpp ${SOURCE}/tests/abi DESTINATION ${SCRATCH}/source/tests)

# Of the kernels the simplest ones do, so that the build is short; the list is cut to them and the new function.
file(MAKE_DIRECTORY ${SCRATCH}/source/kernels)
file(COPY ${SOURCE}/kernels/CMakeLists.txt ${SOURCE}/kernels/abs.cpp DESTINATION ${SCRATCH}/source/kernels)
file(STRINGS ${SOURCE}/frame/functions.inc lines)
list(FILTER lines INCLUDE REGEX "^QORL_FUNCTION\\([sd], Abs,")
list(APPEND lines "QORL_FUNCTION(d, J0, 4.0, 1.0, 26)")
list(JOIN lines "\n" functions)
file(WRITE ${SCRATCH}/source/frame/functions.inc "${functions}\n")

# A stand-in for J0, which has one kernel in all slots: x^2, with the domain error of a negative x.
file(WRITE ${SCRATCH}/source/kernels/toy_d.cpp [==[
#include "frame/entry_points.hpp"

namespace {
struct Toy : qorl::OneResult<double> {
    static constexpr int packs = 2;
    template <int N>
    static qorl::Pack<double, N> body(qorl::Pack<double, N> x) {
        return x * x;
    }
    template <int N>
    static qorl::Mask<double, N> special(qorl::Pack<double, N> x) {
        return qorl::less(x, 0.0);
    }
    [[gnu::noinline]] static int scalar(double, double *y) {
        *y = -1.0;
        return 1;
    }
};
}  // namespace

QORL_UNARY(d, J0, LA, Toy);
]==])
file(APPEND ${SCRATCH}/source/tests/abi/abi_test.cpp [==[

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
}
]==])

execute_process(
    COMMAND ${CMAKE_COMMAND} -S ${SCRATCH}/source -B ${SCRATCH}/build -G Ninja -DQORL_TOOLS=OFF -DQORL_BENCH=OFF
            -DCMAKE_C_COMPILER=${C_COMPILER} -DCMAKE_CXX_COMPILER=${CXX_COMPILER}
    COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} --build ${SCRATCH}/build COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${SCRATCH}/build/bin/abi_test COMMAND_ERROR_IS_FATAL ANY)
