#include "platform/windows/handle.h"

#include <gtest/gtest.h>

#include <type_traits>
#include <vector>

namespace platform::windows {
namespace {

// A kind whose "none" is not zero, and which writes down what is closed.
struct NumberKind {
  using Raw = int;
  static constexpr Raw None() { return -1; }
  static void Close(Raw number) { closed.push_back(number); }
  static inline std::vector<int> closed;
};
using Number = Handle<NumberKind>;
static_assert(!std::is_copy_constructible_v<Number>);

class HandleTest : public testing::Test {
 protected:
  void SetUp() override { NumberKind::closed.clear(); }
  static std::vector<int>& closed() { return NumberKind::closed; }
};

TEST_F(HandleTest, ClosesWhatItOwnsOnce) {
  { const Number number(0); }
  EXPECT_EQ(closed(), std::vector<int>{0});
}

TEST_F(HandleTest, HasNothingToCloseWhenItIsEmpty) {
  {
    const Number empty;
    const Number none(-1);
    EXPECT_FALSE(empty);
    EXPECT_FALSE(none);
  }
  EXPECT_TRUE(closed().empty());
}

TEST_F(HandleTest, AMoveTakesTheHandleAway) {
  {
    Number from(1);
    const Number to(std::move(from));
    EXPECT_EQ(to.get(), 1);
    EXPECT_TRUE(closed().empty());
  }
  EXPECT_EQ(closed(), std::vector<int>{1});
}

TEST_F(HandleTest, AMoveOntoAFullOneClosesWhatItHeld) {
  {
    Number from(1);
    Number to(2);
    to = std::move(from);
    EXPECT_EQ(to.get(), 1);
    EXPECT_EQ(closed(), std::vector<int>{2}) << "at once, not at the end";
  }
  EXPECT_EQ(closed(), (std::vector<int>{2, 1}));
}

TEST_F(HandleTest, AMoveOntoItselfKeepsTheHandle) {
  {
    Number number(1);
    Number& same = number;
    number = std::move(same);
    EXPECT_EQ(number.get(), 1);
    EXPECT_TRUE(closed().empty());
  }
  EXPECT_EQ(closed(), std::vector<int>{1});
}

TEST_F(HandleTest, WhatIsReleasedIsNotClosed) {
  {
    Number number(1);
    EXPECT_EQ(number.release(), 1);
    EXPECT_FALSE(number);
  }
  EXPECT_TRUE(closed().empty());
}

}  // namespace
}  // namespace platform::windows
