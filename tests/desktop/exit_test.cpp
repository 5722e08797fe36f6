// How the running program is left.
#include "tests/desktop/program_test.h"

namespace desktop {
namespace {

constexpr const wchar_t* kPrompt = L"T_frmSecurity";
constexpr const wchar_t* kQuestion = L"T_frmAreYouSure";

class Leaving : public ProgramTest {
 protected:
  static void AwaitGone(HWND window) {
    Await("its end", [window] { return ::IsWindow(window) == FALSE; });
  }
};

TEST_F(Leaving, NoStaysAndTheBoxIsStoredAllTheSame) {
  Meter& meter = Start();
  meter.Choose({"Exit"});
  const HWND question = meter.AwaitForm(kQuestion);
  EXPECT_EQ(TextOf(question), "Are you sure?");
  EXPECT_FALSE(::IsWindowEnabled(meter.window()));
  ::PostMessageW(meter.window(), WM_CLOSE, 0, 0);  // a second request
  ClickOn(question, L"AskCheck");
  Await("the stored box", [] { return Setting("AskOnExit") == 0U; });
  Type("n");  // the letter of its mark, without Alt
  AwaitGone(question);
  Await("the meter", [&] { return ::IsWindowEnabled(meter.window()) != FALSE; });
  meter.Choose({"Exit"});
  EXPECT_EQ(meter.program().AwaitEnd(), 0U) << "the question is switched off";
}

TEST_F(Leaving, ALockedMeterWantsThePasswordAndThenAsks) {
  Store("zdP1", 1U);
  Store("zdP", std::string("abc1"));
  Meter& meter = Start();
  ::PostMessageW(meter.window(), WM_CLOSE, 0, 0);
  HWND prompt = meter.AwaitForm(kPrompt);
  EXPECT_EQ(static_cast<wchar_t>(
                ::SendMessageW(FindControl(prompt, L"PassEdit"), EM_GETPASSWORDCHAR, 0, 0)),
            L'x');
  Type("abc2");
  PressKey(VK_RETURN);
  PressKey(VK_ESCAPE);
  AwaitGone(prompt);
  AwaitScans();
  EXPECT_TRUE(meter.program().Running());

  ::PostMessageW(meter.window(), WM_CLOSE, 0, 0);
  meter.AwaitForm(kPrompt);
  Type("abc1");
  meter.AwaitForm(kQuestion);
  PressKey(VK_RETURN);
  EXPECT_EQ(meter.program().AwaitEnd(), 0U);
}

}  // namespace
}  // namespace desktop
