// How the running program is left.
#include "tests/desktop/driver/other_program.h"
#include "tests/desktop/program_test.h"

namespace desktop {
namespace {

using Leaving = ProgramTest;

TEST_F(Leaving, AsksTheUserAndNotTheEndOfTheSessionAndFreesTheTitlesBothWays) {
  OtherProgram other;
  const HWND notes = other.Open(L"Some notes");
  const auto await_marker = [notes] {
    Await("the marker", [notes] { return TextOf(notes).starts_with("Some notes|[ "); });
  };
  Store("WindowTitle", 1U);
  Meter* meter = &Start();
  await_marker();
  meter->Choose({"Exit"});
  const HWND question = meter->AwaitForm(L"T_frmAreYouSure");
  EXPECT_EQ(TextOf(question), "Are you sure?");
  EXPECT_FALSE(::IsWindowEnabled(meter->window()));
  ::PostMessageW(meter->window(), WM_CLOSE, 0, 0);  // a second request
  ClickOn(question, L"AskCheck");
  Await("the stored box", [] { return Setting("AskOnExit") == 0U; });
  Type("n");  // the letter of its mark, without Alt
  AwaitGone(question);
  Await("the meter", [&] { return ::IsWindowEnabled(meter->window()) != FALSE; });
  const HWND tray = meter->tray();
  meter->Choose({"Exit"});
  EXPECT_EQ(meter->program().AwaitEnd(), 0U) << "the question is switched off";
  EXPECT_EQ(TextOf(notes), "Some notes");
  EXPECT_EQ(::IsWindow(tray), FALSE);
  EXPECT_FALSE(ProgramRuns());

  Store("AskOnExit", 1U);
  meter = &Start();
  await_marker();
  EXPECT_EQ(::SendMessageW(meter->window(), WM_QUERYENDSESSION, 0, 0), TRUE);
  ::SendMessageW(meter->window(), WM_ENDSESSION, TRUE, 0);
  meter->program().AwaitEnd();
  EXPECT_EQ(TextOf(notes), "Some notes");
}

}  // namespace
}  // namespace desktop
