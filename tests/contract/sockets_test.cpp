#include "platform/sockets.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/contract/world.h"

namespace contract {
namespace {

class Sockets : public testing::Test {
 protected:
  platform::Sockets& sockets() { return world_->Sockets(); }

  std::unique_ptr<World> world_ = MakeWorld();
};

TEST_F(Sockets, NothingIsKnownBeforeTheLibraryIsStartedAndAfterItsCleanup) {
  EXPECT_EQ(sockets().HostAddresses("localhost"), std::nullopt);
  ASSERT_TRUE(sockets().Start(0x0101));
  ASSERT_TRUE(sockets().Start(0x0101));
  sockets().Cleanup();
  EXPECT_TRUE(sockets().HostAddresses("localhost").has_value()) << "each Start is taken back alone";
  sockets().Cleanup();
  EXPECT_EQ(sockets().HostAddresses("localhost"), std::nullopt);
}

TEST_F(Sockets, AVersionThatNeverWasIsRefused) { EXPECT_FALSE(sockets().Start(0x0000)); }

TEST_F(Sockets, HostsAreLookedUp) {
  ASSERT_TRUE(sockets().Start(0x0101));
  const std::string name = sockets().HostName();
  EXPECT_FALSE(name.empty());
  EXPECT_LE(name.size(), 63U);

  const auto local = sockets().HostAddresses("localhost");
  ASSERT_TRUE(local.has_value());
  EXPECT_EQ(local->front(), "127.0.0.1");

  const auto own = sockets().HostAddresses(name);
  ASSERT_TRUE(own.has_value());
  ASSERT_FALSE(own->empty());
  for (const std::string& address : *own) {
    EXPECT_EQ(std::count(address.begin(), address.end(), '.'), 3) << address;
  }
  sockets().Cleanup();
}

TEST_F(Sockets, AHostThatCannotExistGivesNothing) {
  ASSERT_TRUE(sockets().Start(0x0101));
  // A space can stand in no name, so that no server is asked.
  EXPECT_EQ(sockets().HostAddresses("no such host"), std::nullopt);
  sockets().Cleanup();
}

}  // namespace
}  // namespace contract
