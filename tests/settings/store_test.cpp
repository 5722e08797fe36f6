#include "settings/store.h"

#include <gtest/gtest.h>

#include <set>

#include "platform/text.h"
#include "settings/autostart.h"
#include "settings/first_start.h"
#include "settings/value_texts.h"
#include "tests/world.h"

namespace {

using platform::memory::ValueType;
using settings::KeyIndex;
namespace setting = settings::setting;

constexpr const char* kRun = "\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";

class Store : public testing::Test, protected test::Computer {
 protected:
  void Put(std::string_view name, const RegistryValue& value) {
    machine.registry.Set(test::kSettingsKey, name, value);
  }
  static RegistryValue DateValue(double date) {
    return RegistryValue::Binary(std::as_bytes(std::span(&date, 1)));
  }
};

TEST_F(Store, AValueThatIsMissingOrOfAnotherTypeIsReplacedByTheDefault) {
  const RegistryValue stored[] = {
      RegistryValue::Text("twelve"),
      RegistryValue::Binary(std::as_bytes(std::span("ab"))),
      {ValueType::kQword, std::vector<std::byte>(8)},
      {ValueType::kNone, {}},
  };
  const auto check = [this] {
    EXPECT_EQ(store.ReadInteger("n", 0x1'2345'6789), 0x1'2345'6789);
    EXPECT_TRUE(store.ReadBool("b", true));
    EXPECT_EQ(store.ReadDate("d", 1.25), 1.25);
    EXPECT_EQ(store.ReadColor("c", 0x123456), 0x123456U);
    EXPECT_EQ(Stored("n"), 0x23456789U) << "the low 32 bits are stored";
    EXPECT_EQ(Stored("b"), 1U);
    EXPECT_EQ(machine.registry.Binary(test::kSettingsKey, "d"), DateValue(1.25).data);
    EXPECT_EQ(StoredText("c"), "$00123456");
  };
  check();
  for (const RegistryValue& value : stored) {
    SCOPED_TRACE(static_cast<int>(value.type));
    for (const char* name : {"n", "b", "d", "c"}) Put(name, value);
    check();
  }
}

TEST_F(Store, AReadOfAMissingTextStoresNothing) {
  EXPECT_EQ(store.ReadString(KeyIndex::kSettings, "t", "default"), "default");
  EXPECT_EQ(store.Read(setting::TickerWav), "C:\\Program Files\\Korvane Tremolux\\ticking.wav");
  EXPECT_EQ(store.Read(setting::InfoMaxDL), 0);
  EXPECT_TRUE(machine.registry.Values(test::kSettingsKey).empty());
}

TEST_F(Store, AReadNeverFailsAlsoWhereNothingCanBeStored) {
  // The opening, the read, and the write of the default behind it.
  for (int call = 1; call <= 3; ++call) {
    machine.notebook.FailCall(call);
    EXPECT_EQ(store.ReadInteger("never stored before " + std::to_string(call), 42), 42);
    EXPECT_FALSE(machine.notebook.FailurePending()) << call;
  }
  store.WriteInteger("n", 1);
  machine.notebook.FailCall(2);
  EXPECT_THROW(store.WriteInteger("n", 2), std::runtime_error) << "a refused write is told";
  machine.registry.Deny(test::kSettingsKey);
  EXPECT_EQ(store.ReadString(KeyIndex::kSettings, "t", "default"), "default");
  EXPECT_FALSE(store.WriteInteger("n", 2));
  EXPECT_FALSE(store.WriteDate("n", 2));
  EXPECT_FALSE(store.WriteString(KeyIndex::kSettings, "t", "x"));
  EXPECT_EQ(Stored("n"), 1U);
}

TEST_F(Store, AKeyThatCanOnlyBeReadIsRead) {
  store.WriteInteger("n", 0x5'8000'0000);
  store.WriteDate("d", 45000.5);
  store.WriteColor("c", 0x123456);
  store.WriteString(KeyIndex::kSettings, "t", "x");
  machine.registry.DenyWriting(test::kSettingsKey);
  EXPECT_EQ(store.ReadInteger("n", 0), -2147483648LL) << "32 bits and a sign";
  EXPECT_TRUE(store.ReadBool("n", false)) << "any number but 0 is true";
  EXPECT_EQ(store.ReadDate("d", 1.25), 45000.5);
  EXPECT_EQ(store.ReadColor("c", 0), 0x123456U);
  EXPECT_EQ(store.ReadString(KeyIndex::kSettings, "t", ""), "x");
  EXPECT_EQ(store.ReadInteger("missing", 5), 5);
}

// What a row of the schema says stands once more in docs/settings.md, and is compared with it.
TEST_F(Store, AFirstStartStoresWhatIsMissingAndIsNoText) {
  constexpr platform::DateTime kToday = 45427;
  store.Write(setting::MoreThan, 77);
  Set("TickerBytes", "of a wrong type");
  settings::CreateMissingValues(store, kToday);
  EXPECT_EQ(Stored("MoreThan"), 77U);
  EXPECT_EQ(Stored("TickerBytes"), 1000U);
  EXPECT_EQ(Stored("FormMagnet"), 1U);
  EXPECT_EQ(StoredText("GraphColor_DownloadLight"), "$008184FE");
  EXPECT_EQ(machine.registry.Binary(test::kSettingsKey, "CurrentDay"), DateValue(kToday - 1).data);
  for (const char* name : {"TickerWav", "InfoMaxDL", "ShowOnMainTotalCost"}) {
    EXPECT_FALSE(machine.registry.Exists(test::kSettingsKey, name)) << name;
  }
}

// The registry does not tell case apart, so such a pair would be one value.
TEST_F(Store, NoTwoNamesDifferOnlyInCase) {
  std::set<std::string> seen;
  for (const settings::SchemaRow& row : settings::Schema()) {
    EXPECT_TRUE(seen.insert(platform::AsciiLower(row.name)).second) << row.name;
  }
}

TEST_F(Store, TheKeyIndexChoosesTheKey) {
  EXPECT_TRUE(store.WriteString(KeyIndex::kPaths, "t", "paths"));
  EXPECT_TRUE(store.WriteString(KeyIndex::kAdapterDatas, "t", "adapters"));
  EXPECT_FALSE(store.WriteString(KeyIndex::kRun, "t", "run")) << "never created";
  EXPECT_FALSE(store.WriteString(static_cast<KeyIndex>(4), "t", "beyond"));
  EXPECT_EQ(store.ReadString(KeyIndex::kPaths, "t", ""), "paths");
  EXPECT_EQ(store.ReadString(KeyIndex::kRun, "t", "none"), "none");
  EXPECT_EQ(store.ReadString(static_cast<KeyIndex>(9), "t", ""), "adapters");
  EXPECT_EQ(StoredOfAdapter("t"), "adapters");
}

TEST_F(Store, ACounterIsATextOfDigitsAndAnythingElseAnError) {
  store.Write(setting::InfoMaxDL, -17);
  EXPECT_EQ(StoredText("InfoMaxDL"), "17");
  store.Write(setting::InfoMaxDL, INT64_MIN);
  EXPECT_EQ(store.Read(setting::InfoMaxDL), INT64_MIN) << "what is written can be read again";
  Set("InfoMaxDL", "+007");
  EXPECT_EQ(store.Read(setting::InfoMaxDL), 7);

  const std::string much(101, '7');
  for (const std::string text :
       {"", "-", "+-7", " 7", "7 ", "$7", "9223372036854775808", much.c_str() + 1, much.c_str()}) {
    Set("InfoMaxDL", text);
    std::string message = "none";
    try {
      (void)store.Read(setting::InfoMaxDL);
    } catch (const settings::ConversionError& error) {
      message = error.what();
    }
    const std::string quoted =
        "'" + text.substr(0, 100) + "'" + (text == much ? " and so on, 101 bytes," : "");
    EXPECT_EQ(message, quoted + " is not a valid integer value");
  }
}

TEST_F(Store, AutostartWritesTheRunValueOnlyWhereTheKeyExists) {
  const std::string program = machine.files.ProgramPath();
  settings::StartWithWindows(store, program, true);
  EXPECT_FALSE(machine.registry.Exists(kRun));

  machine.registry.Set(kRun, "other", RegistryValue::Text("other.exe"));
  settings::StartWithWindows(store, program, true);
  EXPECT_EQ(machine.registry.Text(kRun, "BrisantoXP"), program);
  settings::StartWithWindows(store, program, false);
  EXPECT_EQ(machine.registry.Values(kRun), std::vector<std::string>{"other"});
}

}  // namespace
