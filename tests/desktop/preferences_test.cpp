// The preferences, opened from the menu and used as a user does.
#include "tests/desktop/driver/preferences.h"

#include <algorithm>

#include "tests/desktop/driver/screen.h"
#include "tests/desktop/driver/screen_reader.h"
#include "tests/desktop/program_test.h"

namespace desktop {
namespace {

constexpr const wchar_t* kPreferences = L"T_frmPreferences";
constexpr const wchar_t* kPrompt = L"T_frmSecurity";

class Preferences : public ProgramTest {
 protected:
  static HWND Open(Meter& meter) {
    meter.Choose({"Settings..."});
    return meter.AwaitForm(kPreferences);
  }
  static void AwaitFocus(HWND window, const wchar_t* control) {
    Await("the keyboard in the control", [&] {
      const HWND focus = GuiOf(window).hwndFocus;
      return focus != nullptr && focus == FindControl(window, control);
    });
  }
  static int ShownPixels(HWND window, unsigned long colour) {
    const Picture picture = TakePicture(AreaOf(window));
    return static_cast<int>(std::count(picture.pixels.begin(), picture.pixels.end(), colour));
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
  AwaitFocus(popup, L"palette");
  PressKey(VK_END);  // the colour of buttons is none of the palette: this goes to its first
  PressKey(VK_END);
  PressKey(VK_RETURN);
  std::string background;
  Await("the stored colour", [&] {
    background = Setting("GraphColor_Background");
    return background.starts_with("text $");
  });
  const unsigned long colour = std::stoul(background.substr(6), nullptr, 16);
  const RECT graph = AreaOf(meter.graph());
  Await("the graph in that colour",
        [&] { return ShownPixels(meter.graph(), colour) > WidthOf(graph) * HeightOf(graph) / 2; });

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
  const auto refuse = [&] {
    meter.Choose({"Settings..."});
    const HWND prompt = meter.AwaitForm(kPrompt);
    PressKey(VK_ESCAPE);
    AwaitGone(prompt);
  };
  refuse();
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

TEST_F(Preferences, AScreenReaderHearsANameOfWhateverTheKeyboardReaches) {
  Meter& meter = Start();
  const HWND window = Open(meter);
  const ScreenReader reader;
  for (int row = 0; row <= static_cast<int>(PageRow::kResetSettings); ++row) {
    ChoosePage(window, static_cast<PageRow>(row));
    for (const HWND stop : ScreenReader::Stops(window)) {
      EXPECT_NE(reader.Hear(stop).name, "") << "row " << row << ", in " << TextOf(stop);
    }
  }
  struct Row {
    const wchar_t* control;
    const char* name;
    const char* value;
  };
  for (const Row& row : {Row{L"AvarageTrackBar", "Average time in seconds:", "5"},
                         Row{L"PulseWidth", "Pulse width:", "3"},
                         Row{L"FontBackground", "Text Background", "#FFFFFF"}}) {
    const Heard heard = reader.Hear(FindControl(window, row.control));
    EXPECT_EQ(heard.name, row.name);
    EXPECT_EQ(heard.value, row.value) << row.name;
  }
  const Heard graph = reader.Hear(FindControl(meter.window(), L"_tlkInterMeter"));
  EXPECT_EQ(graph.name, "Traffic");
  EXPECT_TRUE(graph.value.starts_with("[ ")) << graph.value;
}

}  // namespace
}  // namespace desktop
