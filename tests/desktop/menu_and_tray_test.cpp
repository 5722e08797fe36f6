// The menu, the icon in the notification area, and the program in which the user works meanwhile.
#include "tests/desktop/driver/other_program.h"
#include "tests/desktop/program_test.h"
// Behind the system's own header, which it needs.
#include <shellapi.h>

namespace desktop {
namespace {

class MenuAndTray : public ProgramTest {
 protected:
  static void AwaitVisible(const Meter& meter, bool visible) {
    Await(visible ? "the meter" : "the meter to go", [&] {
      // While it holds the mouse, a click elsewhere would be its own.
      return meter.Visible() == visible && GuiOf(meter.window()).hwndCapture == nullptr;
    });
  }
};

TEST_F(MenuAndTray, TheMenuTicksOffAnAdapterAndScansGoOnWhileItIsOpen) {
  Meter& meter = Start();
  std::string adapter;
  {
    OpenMenu menu = meter.Menu();
    adapter = menu.Items({"Connection Sources"}).at(0).text;
    EXPECT_TRUE(menu.Find({"Connection Sources", adapter}).checked);
    AwaitScans(2);
    EXPECT_TRUE(OpenMenu::Any(meter.program().id()));
    menu.Choose({"Connection Sources", adapter});
  }
  Await("the flag", [&] { return Setting(adapter) == "dword 0"; });
  OpenMenu menu = meter.Menu();
  EXPECT_FALSE(menu.Find({"Connection Sources", adapter}).checked);
  menu.Leave();
}

TEST_F(MenuAndTray, TheMeterComesAndGoesAndLeavesTheKeyboardWhereItIs) {
  OtherProgram other;
  const HWND work = other.Open(L"work", {20, 600, 320, 800});
  Meter& meter = Start();
  AwaitScans();  // the icon comes a moment after the window
  EXPECT_EQ(::GetForegroundWindow(), work) << "at the start";
  for (const bool visible : {false, true}) {
    ::PostMessageW(meter.tray(), WM_APP + 1, 0, MAKELPARAM(NIN_SELECT, 1));
    AwaitVisible(meter, visible);
  }
  AwaitScans();
  EXPECT_EQ(::GetForegroundWindow(), work) << "when it comes back";

  RightClick(MiddleOf(meter.TrayArea()));
  OpenMenu(meter.program().id()).Choose({"Graph Options", "Clear Graph"});
  // Some taskbars take it with the click, and have it back then.
  Await("the work or the taskbar in front again", [work] {
    const HWND front = ::GetForegroundWindow();
    return front == work || front == ::FindWindowW(L"Shell_TrayWnd", nullptr);
  });

  for (const HWND place : {meter.graph(), meter.line()}) {
    DoubleClick(MiddleOf(AreaOf(place)));
    AwaitVisible(meter, false);
    Click(MiddleOf(meter.TrayArea()));
    AwaitVisible(meter, true);
  }
  Click(MiddleOf(meter.TrayArea()));
  AwaitVisible(meter, false);
  RightClick(MiddleOf(meter.TrayArea()));
  EXPECT_EQ(OpenMenu(meter.program().id()).Items().back().text, "Exit");
  Click({5, 500});
  Await("the menu to close", [&] { return !OpenMenu::Any(meter.program().id()); });
  Click({5, 500});  // a click that ends a menu can lose its release; the next one mends that
  EXPECT_TRUE(meter.program().Running());
}

}  // namespace
}  // namespace desktop
