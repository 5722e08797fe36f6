// What a first start leaves in the registry and on the desktop, and a second copy does not.
#include "tests/desktop/driver/traffic.h"
#include "tests/desktop/program_test.h"

namespace desktop {
namespace {

using Starting = ProgramTest;

TEST_F(Starting, OfTheFirstLeavesTheDefaultsAndASmallWindowAndASecondCopyLeavesNothing) {
  Meter& meter = Start();
  AwaitScans(2);
  EXPECT_EQ(Setting("WindowMode"), "dword 2");
  EXPECT_EQ(Setting("GraphColor_Background"), "text clBtnFace");
  EXPECT_EQ(Setting("CurrentDay"), "8 bytes");
  for (const AdapterRow& adapter : ReadAdapters()) {
    SCOPED_TRACE(adapter.name);
    EXPECT_EQ(Setting(adapter.name), "dword 1");
    EXPECT_EQ(Stored(kAdaptersKey, adapter.name + "MacAddress").size(),
              std::string("text 00-1A-2B-3C-4D-5E").size());
  }

  const HWND application = ::GetWindow(meter.window(), GW_OWNER);
  EXPECT_EQ(TextOf(application), "Korvane Tremolux");
  EXPECT_EQ(::IsWindowVisible(application), FALSE);
  EXPECT_NE(::GetWindowLongPtrW(meter.window(), GWL_EXSTYLE) & WS_EX_TOOLWINDOW, 0);
  EXPECT_EQ(WidthOf(AreaOf(meter.window())), meter.Scaled(274));
  EXPECT_EQ(HeightOf(AreaOf(meter.window())), meter.Scaled(135));

  const HWND foreground = ::GetForegroundWindow();
  Program second;
  EXPECT_EQ(second.AwaitEnd(), 0U);
  EXPECT_EQ(::GetForegroundWindow(), foreground) << "the first copy was brought to the front";
  EXPECT_TRUE(meter.program().Running());
  EXPECT_EQ(Setting("ExecuteTime"), "dword 1") << "the second copy counted as a start";
}

}  // namespace
}  // namespace desktop
