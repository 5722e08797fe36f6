#include "platform/single_instance.h"

#include <gtest/gtest.h>

#include "tests/contract/world.h"

namespace contract {
namespace {

TEST(SingleInstance, OnlyTheFirstClaimOfANameIsFirst) {
  const std::unique_ptr<World> world = MakeWorld();
  platform::SingleInstance& instances = world->SingleInstance();
  EXPECT_TRUE(instances.ClaimFirst("Tremolux contract test"));
  EXPECT_FALSE(instances.ClaimFirst("Tremolux contract test"));
  EXPECT_FALSE(instances.ClaimFirst("Tremolux contract test")) << "asking does not give it up";
  EXPECT_TRUE(instances.ClaimFirst("Tremolux contract test \u00FC"));
}

TEST(SingleInstance, AMutexThatCannotBeMadeCountsAsFirst) {
  const std::unique_ptr<World> world = MakeWorld();
  // A backslash may only stand behind the name of a name space.
  EXPECT_TRUE(world->SingleInstance().ClaimFirst("no\\such\\space"));
  EXPECT_TRUE(world->SingleInstance().ClaimFirst("no\\such\\space"));
}

}  // namespace
}  // namespace contract
