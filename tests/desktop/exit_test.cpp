// How the running program is left.
#include "tests/desktop/driver/other_program.h"
#include "tests/desktop/program_test.h"

namespace desktop {
namespace {

using Leaving = ProgramTest;

TEST_F(Leaving, AsksTheUserAndNotTheEndOfTheSessionAndFreesTheTitlesBothWays) {
  OtherProgram other;
  const HWND notes = other.Open(L"Some notes");
  Store("WindowTitle", 1U);
  for (const bool session_ends : {false, true}) {
    Meter& meter = Start();
    Await("the marker", [&] { return TextOf(notes).starts_with("Some notes|[ "); });
    if (session_ends) {
      EXPECT_EQ(::SendMessageW(meter.window(), WM_QUERYENDSESSION, 0, 0), TRUE);
      ::SendMessageW(meter.window(), WM_ENDSESSION, TRUE, 0);
    } else {
      meter.Choose({"Exit"});
      const HWND question = meter.AwaitForm(L"T_frmAreYouSure");
      EXPECT_FALSE(::IsWindowEnabled(meter.window()));
      ::PostMessageW(meter.window(), WM_CLOSE, 0, 0);  // a second request
      Type("n");                                       // the letter of its mark, without Alt
      AwaitGone(question);
      Await("the meter", [&] { return ::IsWindowEnabled(meter.window()) != FALSE; });
      meter.Choose({"Exit"});
      meter.AwaitForm(L"T_frmAreYouSure");
      PressKey(VK_RETURN);
    }
    EXPECT_EQ(meter.program().AwaitEnd(), 0U);
    EXPECT_EQ(TextOf(notes), "Some notes");
    EXPECT_FALSE(ProgramRuns());
  }
}

}  // namespace
}  // namespace desktop
