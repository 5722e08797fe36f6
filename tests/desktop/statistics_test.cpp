// The statistics windows, opened from the menu and used as a user does.
#include "platform/text.h"
#include "tests/desktop/driver/clipboard.h"
#include "tests/desktop/program_test.h"

namespace desktop {
namespace {

constexpr wchar_t kMachine[] = L"T_frmConnInfo";
constexpr wchar_t kAdapter[] = L"T_frmSpecificConnInfo";

class Statistics : public ProgramTest {
 protected:
  static HWND OpenMachine(Meter& meter) {
    meter.Choose({"DL-UL Statistics"});
    return meter.AwaitForm(kMachine);
  }
  static std::string Shown(HWND window, const wchar_t* control) {
    return TextOf(FindControl(window, control));
  }
};

TEST_F(Statistics, TheMachinesWindowShowsWhatIsStoredAndResets) {
  CountNothing();
  SYSTEMTIME now{};
  ::GetLocalTime(&now);
  Store("CurrentMonth", now.wMonth);
  Store("CurrentMonthTotalDL", "3072");
  Store("CurrentMonthTotalUL", "1024");
  Meter& meter = Start();
  AwaitScans();  // the first one begins a new day, and that arms the alert
  const HWND window = OpenMachine(meter);
  EXPECT_EQ(TextOf(window), "DL-UL Statistics");
  EXPECT_NE(::IsWindowEnabled(meter.window()), FALSE);
  EXPECT_EQ(Shown(window, L"lblMonthlyDL"), "3");
  EXPECT_EQ(Shown(window, L"lblMonthlyDLUL"), "4");
  EXPECT_EQ(Shown(window, L"lblMonthlyDLULUnit"), "kB");
  Store("CurrentMonthTotalUL", "5120");
  Await("the new figure", [&] { return Shown(window, L"lblMonthlyDLUL") == "8"; });

  const std::string since = Shown(window, L"InfoGroupBox");
  EXPECT_TRUE(since.starts_with("Data transferred since ")) << since;
  Await("another second", [&] {
    ClickOn(window, L"Button3");
    return Shown(window, L"InfoGroupBox") != since;
  });
  EXPECT_EQ(Shown(window, L"lblMonthlyDLUL"), "8") << "only the run begins anew";

  const HWND box = FindControl(window, L"ISBAShown");
  Store("BAShow", 1U);
  Await("the tick", [&] { return ::SendMessageW(box, BM_GETCHECK, 0, 0) == BST_CHECKED; });
  ::SendMessageW(box, BM_CLICK, 0, 0);
  AwaitStored("BAShow", "dword 0");
}

TEST_F(Statistics, TheirWindowsCloseByEachWayAndCopyTheAddress) {
  Meter& meter = Start();
  ClearClipboard();
  struct Way {
    const char* name;
    std::function<void(HWND)> take;
    bool copies = false;
  };
  const Way ways[] = {
      {"Ok", [](HWND w) { ClickOn(w, L"Button2"); }},
      {"Enter", [](HWND) { PressKey(VK_RETURN); }},
      {"Esc", [](HWND) { PressKey(VK_ESCAPE); }},
      {"the close box", [](HWND w) { ::PostMessageW(w, WM_SYSCOMMAND, SC_CLOSE, 0); }},
      {"the right button on Copy",
       [](HWND w) { RightClick(MiddleOf(AreaOf(FindControl(w, L"Button1")))); }, true},
  };
  for (const Way& way : ways) {
    SCOPED_TRACE(way.name);
    const HWND window = OpenMachine(meter);
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
  const HWND window = meter.AwaitForm(kAdapter);
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
