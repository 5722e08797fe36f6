#include "settings/schema.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "platform/memory/machine.h"
#include "platform/text.h"
#include "settings/first_start.h"
#include "settings/store.h"

namespace {

using platform::memory::RegistryValue;
using settings::Default;
using settings::ResetGroup;
using settings::SchemaRow;
using settings::ValueType;
namespace setting = settings::setting;
using RegistryType = platform::memory::ValueType;

constexpr const char* kSettings = "\\SOFTWARE\\Korvane\\Dravenlow\\Settings";
constexpr platform::DateTime kToday = 45427;  // 2024-05-15

TEST(Schema, NoTwoNamesDifferOnlyInCase) {
  // The registry does not tell case apart, so such a pair would be one value.
  std::set<std::string> seen;
  for (const SchemaRow& row : settings::Schema()) {
    EXPECT_TRUE(seen.insert(platform::AsciiLower(row.name)).second) << row.name;
  }
}

TEST(Schema, AFirstStartStoresEveryOptionButTextsWithItsTypeAndDefault) {
  platform::memory::Machine machine;
  settings::Store store(machine.registry, machine.files);
  settings::CreateMissingValues(store, kToday);

  struct Row {
    const char* name;
    RegistryType type;
    const char* text;  // of a colour; else null
    std::uint32_t number;
  };
  static constexpr Row kRows[] = {
      {"FormMagnet", RegistryType::kDword, nullptr, 1},
      {"AutoStart", RegistryType::kDword, nullptr, 0},
      {"AvarageTime", RegistryType::kDword, nullptr, 5},
      {"Win2kTransparentRatio", RegistryType::kDword, nullptr, 190},
      {"GraphColor_Download", RegistryType::kText, "$000000CD", 0},
      {"GraphColor_DownloadLight", RegistryType::kText, "$008184FE", 0},
      {"GraphColor_Background", RegistryType::kText, "clBtnFace", 0},
      {"GraphColor_HistogramReceiving", RegistryType::kText, "clRed", 0},
      {"hGridVisible", RegistryType::kDword, nullptr, 0},
      {"hLineSpace", RegistryType::kDword, nullptr, 25},
      {"vLineColor", RegistryType::kText, "clSilver", 0},
      {"SpeedLimit", RegistryType::kDword, nullptr, 128},
      {"SOM2", RegistryType::kDword, nullptr, 1},
      {"mPerStartsOn", RegistryType::kDword, nullptr, 1},
      {"AlertsMoreThan", RegistryType::kDword, nullptr, 0},
      {"MoreThan", RegistryType::kDword, nullptr, 1},
      {"MoreByteWere", RegistryType::kDword, nullptr, 5000},
      {"Transparent2k", RegistryType::kDword, nullptr, 0},
      {"WindowMode", RegistryType::kDword, nullptr, 2},
      {"AlwaysTopOn", RegistryType::kDword, nullptr, 1},
      {"CurrentWeek", RegistryType::kDword, nullptr, 0},
      {"BAShow", RegistryType::kDword, nullptr, 0},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(machine.registry.TypeOf(kSettings, row.name), row.type);
    if (row.text != nullptr) {
      EXPECT_EQ(machine.registry.Text(kSettings, row.name), row.text);
    } else {
      EXPECT_EQ(machine.registry.Dword(kSettings, row.name), row.number);
    }
  }
  EXPECT_EQ(machine.registry.TypeOf(kSettings, "CurrentDay"), RegistryType::kBinary);
  EXPECT_EQ(store.ReadDate("CurrentDay", 0), kToday - 1) << "yesterday";
  for (const char* absent : {"FontName", "TickerWav", "BAMessage", "Language", "zdP", "InfoMaxDL",
                             "CurrentDayTotalDL", "ShowOnMainConnLength"}) {
    EXPECT_FALSE(machine.registry.Exists(kSettings, absent)) << absent;
  }
}

TEST(Schema, AFirstStartLeavesNothingOutAndAltersNothing) {
  platform::memory::Machine machine;
  settings::Store store(machine.registry, machine.files);
  store.Write(setting::MoreThan, 77);
  machine.registry.Set(kSettings, "ScaleUnit", RegistryValue::Text("garbage"));
  settings::CreateMissingValues(store, kToday);
  EXPECT_EQ(store.Read(setting::MoreThan), 77);
  EXPECT_EQ(machine.registry.Dword(kSettings, "ScaleUnit"), 0U) << "a wrong type is replaced";

  const auto rows = settings::Schema();
  const auto created = std::count_if(rows.begin(), rows.end(), [](const SchemaRow& row) {
    return row.type != ValueType::kText && row.type != ValueType::kCounter &&
           row.read.kind != Default::Kind::kNone;
  });
  EXPECT_EQ(std::ssize(machine.registry.Values(kSettings)), created);
}

TEST(Schema, TheseResetsDifferFromWhatAFirstStartStores) {
  std::string names;
  for (const SchemaRow& row : settings::Schema()) {
    if (row.read.kind == Default::Kind::kNone || row.reset.kind == Default::Kind::kNone) continue;
    const bool same = row.read.kind == row.reset.kind && row.read.number == row.reset.number &&
                      row.read.text == row.reset.text;
    if (!same) names += std::string(row.name) + ' ';
  }
  EXPECT_EQ(names, "AlertsMoreThan MoreThan MorePlayWavFile CurrentDay CurrentWeek CurrentMonth ");
}

TEST(Schema, EachGroupHasItsValuesInTheOrderOfTheReset) {
  const auto names_of = [](ResetGroup group) {
    std::string names;
    for (const SchemaRow& row : settings::Schema()) {
      if (row.group == group && row.reset.kind != Default::Kind::kNone) {
        names += std::string(row.name) + ' ';
      }
    }
    return names;
  };
  EXPECT_EQ(names_of(ResetGroup::kGeneral),
            "FormMagnet AutoStart StartIconMode CopyIP ShowHints AvarageTime ");
  EXPECT_EQ(names_of(ResetGroup::kWeekly),
            "CurrentWeek CurrentWeekTotalDL CurrentWeekTotalUL CurrentWeekMaxUL CurrentWeekMaxDL ");
  EXPECT_EQ(names_of(ResetGroup::kOther), "DLSwitchScr ULSwitchNum TransparentFade AskOnExit ");
}

}  // namespace
