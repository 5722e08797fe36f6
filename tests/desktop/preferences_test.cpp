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
  static LRESULT Ticked(HWND window, const wchar_t* control) {
    return ::SendMessageW(FindControl(window, control), BM_GETCHECK, 0, 0);
  }
  static int ShownPixels(HWND window, unsigned long colour) {
    const Picture picture = TakePicture(AreaOf(window));
    return static_cast<int>(std::count(picture.pixels.begin(), picture.pixels.end(), colour));
  }
};

TEST_F(Preferences, EachKindOfControlWritesTheMeterFollowsAndAResetUndoesIt) {
  Meter& meter = Start();
  const HWND window = Open(meter);
  EXPECT_EQ(TextOf(window), "Settings");
  EXPECT_NE(::IsWindowEnabled(meter.window()), FALSE) << "the meter stays usable";

  ClickOn(window, L"chkCopyIP");
  AwaitStored("CopyIP", "dword 1");
  ClickOn(window, L"AvarageTrackBar");
  PressKey(VK_END);
  AwaitStored("AvarageTime", "dword 60");
  EXPECT_EQ(TextOf(FindControl(window, L"lblAvarageTime")), "60");

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
    background = SettingText("GraphColor_Background");
    return background.starts_with('$');
  });
  const unsigned long colour = std::stoul(background.substr(1), nullptr, 16);
  const RECT graph = AreaOf(meter.graph());
  Await("the graph in that colour",
        [&] { return ShownPixels(meter.graph(), colour) > WidthOf(graph) * HeightOf(graph) / 2; });

  ChoosePage(window, PageRow::kGraphOther);
  ClickOn(window, L"PulseWidth");
  PressKey(VK_UP);
  AwaitStored("PulseWidth", "dword 4");
  PressKey(VK_NEXT);
  AwaitStored("PulseWidth", "dword 1");
  PressKey(VK_END);
  PressKey(VK_BACK);
  Type("9999");
  PressKey(VK_TAB);
  AwaitStored("PulseWidth", "dword 50");
  ClickOn(window, L"BevelOuter");
  PressKey(VK_END);
  PressKey(VK_RETURN);
  AwaitStored("BevelOuter", "dword 3");

  ChoosePage(window, PageRow::kTextOther);
  ClickOn(window, L"chkConnLength");
  AwaitStored("SOM2", "dword 0");
  Await("the shorter line", [&] { return meter.LineText().find("Average") == std::string::npos; });
  ClickOn(window, L"Post3");
  AwaitStored("WindowTitle", "dword 3");

  ChoosePage(window, PageRow::kResetSettings);
  ClickOn(window, L"R1");
  ClickOn(window, L"btnResetSettings");
  PressKey(VK_ESCAPE);
  AwaitGone(window);
  AwaitStored("CopyIP", "dword 0");
  EXPECT_EQ(Setting("PulseWidth"), 50U) << "of another group";
  Open(meter);
  Await("the end of the reset, which went on without the window",
        [&] { return ::IsWindowEnabled(FindControl(window, L"btnResetSettings")) != FALSE; });
}

TEST_F(Preferences, CloseByEachWayAndShowWhatAnotherProgramHasStoredMeanwhile) {
  Meter& meter = Start();
  struct Way {
    const char* name;
    std::function<void(HWND)> take;
  };
  const Way ways[] = {
      {"Close", [](HWND w) { ClickOn(w, L"btnClose"); }},
      {"Esc", [](HWND) { PressKey(VK_ESCAPE); }},
      {"the close box", [](HWND w) { ::PostMessageW(w, WM_SYSCOMMAND, SC_CLOSE, 0); }},
  };
  LONG left = 100;
  for (const Way& way : ways) {
    SCOPED_TRACE(way.name);
    const bool odd = left % 100 != 0;
    Store("CopyIP", odd ? 1U : 0U);
    const HWND window = Open(meter);
    EXPECT_EQ(Ticked(window, L"chkCopyIP"), odd ? 1 : 0);
    if (left > 100) {
      EXPECT_EQ(AreaOf(window).left, left) << "where it was";
    }
    left += 50;
    ::SetWindowPos(window, nullptr, left, 120, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    way.take(window);
    AwaitGone(window);
  }
  EXPECT_TRUE(meter.program().Running());
}

TEST_F(Preferences, OnceLockedTheyAndTheExitWantThePassword) {
  Meter& meter = Start();
  HWND window = Open(meter);
  ChoosePage(window, PageRow::kAdmin);
  ClickOn(window, L"AdminPassword");
  EXPECT_EQ(static_cast<wchar_t>(
                ::SendMessageW(FindControl(window, L"AdminPassword"), EM_GETPASSWORDCHAR, 0, 0)),
            L'x');
  Type("abc1");
  PressKey(VK_TAB);
  Type("abc2");
  ClickOn(window, L"LockBtn");
  Await("the warning", [&] {
    return TextOf(FindControl(window, L"CaseSensitive")) == "Enter your password again";
  });
  EXPECT_EQ(SettingText("zdP"), "(missing)");
  Type("abc1");  // the keyboard is in the password
  PressKey(VK_TAB);
  Type("abc1");
  PressKey(VK_RETURN);  // the page's button
  AwaitStored("zdP1", "dword 1");
  EXPECT_EQ(SettingText("zdP"), "abc1");
  EXPECT_EQ(TextOf(FindControl(window, L"LockBtn")), "Open");
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
  refuse();
  EXPECT_EQ(::IsWindowVisible(window), FALSE);
  meter.Choose({"Settings..."});
  meter.AwaitForm(kPrompt);
  Type("abc1");
  window = meter.AwaitForm(kPreferences);

  ::PostMessageW(meter.window(), WM_CLOSE, 0, 0);
  HWND prompt = meter.AwaitForm(kPrompt);
  Type("abc2");
  PressKey(VK_RETURN);
  PressKey(VK_ESCAPE);
  AwaitGone(prompt);
  EXPECT_TRUE(meter.program().Running());
  ::PostMessageW(meter.window(), WM_CLOSE, 0, 0);
  prompt = meter.AwaitForm(kPrompt);
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
