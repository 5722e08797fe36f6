// The statistics windows, opened from the menu and used as a user does.
#include "platform/text.h"
#include "platform/windows/services/services.h"
#include "tests/desktop/driver/other_program.h"
#include "tests/desktop/program_test.h"

namespace desktop {
namespace {

class Statistics : public ProgramTest {
 protected:
  static std::string Shown(HWND window, const wchar_t* control) {
    return TextOf(FindControl(window, control));
  }
};

TEST_F(Statistics, TheirWindowsCloseByEachWayAndCopyTheAddress) {
  Meter& meter = Start();
  platform::windows::Clipboard().SetText({});
  struct Way {
    const char* name;
    std::function<void(HWND)> take;
    bool copies = false;
  };
  const Way ways[] = {
      {"Enter", [](HWND) { PressKey(VK_RETURN); }},
      {"Esc", [](HWND) { PressKey(VK_ESCAPE); }},
      {"the close box", [](HWND w) { ::PostMessageW(w, WM_SYSCOMMAND, SC_CLOSE, 0); }},
      {"the right button on Copy",
       [](HWND w) { RightClick(MiddleOf(AreaOf(FindControl(w, L"Button1")))); }, true},
  };
  for (const Way& way : ways) {
    SCOPED_TRACE(way.name);
    meter.Choose({"DL-UL Statistics"});
    const HWND window = meter.AwaitForm(L"T_frmConnInfo");
    const std::string address = Shown(window, L"IpAddress");
    way.take(window);
    AwaitGone(window);
    EXPECT_EQ(ClipboardText(), way.copies ? address : "");
  }

  std::string adapter;
  {
    OpenMenu menu = meter.Menu();
    adapter = menu.Items({"Connection Statistics"}).at(0).text;
    menu.Choose({"Connection Statistics", adapter});
  }
  const HWND window = meter.AwaitForm(L"T_frmSpecificConnInfo");
  EXPECT_EQ(TextOf(window), adapter);
  EXPECT_EQ(::IsWindowEnabled(meter.window()), FALSE) << "it is modal";
  EXPECT_EQ("text " + Shown(window, L"IpAddress"),
            Stored(kAdaptersKey, platform::AsciiLower(adapter) + "MacAddress"));
  PressKey(VK_ESCAPE);
  AwaitGone(window);
  EXPECT_NE(::IsWindowEnabled(meter.window()), FALSE);
}

}  // namespace
}  // namespace desktop
