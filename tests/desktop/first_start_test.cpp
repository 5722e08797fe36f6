// What a first start leaves in the registry, and what a later one makes of what it finds there.
#include <map>
#include <set>

#include "tests/desktop/driver/faked_clock.h"
#include "tests/desktop/program_test.h"

namespace desktop {
namespace {

using FirstStart = ProgramTest;

struct Row {
  const char* name;
  const char* value;
};

constexpr Row kOptions[] = {
    {"AlertsMoreThan", "dword 0"},
    {"AlwaysTopOn", "dword 1"},
    {"AskOnExit", "dword 1"},
    {"AutoStart", "dword 0"},
    {"AutoTransparentONOFF", "dword 1"},
    {"AvarageTime", "dword 5"},
    {"BAAction", "dword 0"},
    {"BAAlerts", "dword 0"},
    {"BADayWeekMonth", "dword 0"},
    {"BAShow", "dword 0"},
    {"BevelInner", "dword 1"},
    {"BevelOuter", "dword 1"},
    {"BevelWidth", "dword 1"},
    {"BorderWidth", "dword 1"},
    {"CopyIP", "dword 0"},
    {"DLSwitchScr", "dword 0"},
    {"ExecuteTime", "dword 1"},
    {"FontNameIndex", "dword 0"},
    {"FormMagnet", "dword 1"},
    {"GraphColor_Background", "text clBtnFace"},
    {"GraphColor_Border", "text clBlack"},
    {"GraphColor_Download", "text $000000CD"},
    {"GraphColor_DownloadLight", "text $008184FE"},
    {"GraphColor_DownloadShadow", "text clBlack"},
    {"GraphColor_Font", "text clBlack"},
    {"GraphColor_FontBackground", "text clWhite"},
    {"GraphColor_HistogramReceiving", "text clRed"},
    {"GraphColor_HistogramSend", "text clBlue"},
    {"GraphColor_Upload", "text clBlue"},
    {"GraphColor_UploadLight", "text clAqua"},
    {"GraphColor_UploadShadow", "text clBlack"},
    {"GraphScaleType", "dword 0"},
    {"IconType", "dword 1"},
    {"LessAction", "dword 0"},
    {"LessByteWere", "dword 5000"},
    {"LessDownloaded", "dword 0"},
    {"LessIsPlay", "dword 0"},
    {"LessNotSecs", "dword 60"},
    {"LessOrMore", "dword 0"},
    {"LessUploaded", "dword 0"},
    {"MoreAction", "dword 0"},
    {"MoreByteWere", "dword 5000"},
    {"MoreDownloaded", "dword 0"},
    {"MoreIsPlay", "dword 0"},
    {"MoreNotSecs", "dword 60"},
    {"MoreThan", "dword 1"},
    {"MoreUploaded", "dword 0"},
    {"NotificationsActive", "dword 0"},
    {"Pulse3D", "dword 1"},
    {"PulseSpace", "dword 0"},
    {"PulseWidth", "dword 3"},
    {"SOM1", "dword 0"},
    {"SOM2", "dword 1"},
    {"SOM3", "dword 0"},
    {"ScaleShow", "dword 1"},
    {"ScaleUnit", "dword 0"},
    {"ShowHints", "dword 1"},
    {"SpeedLimit", "dword 128"},
    {"StartIconMode", "dword 0"},
    {"TickerActive", "dword 0"},
    {"TickerBytes", "dword 1000"},
    {"Transparent", "dword 0"},
    {"Transparent2k", "dword 0"},
    {"TransparentFade", "dword 0"},
    {"ULSwitchNum", "dword 0"},
    {"Win2kTransparentRatio", "dword 190"},
    {"WindowMode", "dword 2"},
    {"WindowTitle", "dword 0"},
    {"ZeroBased", "dword 0"},
    {"baDownload", "dword 0"},
    {"baUpload", "dword 0"},
    {"chkBAPlay", "dword 0"},
    {"cmbHLineStyle", "dword 2"},
    {"cmbVLineStyle", "dword 2"},
    {"hGridVisible", "dword 0"},
    {"hLineColor", "text clSilver"},
    {"hLineSpace", "dword 25"},
    {"mPerStartsOn", "dword 1"},
    {"spnKeyLedsLimit", "dword 0"},
    {"vGridVisible", "dword 1"},
    {"vLineColor", "text clSilver"},
    {"vLineSpace", "dword 60"},
    {"wPerStartsOn", "dword 0"},
    {"zdP1", "dword 0"},
};

// Written by the scans, not by the start: texts of digits. The maxima appear with the first
// traffic.
const std::set<std::string> kTotals = {
    "InfoMaxDL",          "InfoMaxUL",          "CurrentDayTotalDL",   "CurrentDayTotalUL",
    "CurrentWeekTotalDL", "CurrentWeekTotalUL", "CurrentMonthTotalDL", "CurrentMonthTotalUL",
};
const std::set<std::string> kMaxima = {
    "CurrentDayMaxDL",  "CurrentDayMaxUL",   "CurrentWeekMaxDL",
    "CurrentWeekMaxUL", "CurrentMonthMaxDL", "CurrentMonthMaxUL",
};

bool IsNumber(const StoredValue& value) {
  const std::string text = value.AsText().value_or("");
  return !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
}

Moment Today() {
  SYSTEMTIME now{};
  ::GetLocalTime(&now);
  return {now.wYear, now.wMonth, now.wDay};
}

TEST_F(FirstStart, LeavesEveryOptionWithItsTypeAndDefaultAndNothingElse) {
  const Moment today = Today();
  Start();
  AwaitScans(2);

  std::map<std::string, StoredValue> stored = StoredValues(kSettingsKey);
  for (const Row& row : kOptions) {
    const auto found = stored.find(row.name);
    EXPECT_EQ(found == stored.end() ? "(missing)" : found->second.Description(), row.value)
        << row.name;
    stored.erase(row.name);
  }
  for (const AdapterRow& adapter : ReadAdapters()) {
    EXPECT_EQ(stored[adapter.name].Description(), "dword 1") << adapter.name;
    stored.erase(adapter.name);
  }
  EXPECT_EQ(stored["CurrentDay"].AsDate(), DaysOf(today)) << "or midnight passed during the test";
  EXPECT_EQ(stored["CurrentMonth"].AsDword(), static_cast<unsigned>(today.month));
  EXPECT_TRUE(stored["CurrentWeek"].AsDword().has_value());
  for (const char* marker : {"CurrentDay", "CurrentMonth", "CurrentWeek"}) stored.erase(marker);
  for (const std::string& total : kTotals) {
    EXPECT_TRUE(IsNumber(stored[total])) << total << " is " << stored[total].Description();
    stored.erase(total);
  }
  // Texts are not stored by reading them, so nothing is left.
  for (const auto& [name, value] : stored) {
    EXPECT_TRUE(kMaxima.contains(name) && IsNumber(value))
        << name << " is there with " << value.Description();
  }
  EXPECT_EQ(StoredKeys(kProductKey), (std::vector<std::string>{"AdapterDatas", "Settings"}));
}

TEST_F(FirstStart, DescribesTheAdapters) {
  Start();
  for (const AdapterRow& adapter : ReadAdapters()) {
    if (adapter.name == "ms tcp loopback interface") continue;
    SCOPED_TRACE(adapter.name);
    const auto text = [&](const char* suffix) {
      return Stored(kAdaptersKey, adapter.name + suffix).value_or(StoredValue()).Description();
    };
    EXPECT_EQ(text("Speed"), "text " + std::to_string(adapter.speed));
    EXPECT_EQ(text("MTU"), "text " + std::to_string(adapter.mtu));
    EXPECT_EQ(text("MacAddress").size(), std::string("text 00-1A-2B-3C-4D-5E").size());
  }
}

TEST_F(FirstStart, ALaterStartKeepsWhatIsStoredAndMendsWhatHasTheWrongType) {
  Store("AvarageTime", 9U);
  Store("PulseWidth", "wide");
  Store("hLineSpace", 0xFFFFFFFFU);
  Store("GraphColor_Border", "abc");
  Store("GraphColor_Font", "$00123456");
  Store("ExecuteTime", 7U);
  Start();
  AwaitScans();
  EXPECT_EQ(Setting("AvarageTime"), 9U);
  EXPECT_EQ(Setting("PulseWidth"), 3U);
  EXPECT_EQ(Setting("hLineSpace"), 0xFFFFFFFFU);
  EXPECT_EQ(SettingText("GraphColor_Border"), "clBlack");
  EXPECT_EQ(SettingText("GraphColor_Font"), "$00123456");
  EXPECT_EQ(Setting("ExecuteTime"), 8U) << "each start is counted";
}

TEST_F(FirstStart, ASecondCopyEndsAtOnceInSilence) {
  Meter& meter = Start();
  const HWND foreground = ::GetForegroundWindow();
  Program second;
  EXPECT_EQ(second.AwaitEnd(), 0U);
  EXPECT_EQ(FindTop(second.id(), L"T_frmBrisanto"), nullptr);
  EXPECT_EQ(::GetForegroundWindow(), foreground) << "the first copy was brought to the front";
  AwaitScans();
  EXPECT_TRUE(meter.program().Running());
  EXPECT_EQ(Setting("ExecuteTime"), 1U) << "the second copy counted as a start";
}

}  // namespace
}  // namespace desktop
