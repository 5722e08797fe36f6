#include "platform/message_loop.h"

#include <gtest/gtest.h>

#include "tests/contract/desk.h"

namespace contract {
namespace {

class MessageLoopTest : public testing::Test {
 protected:
  platform::MessageLoop& Loop() { return desk_->Platform().message_loop; }

  std::unique_ptr<Desk> desk_ = MakeDesk();
};

TEST_F(MessageLoopTest, ALoopThatIsDoneAlreadyDeliversNothing) {
  bool ran = false;
  desk_->Later([&ran] { ran = true; });
  EXPECT_TRUE(Loop().RunUntil([] { return true; }));
  EXPECT_FALSE(ran);
}

TEST_F(MessageLoopTest, AnInnerLoopEndsAloneAndTheOuterOneGoesOn) {
  std::string order;
  bool outer_done = false;
  desk_->Later([&] {
    bool inner_done = false;
    desk_->Later([&] {
      order += "a";
      inner_done = true;
    });
    EXPECT_TRUE(Loop().RunUntil([&] { return inner_done; }));
    order += "b";
    desk_->Later([&] {
      order += "c";
      outer_done = true;
    });
  });
  EXPECT_TRUE(Loop().RunUntil([&] { return outer_done; }));
  EXPECT_EQ(order, "abc");
}

TEST_F(MessageLoopTest, QuitEndsEveryLoopAndThoseThatStartLater) {
  bool inner = true;
  desk_->Later([&] {
    desk_->Later([&] { Loop().Quit(); });
    inner = Loop().RunUntil([] { return false; });
  });
  EXPECT_FALSE(Loop().RunUntil([] { return false; }));
  EXPECT_FALSE(inner);
  EXPECT_FALSE(Loop().RunUntil([] { return false; }));
  EXPECT_FALSE(Loop().ProcessPending());
}

TEST_F(MessageLoopTest, TheNextProgramOfAThreadDoesNotHearTheQuitOfTheOneBefore) {
  Loop().Quit();
  EXPECT_FALSE(Loop().RunUntil([] { return false; }));
  desk_.reset();
  desk_ = MakeDesk();
  bool ran = false;
  desk_->Later([&ran] { ran = true; });
  EXPECT_TRUE(Loop().RunUntil([&ran] { return ran; }));
}

}  // namespace
}  // namespace contract
