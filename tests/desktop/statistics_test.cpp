// The statistics windows, opened from the menu and used as a user does.
#include "platform/text.h"
#include "platform/windows/services/services.h"
#include "tests/desktop/driver/other_program.h"
#include "tests/desktop/program_test.h"

namespace desktop {
namespace {

using Statistics = ProgramTest;

TEST_F(Statistics, TheirButtonsCopyAndReset) {
  Meter& meter = Start();
  platform::windows::Clipboard().SetText({});
  meter.Choose({"DL-UL Statistics"});
  HWND window = meter.AwaitForm(L"T_frmConnInfo");
  const std::string address = TextOf(FindControl(window, L"IpAddress"));
  RightClick(MiddleOf(AreaOf(FindControl(window, L"Button1"))));
  AwaitGone(window);
  EXPECT_EQ(ClipboardText(), address);

  std::string adapter;
  {
    OpenMenu menu = meter.Menu();
    adapter = menu.Items({"Connection Statistics"}).at(0).text;
    menu.Choose({"Connection Statistics", adapter});
  }
  window = meter.AwaitForm(L"T_frmSpecificConnInfo");
  EXPECT_EQ(TextOf(window), adapter);
  EXPECT_EQ(::IsWindowEnabled(meter.window()), FALSE) << "it is modal";
  const std::string stored = platform::AsciiLower(adapter);
  EXPECT_EQ("text " + TextOf(FindControl(window, L"IpAddress")),
            Stored(kAdaptersKey, stored + "MacAddress"));
  const auto total = [&stored] { return Stored(kAdaptersKey, stored + "InfoTotalDL"); };
  StoreText(kAdaptersKey, stored + "InfoTotalDL", "9000000000000000");
  ClickOn(window, L"Button3");
  Await("the reset", [&] { return total().size() < std::string("text 9000000000000000").size(); });
  PressKey(VK_ESCAPE);
  AwaitGone(window);
  EXPECT_NE(::IsWindowEnabled(meter.window()), FALSE);
}

}  // namespace
}  // namespace desktop
