#include "platform/hot_keys.h"

#include <gtest/gtest.h>

#include "tests/contract/desk.h"

namespace contract {
namespace {

// No desktop uses these.
constexpr platform::KeyCombination kKeys{'Y', true, true, true};
constexpr platform::KeyCombination kOthers{'U', true, true, true};

class HotKeys : public testing::Test {
 protected:
  platform::HotKeys& Keys() { return desk_->Platform().hot_keys; }

  std::unique_ptr<Desk> desk_ = MakeDesk();
  int pressed_ = 0;
};

TEST_F(HotKeys, OneIsHeardUntilItGoes) {
  auto key = Keys().Register("Tremolux.Test.1", kKeys, [this] { ++pressed_; });
  ASSERT_NE(key, nullptr);
  desk_->PressKeys(kKeys);
  EXPECT_TRUE(desk_->LetHappen([this] { return pressed_ == 1; }));

  key.reset();
  const auto again = Keys().Register("Tremolux.Test.1", kKeys, [this] { pressed_ += 10; });
  ASSERT_NE(again, nullptr) << "name and keys are free again";
  desk_->PressKeys(kKeys);
  EXPECT_TRUE(desk_->LetHappen([this] { return pressed_ == 11; }));
}

TEST_F(HotKeys, OneThatIsTakenIsRefused) {
  desk_->LetOtherTake(kOthers);
  EXPECT_EQ(Keys().Register("Tremolux.Test.1", kOthers, [] {}), nullptr);
  const auto key = Keys().Register("Tremolux.Test.1", kKeys, [] {});
  EXPECT_NE(key, nullptr) << "the name was given back";
  EXPECT_EQ(Keys().Register("Tremolux.Test.2", kKeys, [] {}), nullptr);
}

TEST_F(HotKeys, ItMayGoWhileItIsHeard) {
  std::unique_ptr<platform::HotKey> key;
  key = Keys().Register("Tremolux.Test.1", kKeys, [this, &key] {
    key.reset();
    ++pressed_;
  });
  ASSERT_NE(key, nullptr);
  desk_->PressKeys(kKeys);
  EXPECT_TRUE(desk_->LetHappen([this] { return pressed_ == 1; }));
}

}  // namespace
}  // namespace contract
