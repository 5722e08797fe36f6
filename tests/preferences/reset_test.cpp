#include <gtest/gtest.h>

#include <cstring>
#include <set>
#include <string>
#include <vector>

#include "settings/schema.h"
#include "tests/preferences/preferences_world.h"

namespace {

using platform::memory::RegistryValue;
using settings::ValueType;

class Reset : public test::PreferencesTest {
 protected:
  // Gives every stored value another one than its default.
  void UpsetAll() {
    for (const settings::SchemaRow& row : settings::Schema()) {
      if (row.name == "zdP1") continue;
      RegistryValue value = RegistryValue::Dword(77);
      if (row.type == settings::ValueType::kColour) value = RegistryValue::Text("$00123456");
      if (row.type == settings::ValueType::kText) value = RegistryValue::Text("upset");
      if (row.type == settings::ValueType::kCounter) value = RegistryValue::Text("77");
      if (row.type == settings::ValueType::kDate) {
        value = RegistryValue::Binary(std::vector<std::byte>(8, std::byte{1}));
      }
      machine.registry.Set(test::kSettingsKey, row.name, value);
    }
  }
  void RunReset() { User().Press("btnResetSettings"); }
  void Wait(int ms) { machine.timers.Advance(ms); }
};

TEST_F(Reset, EachGroupWritesItsValuesAndNoOthers) {
  struct Row {
    const char* box;
    std::set<std::string> names;
  };
  const Row rows[] = {
      {"R1", {"FormMagnet", "AutoStart", "StartIconMode", "CopyIP", "ShowHints", "AvarageTime"}},
      {"R2",
       {"GraphColor_Download", "GraphColor_DownloadLight", "GraphColor_DownloadShadow",
        "GraphColor_Upload", "GraphColor_UploadLight", "GraphColor_UploadShadow",
        "GraphColor_Background", "GraphColor_Border", "GraphColor_HistogramReceiving",
        "GraphColor_HistogramSend", "IconType"}},
      {"R3",
       {"vGridVisible", "cmbVLineStyle", "vLineSpace", "vLineColor", "hGridVisible",
        "cmbHLineStyle", "hLineSpace", "hLineColor"}},
      {"R4",
       {"BevelInner", "BevelOuter", "BevelWidth", "BorderWidth", "ZeroBased", "ScaleShow",
        "Pulse3D", "PulseSpace", "PulseWidth"}},
      {"R5", {"GraphColor_Font", "GraphColor_FontBackground", "FontName"}},
      {"R6",
       {"SOM1", "SOM2", "SOM3", "ScaleUnit", "WindowTitle", "ShowOnMainTariffName",
        "ShowOnMainConnLength", "ShowOnMainTotalCost", "ShowOnMainDailyTotalCost"}},
      {"R7",
       {"BAAlerts", "mPerStartsOn", "wPerStartsOn", "AlertsMoreThan", "MoreThan", "BADayWeekMonth",
        "baDownload", "baUpload", "chkBAPlay", "BaPlayFile", "BAAction", "BAMessage"}},
      {"R8", {"TickerActive",    "TickerBytes",  "TickerWav",          "LessIsPlay",
              "LessPlayWavFile", "LessByteWere", "LessDownloaded",     "LessUploaded",
              "LessNotSecs",     "LessAction",   "LessDisplayMessage", "MoreIsPlay",
              "MorePlayWavFile", "MoreByteWere", "MoreDownloaded",     "MoreUploaded",
              "MoreNotSecs",     "MoreAction",   "MoreDisplayMessage", "NotificationsActive"}},
      {"R9", {"DLSwitchScr", "ULSwitchNum", "TransparentFade", "AskOnExit"}},
      {"R10",
       {"CurrentDay", "CurrentDayTotalDL", "CurrentDayTotalUL", "CurrentDayMaxDL",
        "CurrentDayMaxUL", "BAShow"}},
      {"R11",
       {"CurrentWeek", "CurrentWeekTotalDL", "CurrentWeekTotalUL", "CurrentWeekMaxDL",
        "CurrentWeekMaxUL", "BAShow"}},
      {"R12",
       {"CurrentMonth", "CurrentMonthTotalDL", "CurrentMonthTotalUL", "CurrentMonthMaxDL",
        "CurrentMonthMaxUL", "BAShow"}},
  };
  RunOpen([&] {
    ChoosePage("Reset Settings");
    for (const Row& row : rows) {
      SCOPED_TRACE(row.box);
      UpsetAll();
      const Values before = AllValues();
      User().Press(row.box);
      RunReset();
      std::set<std::string> expected;
      for (const std::string& name : row.names) expected.insert(InSettings(name));
      std::set<std::string> written;
      for (const auto& [path, value] : Changes(before, AllValues())) written.insert(path);
      EXPECT_EQ(written, expected);
      Wait(600);
      EXPECT_FALSE(Widget(row.box).checked);
    }
  });
}

TEST_F(Reset, WritesDefaultsOfItsOwnAndTheMeterTakesThem) {
  RunOpen([&] {
    ChoosePage("Reset Settings");
    UpsetAll();
    User().Press("SelectAll");
    EXPECT_TRUE(Widget("R12").checked);
    User().Press("R12");
    EXPECT_FALSE(Widget("SelectAll").checked) << "not all are";
    EXPECT_TRUE(Widget("R11").checked);
    User().Press("R12");
    EXPECT_TRUE(Widget("SelectAll").checked);
    std::vector<std::string> written;
    machine.notebook.on_registry_write = [&](std::string_view name) { written.emplace_back(name); };
    RunReset();
    machine.notebook.on_registry_write = nullptr;
    const std::vector<std::string> order = {"FormMagnet", "GraphColor_Download", "vGridVisible",
                                            "BevelInner", "GraphColor_Font",     "SOM1",
                                            "BAAlerts",   "TickerActive",        "AskOnExit",
                                            "CurrentDay", "CurrentWeek",         "CurrentMonth"};
    EXPECT_EQ(InOrder(written, order), order);
    EXPECT_EQ(Stored("AlertsMoreThan"), 1U);
    EXPECT_EQ(Stored("MoreThan"), 10U);
    EXPECT_EQ(StoredText("MorePlayWavFile"), "");
    EXPECT_EQ(StoredText("LessPlayWavFile"), machine.files.ProgramFolder() + "Warning.wav");
    EXPECT_EQ(StoredText("GraphColor_Background"), "clBtnFace");
    EXPECT_EQ(Stored("GraphScaleType"), 77U);
    // The controls and the meter.
    SeeEveryPage();
    EXPECT_EQ(Widget("AvarageTrackBar").position, 5);
    EXPECT_EQ(Widget("FontChoose").text, "Tahoma");
    EXPECT_EQ(Widget("UploadColor").background, 0xFF0000U);
    EXPECT_EQ(Window().Parts().options.Parts().graph.Look().OutColor, 0xFF0000U);
    EXPECT_EQ(Line(), "[ Average DL:0,0 kB  UL:0,0 kB ]") << "two blanks";
  });
}

TEST_F(Reset, ThePeriodsAreMarkedWithToday) {
  RunOpen([&] {
    ChoosePage("Reset Settings");
    machine.clock.SetNow(platform::EncodeDateTime(2024, 12, 29, 20, 0, 0));
    UpsetAll();
    for (const char* box : {"R10", "R11", "R12"}) User().Press(box);
    RunReset();
    const auto day = machine.registry.Binary(test::kSettingsKey, "CurrentDay");
    double date = 0;
    ASSERT_TRUE(day && day->size() == sizeof date);
    std::memcpy(&date, day->data(), sizeof date);
    EXPECT_EQ(date, platform::EncodeDate(2024, 12, 29));
    EXPECT_EQ(Stored("CurrentWeek"), 52U) << "a Sunday, in the evening too";
    EXPECT_EQ(Stored("CurrentMonth"), 12U);
    EXPECT_EQ(StoredText("CurrentWeekMaxUL"), "0");
  });
}

TEST_F(Reset, TheProgressLetsTheWindowBeUsedAndClosed) {
  RunOpen([&] {
    ChoosePage("Reset Settings");
    std::vector<std::string> written;
    machine.notebook.on_registry_write = [&](std::string_view name) { written.emplace_back(name); };
    RunReset();
    machine.notebook.on_registry_write = nullptr;
    EXPECT_EQ(written, std::vector<std::string>()) << "no group was chosen";
    EXPECT_FALSE(Widget("btnResetSettings").enabled);
    Wait(5);
    EXPECT_EQ(Widget("ResetSettingPrg").position, 1);
    Wait(245);
    EXPECT_EQ(Widget("ResetSettingPrg").position, 50);
    User().Press("R3");
    Close();
    Open();
    EXPECT_EQ(Widget("ResetSettingPrg").position, 50);
    Close();
    Wait(250);
    EXPECT_EQ(Widget("ResetSettingPrg").position, 100);
    Wait(5);
    Open();
    EXPECT_EQ(Widget("ResetSettingPrg").position, 0);
    EXPECT_TRUE(Widget("btnResetSettings").enabled);
    EXPECT_FALSE(Widget("R3").checked);
    RunReset();  // and the end of the program comes in the middle of it
  });
}

}  // namespace
