// What lies in the windows fits, in the fonts of the system.
#include "tests/desktop/driver/layout_faults.h"
#include "tests/desktop/driver/preferences.h"
#include "tests/desktop/program_test.h"

namespace desktop {
namespace {

using Languages = ProgramTest;

TEST_F(Languages, FitTheirWindows) {
  Meter& meter = Start();
  meter.Choose({"DL-UL Statistics"});
  const HWND statistics = meter.AwaitForm(L"T_frmConnInfo");
  meter.Choose({"Settings..."});
  const HWND preferences = meter.AwaitForm(L"T_frmPreferences");
  // What lies on a page is made when the page is first shown.
  for (int row = 0; row <= static_cast<int>(PageRow::kResetSettings); ++row) {
    ChoosePage(preferences, static_cast<PageRow>(row));
  }
  ChoosePage(preferences, PageRow::kGeneral);
  const HWND choice = FindControl(preferences, L"cmbLanguage");
  const auto count = ::SendMessageW(choice, CB_GETCOUNT, 0, 0);
  EXPECT_GE(count, 6);
  ClickOn(preferences, L"cmbLanguage");
  PressKey(VK_HOME);
  for (LRESULT row = 0; row < count; ++row) {
    if (row > 0) PressKey(VK_DOWN);
    Await("the language", [=] { return ::SendMessageW(choice, CB_GETCURSEL, 0, 0) == row; });
    SCOPED_TRACE(Setting("Language"));
    for (const HWND window : {statistics, preferences}) {
      EXPECT_EQ(LayoutFaults(window), "");
    }
  }
}

}  // namespace
}  // namespace desktop
