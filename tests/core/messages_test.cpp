#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <cfenv>
#include <cstdlib>
#include <limits>
#include <string>
#include <vector>

#include "qorl/core.h"

namespace {

using Lines = std::vector<std::string>;

// Standard error goes to a datagram socket meanwhile, so that each write arrives as a piece of its own.
class Messages : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_EQ(socketpair(AF_UNIX, SOCK_DGRAM, 0, ends_), 0);
        saved_ = dup(STDERR_FILENO);
        ASSERT_GE(dup2(ends_[0], STDERR_FILENO), 0);
    }
    void TearDown() override {
        dup2(saved_, STDERR_FILENO);
        for (int descriptor : {saved_, ends_[0], ends_[1]}) close(descriptor);
    }
    Lines written() {
        Lines lines;
        char piece[1024];
        for (ssize_t size; (size = recv(ends_[1], piece, sizeof piece, MSG_DONTWAIT)) >= 0;) {
            lines.emplace_back(piece, static_cast<size_t>(size));
        }
        return lines;
    }

  private:
    int ends_[2] = {-1, -1};
    int saved_ = -1;
};

TEST_F(Messages, TellStatusAndName) {
    EXPECT_EQ(qorl_serv_print(1, 748, 2, "dExp", 12), 0);
    for (int32_t code = 749; code <= 754; ++code) EXPECT_EQ(qorl_serv_print(1, code, 1, "dExp"), 0);
    EXPECT_EQ(qorl_serv_print(1, 773, 0), 0);
    EXPECT_EQ(written(),
              (Lines{"qorl: dExp: invalid argument, index 12\n", "qorl: dExp: the call was refused\n",
                     "qorl: dExp: domain error: the function is not defined for an argument\n",
                     "qorl: dExp: singularity: the exact result is infinite\n",
                     "qorl: dExp: overflow: the result is too large for its type\n",
                     "qorl: dExp: underflow: the result is too small for its type\n", "qorl: dExp: unknown error\n",
                     "qorl: no memory for the state that each thread keeps\n"}));
}

TEST_F(Messages, TellElementAndValue) {
    constexpr double inf = std::numeric_limits<double>::infinity();
    const double values[] = {0.1, -0.0, inf, -inf, 0x1p-1074, 1e300, 710.0, 1.0, 2.0, 3.0, 4.0, 5.0};
    for (int32_t i = 0; i < 12; ++i) EXPECT_EQ(qorl_serv_print(1, 755 + i, 2, 1000 * i - 1, values[i]), 0);
    EXPECT_EQ(written(),
              (Lines{"qorl:   element -1: input = 0.1\n", "qorl:   element 999: result = -0\n",
                     "qorl:   element 1999: input = inf\n", "qorl:   element 2999: first result = -inf\n",
                     "qorl:   element 3999: second result = 5e-324\n", "qorl:   element 4999: first input = 1e+300\n",
                     "qorl:   element 5999: second input = 710\n", "qorl:   element 6999: result = 1\n",
                     "qorl:   element 7999: first input = 2\n", "qorl:   element 8999: second input = 3\n",
                     "qorl:   element 9999: first result = 4\n", "qorl:   element 10999: second result = 5\n"}));
}

TEST_F(Messages, PrintValuesThatReadBackInEveryRoundingMode) {
    for (int mode : {FE_TONEAREST, FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO}) {
        double value = 0x1.23456789abcdfp-300;
        for (int i = 0; i < 40; ++i, value *= 0x1.921fb54442d18p+14) {
            std::fesetround(mode);
            qorl_serv_print(1, 755, 2, 0, value);
            std::fesetround(FE_TONEAREST);
            const Lines lines = written();
            ASSERT_EQ(lines.size(), 1u);
            EXPECT_EQ(std::strtod(lines[0].c_str() + lines[0].find('=') + 1, nullptr), value) << lines[0];
        }
    }
}

TEST_F(Messages, TellWhatIsNotInTheCatalogue) {
    EXPECT_EQ(qorl_serv_print(1, 767, 0), -1);
    EXPECT_EQ(qorl_serv_print(1, 755, 1, 5), -1);
    EXPECT_EQ(qorl_serv_print(2, 773, 0), -1);  // an unknown destination: nothing is written
    EXPECT_EQ(written(), (Lines{"qorl: message 767 with 0 arguments is not in the catalogue\n",
                                "qorl: message 755 with 1 arguments is not in the catalogue\n"}));
}

TEST_F(Messages, CutALongNameAndTakeANullOne) {
    const std::string name(5000, 'x');
    EXPECT_EQ(qorl_serv_print(1, 748, 2, name.c_str(), std::numeric_limits<int32_t>::min()), 0);
    EXPECT_EQ(qorl_serv_print(1, 749, 1, static_cast<const char *>(nullptr)), 0);
    EXPECT_EQ(written(), (Lines{"qorl: " + std::string(200, 'x') + ": invalid argument, index -2147483648\n",
                                "qorl: ?: the call was refused\n"}));
}

TEST_F(Messages, LeaveErrnoAndTellThatNothingCouldBeWritten) {
    close(STDERR_FILENO);
    errno = EDOM;
    EXPECT_EQ(qorl_serv_print(1, 773, 0), -1);
    EXPECT_EQ(errno, EDOM);
}

}  // namespace
