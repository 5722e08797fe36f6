// The preferences, opened from the menu and used as a user does.
#include "tests/desktop/driver/preferences.h"

#include <algorithm>

#include "tests/desktop/driver/layout_faults.h"
#include "tests/desktop/driver/screen.h"
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
      GUITHREADINFO info{};
      info.cbSize = sizeof(info);
      ::GetGUIThreadInfo(::GetWindowThreadProcessId(window, nullptr), &info);
      return info.hwndFocus != nullptr && info.hwndFocus == FindControl(window, control);
    });
  }
  static void AwaitHidden(HWND window) {
    Await("the window to go", [window] { return ::IsWindowVisible(window) == FALSE; });
  }
  static bool Shown(HWND window, const wchar_t* control) {
    return ::IsWindowVisible(FindControl(window, control)) != FALSE;
  }
  static void AwaitStored(const std::string& name, const std::string& value) {
    Await(name + " = " + value, [&] {
      const auto stored = Stored(kSettingsKey, name);
      return stored && stored->Description() == value;
    });
  }
  static int ShownPixels(HWND window, std::uint32_t colour) {
    const Picture picture = TakePicture(AreaOf(window));
    return static_cast<int>(std::count(picture.pixels.begin(), picture.pixels.end(), colour));
  }
};

TEST_F(Preferences, EachKindOfControlWritesAndTheMeterFollows) {
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
  const unsigned long bgr = std::stoul(background.substr(1), nullptr, 16);
  const auto rgb = static_cast<std::uint32_t>((bgr & 0xFFU) << 16U | (bgr & 0xFF00U) | bgr >> 16U);
  const RECT graph = AreaOf(meter.graph());
  Await("the graph in that colour",
        [&] { return ShownPixels(meter.graph(), rgb) > WidthOf(graph) * HeightOf(graph) / 2; });

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
  std::uint32_t stored = 0;
  RECT place{};
  for (const Way& way : ways) {
    SCOPED_TRACE(way.name);
    Store("CopyIP", stored);
    const HWND window = Open(meter);
    EXPECT_EQ(::SendMessageW(FindControl(window, L"chkCopyIP"), BM_GETCHECK, 0, 0),
              static_cast<LRESULT>(stored));
    stored = 1 - stored;
    if (WidthOf(place) > 0) {
      EXPECT_EQ(AreaOf(window).left, place.left) << "where it was";
    }
    ::SetWindowPos(window, nullptr, 100 + static_cast<int>(stored) * 50, 120, 0, 0,
                   SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    place = AreaOf(window);
    way.take(window);
    AwaitHidden(window);
  }
  EXPECT_TRUE(meter.program().Running());
}

TEST_F(Preferences, OnceLockedOpenWithThePasswordOnly) {
  Meter& meter = Start();
  HWND window = Open(meter);
  ChoosePage(window, PageRow::kAdmin);
  ClickOn(window, L"AdminPassword");
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
  EXPECT_FALSE(Shown(window, L"AdminVerifyPass"));
  const auto refuse = [&] {
    meter.Choose({"Settings..."});
    const HWND asking = meter.AwaitForm(kPrompt);
    PressKey(VK_ESCAPE);
    Await("the prompt to go", [asking] { return ::IsWindow(asking) == FALSE; });
  };
  refuse();
  EXPECT_NE(::IsWindowVisible(window), FALSE) << "they stay open";
  ClickOn(window, L"btnClose");
  AwaitHidden(window);
  refuse();
  EXPECT_EQ(::IsWindowVisible(window), FALSE);
  meter.Choose({"Settings..."});
  const HWND prompt = meter.AwaitForm(kPrompt);
  Type("abc1");
  window = meter.AwaitForm(kPreferences);
  EXPECT_EQ(::IsWindow(prompt), FALSE);
}

TEST_F(Preferences, AResetWritesItsGroupAndGoesOnWhenTheWindowIsClosed) {
  Store("CopyIP", 1U);
  Store("PulseWidth", 9U);
  Meter& meter = Start();
  const HWND window = Open(meter);
  ChoosePage(window, PageRow::kResetSettings);
  ClickOn(window, L"R1");
  ClickOn(window, L"btnResetSettings");
  PressKey(VK_ESCAPE);
  AwaitHidden(window);
  AwaitStored("CopyIP", "dword 0");
  EXPECT_EQ(Setting("PulseWidth"), 9U) << "of another group";
  Open(meter);
  Await("the end of the reset",
        [&] { return ::IsWindowEnabled(FindControl(window, L"btnResetSettings")) != FALSE; });
}

TEST_F(Preferences, FitInEveryLanguage) {
  for (const std::string& language : OfferedLanguages()) {
    SCOPED_TRACE(language);
    Store("Language", language);
    Meter& meter = Start();
    OpenMenu menu = meter.Menu();
    // The one that opens a window, as its dots say, and has no submenu.
    for (const MenuItem& item : menu.Items()) {
      if (item.text.ends_with("...") && item.submenu == nullptr) {
        menu.Choose({item.text});
        break;
      }
    }
    EXPECT_EQ(LayoutFaults(meter.AwaitForm(kPreferences)), "");
  }
}

}  // namespace
}  // namespace desktop
