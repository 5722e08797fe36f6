// The preferences, opened from the menu and used as a user does.
#include "tests/desktop/driver/preferences.h"

#include <algorithm>

#include "tests/desktop/driver/screen.h"
#include "tests/desktop/program_test.h"

namespace desktop {
namespace {

constexpr wchar_t kPreferences[] = L"T_frmPreferences";
constexpr wchar_t kPrompt[] = L"T_frmSecurity";

class Preferences : public ProgramTest {
 protected:
  static HWND Open(Meter& meter) {
    meter.Choose({"Settings..."});
    return meter.AwaitForm(kPreferences);
  }
};

TEST_F(Preferences, EachKindOfControlWritesAndTheMeterFollows) {
  Meter& meter = Start();
  const HWND window = Open(meter);
  EXPECT_NE(::IsWindowEnabled(meter.window()), FALSE) << "the meter stays usable";

  ClickOn(window, L"chkCopyIP");
  AwaitStored("CopyIP", "dword 1");
  ClickOn(window, L"AvarageTrackBar");
  PressKey(VK_END);
  AwaitStored("AvarageTime", "dword 60");

  ChoosePage(window, PageRow::kGraphColors);
  ClickOn(window, L"BackgroundColor");
  const HWND popup = meter.AwaitForm(L"ColourPopup");
  EXPECT_EQ(TextOf(popup), "Background");
  Await("the keyboard in the palette", [popup] {
    const HWND focus = GuiOf(popup).hwndFocus;
    return focus != nullptr && focus == FindControl(popup, L"palette");
  });
  PressKey(VK_END);  // the colour of buttons is none of the palette: this goes to its first
  PressKey(VK_END);
  PressKey(VK_RETURN);
  std::string background;
  Await("the stored colour", [&] {
    background = Setting("GraphColor_Background");
    return background.starts_with("text $");
  });
  const unsigned long colour = std::stoul(background.substr(6), nullptr, 16);
  Await("the graph in that colour", [&] {
    const std::vector<platform::Colour> pixels = TakePicture(AreaOf(meter.graph())).pixels;
    return 2 * std::count(pixels.begin(), pixels.end(), colour) > std::ssize(pixels);
  });

  ChoosePage(window, PageRow::kGraphOther);
  ClickOn(window, L"PulseWidth");
  PressKey(VK_UP);
  AwaitStored("PulseWidth", "dword 4");
  PressKey(VK_END);
  Type("999");
  PressKey(VK_TAB);
  AwaitStored("PulseWidth", "dword 50");
}

TEST_F(Preferences, OnceLockedTheyAndTheExitWantThePassword) {
  Meter& meter = Start();
  const HWND window = Open(meter);
  ChoosePage(window, PageRow::kAdmin);
  ClickOn(window, L"AdminPassword");
  EXPECT_EQ(static_cast<wchar_t>(
                ::SendMessageW(FindControl(window, L"AdminPassword"), EM_GETPASSWORDCHAR, 0, 0)),
            L'x');
  Type("abc1");
  PressKey(VK_TAB);
  Type("abc1");
  PressKey(VK_RETURN);  // the page's button
  AwaitStored("zdP1", "dword 1");
  EXPECT_EQ(Setting("zdP"), "text abc1");
  meter.Choose({"Settings..."});
  const HWND prompt = meter.AwaitForm(kPrompt);
  PressKey(VK_ESCAPE);
  AwaitGone(prompt);
  EXPECT_NE(::IsWindowVisible(window), FALSE) << "they stay open";
  ClickOn(window, L"btnClose");
  AwaitGone(window);
  meter.Choose({"Settings..."});
  meter.AwaitForm(kPrompt);
  Type("abc1");
  meter.AwaitForm(kPreferences);

  ::PostMessageW(meter.window(), WM_CLOSE, 0, 0);
  meter.AwaitForm(kPrompt);
  Type("abc1");
  meter.AwaitForm(L"T_frmAreYouSure");
  PressKey(VK_RETURN);
  EXPECT_EQ(meter.program().AwaitEnd(), 0U);
}

}  // namespace
}  // namespace desktop
