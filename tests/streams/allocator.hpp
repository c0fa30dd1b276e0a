// An allocator in place of the core library's: counts the blocks that live, fails when told, and notices writes past
// the end of a block.
#ifndef QORL_TESTS_STREAMS_ALLOCATOR_HPP
#define QORL_TESTS_STREAMS_ALLOCATOR_HPP

#include <gtest/gtest.h>

namespace qorl::test {

long live_blocks();
// The n-th allocation from now on fails, counted from 1; 0 stands for none.
void fail_allocation(long n);
// Whether the one to fail has been asked for.
bool allocation_failed();

// A test that ends with as many blocks as it began with.
class Balanced : public testing::Test {
  protected:
    void TearDown() override { EXPECT_EQ(live_blocks(), before_) << "blocks leaked or freed twice"; }

  private:
    long before_ = live_blocks();
};

}  // namespace qorl::test

#endif
