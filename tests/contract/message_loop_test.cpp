#include "platform/message_loop.h"

#include <optional>

#include "tests/contract/world.h"

namespace contract {
namespace {

class MessageLoop : public testing::Test {
 protected:
  platform::MessageLoop& Loop() { return world_->Platform().message_loop; }

  std::optional<World> world_{std::in_place};
};

TEST_F(MessageLoop, ALoopThatIsDoneAlreadyDeliversNothing) {
  bool ran = false;
  world_->Later([&ran] { ran = true; });
  EXPECT_TRUE(Loop().RunUntil([] { return true; }));
  EXPECT_FALSE(ran);
}

TEST_F(MessageLoop, QuitEndsEveryLoopOfTheProgramAndNoneOfTheNext) {
  bool inner = true;
  EXPECT_TRUE(Loop().ProcessFor(20));
  world_->Later([&] {
    world_->Later([&] { Loop().Quit(); });
    inner = Loop().RunUntil([] { return false; });
  });
  EXPECT_FALSE(Loop().RunUntil([] { return false; }));
  EXPECT_FALSE(inner);
  EXPECT_FALSE(Loop().RunUntil([] { return false; }));
  EXPECT_FALSE(Loop().ProcessPending());
  EXPECT_FALSE(Loop().ProcessFor(60000));

  world_.reset();
  world_.emplace();
  bool ran = false;
  world_->Later([&ran] { ran = true; });
  EXPECT_TRUE(Loop().RunUntil([&ran] { return ran; }));
}

}  // namespace
}  // namespace contract
