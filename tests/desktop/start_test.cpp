// What a start leaves in the registry and on the desktop, and what it makes of what it finds there.
#include "tests/desktop/driver/traffic.h"
#include "tests/desktop/program_test.h"

namespace desktop {
namespace {

using Starting = ProgramTest;

struct Row {
  const char* name;
  const char* value;
};

TEST_F(Starting, OfTheFirstLeavesTheDefaultsAndASmallWindowAndASecondCopyLeavesNothing) {
  SYSTEMTIME today{};
  ::GetLocalTime(&today);
  const std::string month = "dword " + std::to_string(today.wMonth);
  Meter& meter = Start();
  AwaitScans(2);
  const Row rows[] = {
      {"AlwaysTopOn", "dword 1"},
      {"WindowMode", "dword 2"},
      {"ExecuteTime", "dword 1"},
      {"GraphColor_Download", "text $000000CD"},
      {"GraphColor_Background", "text clBtnFace"},
      {"CurrentDay", "8 bytes"},
      {"CurrentMonth", month.c_str()},  // or midnight passed during the test
      {"FontName", "(missing)"},
  };
  for (const Row& row : rows) EXPECT_EQ(Stored(kSettingsKey, row.name), row.value) << row.name;
  EXPECT_GE(Counter(kSettingsKey, "CurrentDayTotalDL"), 0);
  EXPECT_TRUE(IsStored(kSettingsKey, "CurrentDayTotalDL"));
  for (const AdapterRow& adapter : ReadAdapters()) {
    SCOPED_TRACE(adapter.name);
    EXPECT_EQ(Setting(adapter.name), 1U);
    EXPECT_EQ(Stored(kAdaptersKey, adapter.name + "MTU"), "text " + std::to_string(adapter.mtu));
    EXPECT_EQ(Stored(kAdaptersKey, adapter.name + "MacAddress").size(),
              std::string("text 00-1A-2B-3C-4D-5E").size());
  }

  const HWND application = ::GetWindow(meter.window(), GW_OWNER);
  EXPECT_EQ(TextOf(application), "Korvane Tremolux");
  EXPECT_EQ(::IsWindowVisible(application), FALSE);
  EXPECT_EQ(TextOf(meter.window()), "Korvane Tremolux");
  EXPECT_NE(::GetWindowLongPtrW(meter.window(), GWL_EXSTYLE) & WS_EX_TOOLWINDOW, 0);
  EXPECT_EQ(WidthOf(AreaOf(meter.window())), meter.Scaled(274));
  EXPECT_EQ(HeightOf(AreaOf(meter.window())), meter.Scaled(135));

  const HWND foreground = ::GetForegroundWindow();
  Program second;
  EXPECT_EQ(second.AwaitEnd(), 0U);
  EXPECT_EQ(FindTop(second.id(), L"T_frmBrisanto"), nullptr);
  EXPECT_EQ(::GetForegroundWindow(), foreground) << "the first copy was brought to the front";
  EXPECT_TRUE(meter.program().Running());
  EXPECT_EQ(Setting("ExecuteTime"), 1U) << "the second copy counted as a start";
}

TEST_F(Starting, OfALaterKeepsWhatIsStoredAndMendsWhatHasTheWrongType) {
  Store("AvarageTime", 9U);
  Store("PulseWidth", "wide");
  Store("hLineSpace", 0xFFFFFFFFU);
  Store("GraphColor_Border", "abc");
  Store("GraphColor_Font", "$00123456");
  Store("ExecuteTime", 7U);
  Start();
  AwaitScans();
  static constexpr Row kRows[] = {
      {"AvarageTime", "dword 9"},
      {"PulseWidth", "dword 3"},
      {"hLineSpace", "dword 4294967295"},
      {"GraphColor_Border", "text clBlack"},
      {"GraphColor_Font", "text $00123456"},
      {"ExecuteTime", "dword 8"},
  };
  for (const Row& row : kRows) EXPECT_EQ(Stored(kSettingsKey, row.name), row.value) << row.name;
}

}  // namespace
}  // namespace desktop
