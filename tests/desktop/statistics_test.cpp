// The statistics windows, opened from the menu and used as a user does.
#include <algorithm>

#include "platform/windows/wide_text.h"
#include "tests/desktop/driver/layout_faults.h"
#include "tests/desktop/program_test.h"

namespace desktop {
namespace {

using platform::windows::FromWide;

constexpr wchar_t kMachine[] = L"T_frmConnInfo";
constexpr wchar_t kAdapter[] = L"T_frmSpecificConnInfo";

std::string ClipboardText() {
  std::string text;
  Await("the clipboard", [] { return ::OpenClipboard(nullptr) != FALSE; });
  if (const HANDLE data = ::GetClipboardData(CF_UNICODETEXT)) {
    text = FromWide(static_cast<const wchar_t*>(::GlobalLock(data)));
    ::GlobalUnlock(data);
  }
  ::EmptyClipboard();
  ::CloseClipboard();
  return text;
}

class Statistics : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    ClipboardText();  // empties it
  }

  static HWND OpenMachine(Meter& meter) {
    meter.Choose({"DL-UL Statistics"});
    return meter.AwaitForm(kMachine);
  }
  static std::string Shown(HWND window, const wchar_t* control) {
    return TextOf(FindControl(window, control));
  }
  static void AwaitText(HWND window, const wchar_t* control, const std::string& text) {
    Await("the text " + text, [&] { return Shown(window, control) == text; });
  }
};

TEST_F(Statistics, TheMachinesWindowShowsWhatIsStoredAndResets) {
  CountOnly("none");
  StoreText(kSettingsKey, "CurrentMonthTotalDL", "3072");
  StoreText(kSettingsKey, "CurrentMonthTotalUL", "1024");
  SYSTEMTIME now{};
  ::GetLocalTime(&now);
  Store("CurrentMonth", now.wMonth);
  Meter& meter = Start();
  AwaitScans();  // the first one begins a new day, and that arms the alert
  const HWND window = OpenMachine(meter);
  EXPECT_EQ(TextOf(window), "DL-UL Statistics");
  EXPECT_EQ(WidthOf(AreaOf(window)), meter.Scaled(265));
  EXPECT_EQ(HeightOf(AreaOf(window)), meter.Scaled(258));
  EXPECT_NE(::IsWindowEnabled(meter.window()), FALSE);
  EXPECT_EQ(Shown(window, L"lblMonthlyDL"), "3");
  EXPECT_EQ(Shown(window, L"lblMonthlyDLUL"), "4");
  EXPECT_EQ(Shown(window, L"lblMonthlyDLULUnit"), "kB");
  StoreText(kSettingsKey, "CurrentMonthTotalUL", "5120");
  AwaitText(window, L"lblMonthlyDLUL", "8");

  const std::string since = Shown(window, L"InfoGroupBox");
  EXPECT_EQ(since.substr(0, 23), "Data transferred since ");
  Await("another second", [&] {
    ClickOn(window, L"Button3");
    return Shown(window, L"InfoGroupBox") != since;
  });
  EXPECT_EQ(Shown(window, L"lblMonthlyDLUL"), "8");

  const HWND box = FindControl(window, L"ISBAShown");
  Store("BAShow", 1U);
  Await("the tick", [&] { return ::SendMessageW(box, BM_GETCHECK, 0, 0) == BST_CHECKED; });
  ::SendMessageW(box, BM_CLICK, 0, 0);
  EXPECT_EQ(Setting("BAShow"), 0U);
}

TEST_F(Statistics, TheMachinesWindowCopiesTheAddressAndClosesByEachWay) {
  Meter& meter = Start();
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
  std::string address;
  for (const Way& way : ways) {
    SCOPED_TRACE(way.name);
    const HWND window = OpenMachine(meter);
    address = Shown(window, L"IpAddress");
    way.take(window);
    Await("the window to go", [&] { return ::IsWindow(window) == FALSE; });
    EXPECT_EQ(ClipboardText(), way.copies ? address : "");
  }
  const HWND window = OpenMachine(meter);
  ClickOn(window, L"Button1");
  // Not by opening the clipboard, which would keep the program out.
  Await("the copy", [] { return ::IsClipboardFormatAvailable(CF_UNICODETEXT) != FALSE; });
  EXPECT_EQ(ClipboardText(), address);
  EXPECT_NE(::IsWindow(window), FALSE);
}

TEST_F(Statistics, AnAdaptersWindowIsModalAndShowsWhatIsStoredOfIt) {
  Meter& meter = Start();
  std::string adapter;
  {
    OpenMenu menu = meter.Menu();
    adapter = menu.Items({"Connection Statistics"}).at(0).text;
    menu.Choose({"Connection Statistics", adapter});
  }
  const HWND window = meter.AwaitForm(kAdapter);
  EXPECT_EQ(TextOf(window), adapter);
  EXPECT_EQ(::IsWindowEnabled(meter.window()), FALSE);
  RECT client{};
  ::GetClientRect(window, &client);
  EXPECT_EQ(client.right, meter.Scaled(261));
  EXPECT_EQ(client.bottom, meter.Scaled(264));
  std::string name = adapter;
  std::transform(name.begin(), name.end(), name.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
  EXPECT_EQ(Shown(window, L"IpAddress"),
            Stored(kAdaptersKey, name + "MacAddress")->AsText().value_or("(none)"));
  PressKey(VK_ESCAPE);
  Await("the window to go", [&] { return ::IsWindow(window) == FALSE; });
  EXPECT_NE(::IsWindowEnabled(meter.window()), FALSE);
}

TEST_F(Statistics, TheTotalsOfTheRunFollowRealTrafficUntilTheReset) {
  Loopback loopback;
  if (loopback.FindAdapter().empty()) GTEST_SKIP() << "this system does not count the loopback";
  Meter& meter = Start();
  const HWND window = OpenMachine(meter);
  loopback.Send(5000);
  // Since the first start both count the same bytes.
  Await("the totals", [&] {
    return Shown(window, L"lblInfoTotalDLULUnit") == "MB" &&
           Shown(window, L"lblInfoTotalDLUL") == Shown(window, L"lblDailyDLUL");
  });
  ClickOn(window, L"Button3");
  Await("the totals to begin anew", [&] {
    return Shown(window, L"lblInfoTotalDLULUnit") != "MB" &&
           Shown(window, L"lblDailyDLULUnit") == "MB";
  });
}

TEST_F(Statistics, EverythingFitsInEveryLanguage) {
  const std::vector<std::string> languages = OfferedLanguages();
  EXPECT_GE(languages.size(), 6U);
  for (const std::string& language : languages) {
    SCOPED_TRACE(language);
    Store("Language", language);
    Meter& meter = Start();
    OpenMenu menu = meter.Menu();
    menu.Choose({menu.Items().at(0).text});
    const HWND window = meter.AwaitForm(kMachine);
    EXPECT_EQ(LayoutFaults(window), "");
  }
}

}  // namespace
}  // namespace desktop
