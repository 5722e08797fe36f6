#include "platform/other_windows.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/contract/desk.h"

namespace contract {
namespace {

using platform::TitleOutcome;
using platform::WindowId;

constexpr int kPatience = 5000;  // milliseconds; ample

class OtherWindows : public testing::Test {
 protected:
  platform::OtherWindows& Others() { return desk_->Platform().other_windows; }
  bool Listed(WindowId window) {
    const std::vector<WindowId> all = Others().TopLevel();
    return std::find(all.begin(), all.end(), window) != all.end();
  }

  std::unique_ptr<Desk> desk_ = MakeDesk();
};

TEST_F(OtherWindows, HiddenOnesAreListedToo) {
  EXPECT_TRUE(Listed(desk_->OpenOther("Hidden")));
  EXPECT_FALSE(Listed(WindowId{0x7FFFFFFE}));
}

TEST_F(OtherWindows, TitlesAreSetAndReadUpToTheirLimit) {
  const WindowId window = desk_->OpenOther("Notes");
  EXPECT_EQ(Others().Title(window, 255).text, "Notes");
  const std::string umlauts = "\xC3\xA4\xC3\xB6 \xE6\xBC\xA2 \xF0\x9F\x98\x80|";
  std::string long_title;
  for (int i = 0; i < 2000; ++i) long_title += "\xC3\xA4";
  for (const std::string& title : {umlauts, std::string(), std::string("x"), long_title}) {
    SCOPED_TRACE(title.size());
    EXPECT_EQ(Others().SetTitle(window, title, kPatience), TitleOutcome::kSet);
    const platform::WindowTitle whole = Others().Title(window, 4000);
    EXPECT_EQ(whole.text, title);
    EXPECT_FALSE(whole.longer);
  }
  const platform::WindowTitle cut = Others().Title(window, 255);
  EXPECT_EQ(cut.text, long_title.substr(0, 2 * 255));
  EXPECT_TRUE(cut.longer);
  ASSERT_EQ(Others().SetTitle(window, long_title.substr(0, 2 * 255), kPatience),
            TitleOutcome::kSet);
  EXPECT_FALSE(Others().Title(window, 255).longer) << "just as long as the limit";
}

TEST_F(OtherWindows, AWindowThatIsNotThereHasNoTitleAndTakesNone) {
  EXPECT_EQ(Others().Title(WindowId{0x7FFFFFFE}, 255).text, "");
  EXPECT_EQ(Others().SetTitle(WindowId{0x7FFFFFFE}, "x", kPatience), TitleOutcome::kRefused);
}

TEST_F(OtherWindows, AProgramThatHangsIsReadAndNotWaitedFor) {
  const WindowId window = desk_->OpenOther("Busy");
  desk_->LetOtherHang(true);
  EXPECT_EQ(Others().Title(window, 255).text, "Busy");
  const std::int64_t before = desk_->Platform().clock.SteadyMilliseconds();
  EXPECT_EQ(Others().SetTitle(window, "x", 50), TitleOutcome::kNoAnswer);
  EXPECT_GE(desk_->Platform().clock.SteadyMilliseconds() - before, 30);
  desk_->LetOtherHang(false);
  EXPECT_EQ(Others().SetTitle(window, "y", kPatience), TitleOutcome::kSet);
  EXPECT_EQ(Others().Title(window, 255).text, "y");
}

TEST_F(OtherWindows, TheProgramsOwnWindowsAreAmongThem) {
  platform::TopWindowEvents events;
  const auto own =
      desk_->Platform().windowing.CreateTopWindow({"T_frmOwn", "Own"}, nullptr, events);
  const std::vector<WindowId> all = Others().TopLevel();
  const auto found = std::find_if(all.begin(), all.end(), [this](WindowId window) {
    return Others().Title(window, 255).text == "Own";
  });
  ASSERT_NE(found, all.end());
  EXPECT_EQ(Others().SetTitle(*found, "Own|x", kPatience), TitleOutcome::kSet);
  EXPECT_EQ(own->Text(), "Own|x");
}

}  // namespace
}  // namespace contract
