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

TEST(Handle, IsClosedOnceByItsLastOwner) {
  {
    const Number none(-1);
    const Number zero(0);
    Number released(5);
    EXPECT_EQ(released.release(), 5);
    EXPECT_FALSE(released);
    Number from(1);
    Number to(2);
    to = std::move(from);
    EXPECT_EQ(NumberKind::closed, std::vector<int>{2}) << "at once, not at the end";
    Number& same = to;
    to = std::move(same);
    const Number last(std::move(to));
    EXPECT_EQ(last.get(), 1);
    EXPECT_EQ(NumberKind::closed, std::vector<int>{2});
  }
  EXPECT_EQ(NumberKind::closed, (std::vector<int>{2, 1, 0}));
}

}  // namespace
}  // namespace platform::windows
