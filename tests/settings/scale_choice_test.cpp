#include "settings/scale_choice.h"

#include <gtest/gtest.h>

#include "platform/memory/machine.h"

namespace {

namespace setting = settings::setting;

constexpr const char* kSettings = "\\SOFTWARE\\Korvane\\Dravenlow\\Settings";

class ScaleChoice : public testing::Test {
 protected:
  platform::memory::Machine machine;
  settings::Store store{machine.registry, machine.files};
};

TEST_F(ScaleChoice, FixedLimitsAreAnEighthOfTheSpeedInTheText) {
  // In bits per second, by index; the last fixed row but one is the known exception.
  static constexpr std::int64_t kBits[] = {0,       14400,    33600,    48000,    53300,  64000,
                                           128000,  256000,   384000,   512000,   768000, 1544000,
                                           2000000, 10000000, 47436000, 100000000};
  for (std::int64_t index = 0; index < std::ssize(kBits); ++index) {
    SCOPED_TRACE(index);
    store.Write(setting::GraphScaleType, index);
    const auto scale = settings::ReadScale(store);
    ASSERT_TRUE(scale.has_value());
    EXPECT_EQ(scale->AutoScale, index == 0);
    EXPECT_EQ(scale->SpeedLimit, kBits[index] / 8);
    EXPECT_EQ(scale->SpeedCap, kBits[index] / 8);
  }
  EXPECT_FALSE(machine.registry.Exists(kSettings, "SpeedLimit")) << "read by the custom scale only";
}

TEST_F(ScaleChoice, ACustomSpeedIsDividedByEightOnItsWayInAndOnItsWayOut) {
  store.Write(setting::GraphScaleType, 16);
  store.Write(setting::SpeedLimit, settings::StoredSpeed(1024000));
  EXPECT_EQ(machine.registry.Dword(kSettings, "SpeedLimit"), 128000U);
  const auto scale = settings::ReadScale(store);
  ASSERT_TRUE(scale.has_value());
  EXPECT_FALSE(scale->AutoScale);
  EXPECT_EQ(scale->SpeedLimit, 16000);
  EXPECT_EQ(scale->SpeedCap, 16000);
  EXPECT_EQ(settings::ShownSpeed(128000), 1024000);
}

TEST_F(ScaleChoice, TheTwoReadersOfAMissingSpeedHaveTheirOwnDefaults) {
  store.Write(setting::GraphScaleType, 16);
  // Two calls read the choice; of the speed limit's three, the last stores its default.
  machine.notebook.FailCall(5);
  const auto unstored = settings::ReadScale(store);
  EXPECT_EQ(unstored->SpeedLimit, 16);
  EXPECT_EQ(unstored->SpeedCap, 128);
  machine.registry.Remove(kSettings, "SpeedLimit");
  EXPECT_EQ(settings::ReadScale(store)->SpeedCap, 16) << "the first default has been stored";
}

TEST_F(ScaleChoice, AnIndexOutsideTheListLeavesTheScaleAlone) {
  for (const std::int64_t index : {-1, 17, 99}) {
    store.Write(setting::GraphScaleType, index);
    EXPECT_FALSE(settings::ReadScale(store).has_value()) << index;
  }
}

}  // namespace
