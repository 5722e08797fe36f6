#include "settings/scale_choice.h"

#include <gtest/gtest.h>

#include "tests/world.h"

namespace {

namespace setting = settings::setting;

class ScaleChoice : public testing::Test, protected test::Computer {};

TEST_F(ScaleChoice, FixedLimitsAreAnEighthOfTheSpeedInTheText) {
  // In bits per second, by index; the last fixed row but one is the known exception.
  static constexpr std::int64_t kBits[] = {0,       14400,    33600,    48000,    53300,  64000,
                                           128000,  256000,   384000,   512000,   768000, 1544000,
                                           2000000, 10000000, 47436000, 100000000};
  for (std::int64_t index = 0; index < std::ssize(kBits); ++index) {
    store.Write(setting::GraphScaleType, index);
    const auto scale = settings::ReadScale(store);
    ASSERT_TRUE(scale.has_value()) << index;
    EXPECT_EQ(scale->AutoScale, index == 0) << index;
    EXPECT_EQ(scale->SpeedLimit, kBits[index] / 8) << index;
    EXPECT_EQ(scale->SpeedCap, kBits[index] / 8) << index;
  }
  EXPECT_EQ(Stored("SpeedLimit"), kNoNumber) << "read by the custom scale only";
  for (const std::int64_t index : {-1, 17}) {
    store.Write(setting::GraphScaleType, index);
    EXPECT_FALSE(settings::ReadScale(store).has_value()) << index;
  }
}

TEST_F(ScaleChoice, ACustomSpeedIsDividedByEightOnItsWayInAndOnItsWayOut) {
  store.Write(setting::GraphScaleType, 16);
  // Two calls read the choice; of the speed limit's three, the last stores its default.
  machine.notebook.FailCall(5);
  const auto unstored = settings::ReadScale(store);
  EXPECT_EQ(unstored->SpeedLimit, 16);
  EXPECT_EQ(unstored->SpeedCap, 128) << "the second reader has a default of its own";

  store.Write(setting::SpeedLimit, settings::StoredSpeed(1024000));
  const auto scale = settings::ReadScale(store);
  EXPECT_EQ(Stored("SpeedLimit"), 128000U);
  EXPECT_EQ(settings::ShownSpeed(128000), 1024000);
  EXPECT_FALSE(scale->AutoScale);
  EXPECT_EQ(scale->SpeedLimit, 16000);
  EXPECT_EQ(scale->SpeedCap, 16000);
}

}  // namespace
