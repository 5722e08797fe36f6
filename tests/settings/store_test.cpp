#include "settings/store.h"

#include <gtest/gtest.h>

#include <cstring>

#include "platform/memory/machine.h"
#include "settings/autostart.h"
#include "settings/value_texts.h"

namespace {

using platform::memory::RegistryValue;
using platform::memory::ValueType;
using settings::KeyIndex;
namespace setting = settings::setting;

constexpr const char* kSettings = "\\SOFTWARE\\Korvane\\Dravenlow\\Settings";
constexpr const char* kAdapterDatas = "\\SOFTWARE\\Korvane\\Dravenlow\\AdapterDatas";
constexpr const char* kRun = "\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";

class Store : public testing::Test {
 protected:
  platform::memory::Machine machine;
  settings::Store store{machine.registry, machine.files};

  RegistryValue DateValue(double date) {
    return RegistryValue::Binary(std::as_bytes(std::span(&date, 1)));
  }
};

TEST_F(Store, AReadOfAMissingValueStoresItsDefault) {
  EXPECT_EQ(store.ReadInteger("n", 0x1'2345'6789), 0x1'2345'6789);
  EXPECT_TRUE(store.ReadBool("b", true));
  EXPECT_EQ(store.ReadDate("d", 45000.5), 45000.5);
  EXPECT_EQ(store.ReadColor("c", platform::colour::kButtonFace), platform::colour::kButtonFace);
  EXPECT_EQ(machine.registry.Dword(kSettings, "n"), 0x23456789U) << "the low 32 bits are stored";
  EXPECT_EQ(machine.registry.Dword(kSettings, "b"), 1U);
  EXPECT_EQ(machine.registry.Binary(kSettings, "d"), DateValue(45000.5).data);
  EXPECT_EQ(machine.registry.Text(kSettings, "c"), "clBtnFace");
}

TEST_F(Store, AReadOfAMissingTextStoresNothing) {
  EXPECT_EQ(store.ReadString(KeyIndex::kSettings, "t", "default"), "default");
  EXPECT_EQ(store.Read(setting::TickerWav), "C:\\Program Files\\Korvane Tremolux\\ticking.wav");
  EXPECT_EQ(store.Read(setting::InfoMaxDL), 0);
  EXPECT_TRUE(machine.registry.Values(kSettings).empty());
}

TEST_F(Store, StoredValuesReadBackAsTheirTypeSaysThem) {
  machine.registry.Set(kSettings, "minus one", RegistryValue::Dword(0xFFFFFFFF));
  machine.registry.Set(kSettings, "lowest", RegistryValue::Dword(0x80000000));
  machine.registry.Set(kSettings, "seven", RegistryValue::Dword(7));
  EXPECT_EQ(store.ReadInteger("minus one", 5), -1);
  EXPECT_EQ(store.ReadInteger("lowest", 5), -2147483648LL);
  EXPECT_TRUE(store.ReadBool("seven", false)) << "any number but 0 is true";
  store.WriteInteger("wide", 0x5'0000'0007);
  EXPECT_EQ(store.ReadInteger("wide", 0), 7);
}

TEST_F(Store, AValueOfAnotherTypeIsReplacedByTheDefault) {
  struct Row {
    const char* why;
    RegistryValue stored;
  };
  const Row rows[] = {
      {"text where a number belongs", RegistryValue::Text("twelve")},
      {"three bytes", RegistryValue::Binary(std::as_bytes(std::span("ab")))},
      {"a number of 64 bits", {ValueType::kQword, std::vector<std::byte>(8)}},
      {"no type, no data", {ValueType::kNone, {}}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.why);
    for (const char* name : {"n", "b", "d", "c"}) machine.registry.Set(kSettings, name, row.stored);
    EXPECT_EQ(store.ReadInteger("n", -3), -3);
    EXPECT_TRUE(store.ReadBool("b", true));
    EXPECT_EQ(store.ReadDate("d", 1.25), 1.25);
    EXPECT_EQ(store.ReadColor("c", 0x123456), 0x123456U);
    EXPECT_EQ(machine.registry.Dword(kSettings, "n"), 0xFFFFFFFDU);
    EXPECT_EQ(machine.registry.Dword(kSettings, "b"), 1U);
    EXPECT_EQ(machine.registry.Binary(kSettings, "d"), DateValue(1.25).data);
    EXPECT_EQ(machine.registry.Text(kSettings, "c"), "$00123456");
  }
}

TEST_F(Store, ATextThatIsNoColourIsOverwritten) {
  machine.registry.Set(kSettings, "vLineColor", RegistryValue::Text("abc"));
  EXPECT_EQ(store.Read(setting::vLineColor), platform::colour::kSilver);
  EXPECT_EQ(machine.registry.Text(kSettings, "vLineColor"), "clSilver");
}

TEST_F(Store, AReadNeverFailsAlsoWhereNothingCanBeStored) {
  // The opening, the read, and the write of the default behind it.
  for (int call = 1; call <= 3; ++call) {
    SCOPED_TRACE(call);
    machine.notebook.FailCall(call);
    EXPECT_EQ(store.ReadInteger("never stored before " + std::to_string(call), 42), 42);
    EXPECT_FALSE(machine.notebook.FailurePending());
  }
  machine.registry.Deny(kSettings);
  EXPECT_EQ(store.ReadString(KeyIndex::kSettings, "t", "default"), "default");
  EXPECT_FALSE(store.WriteInteger("n", 1));
  EXPECT_FALSE(store.WriteString(KeyIndex::kSettings, "t", "x"));
}

TEST_F(Store, AKeyThatCanOnlyBeReadIsRead) {
  store.WriteInteger("n", 1);
  store.WriteBool("b", true);
  store.WriteDate("d", 45000.5);
  store.WriteColor("c", 0x123456);
  store.WriteString(KeyIndex::kSettings, "t", "x");
  machine.registry.DenyWriting(kSettings);
  EXPECT_EQ(store.ReadInteger("n", 5), 1);
  EXPECT_TRUE(store.ReadBool("b", false));
  EXPECT_EQ(store.ReadDate("d", 1.25), 45000.5);
  EXPECT_EQ(store.ReadColor("c", 0), 0x123456U);
  EXPECT_EQ(store.ReadString(KeyIndex::kSettings, "t", ""), "x");
  EXPECT_EQ(store.ReadInteger("missing", 5), 5);
  EXPECT_FALSE(store.WriteInteger("n", 2));
  EXPECT_FALSE(machine.registry.Exists(kSettings, "missing"));
}

TEST_F(Store, ARefusedWriteReachesTheCallerAndLeavesTheOldValue) {
  store.WriteInteger("n", 1);
  machine.notebook.FailCall(2);
  EXPECT_THROW(store.WriteInteger("n", 2), std::runtime_error);
  EXPECT_EQ(machine.registry.Dword(kSettings, "n"), 1U);
}

TEST_F(Store, EachCallIsOneRoundTrip) {
  machine.notebook.Restart();
  store.ReadInteger("n", 5);  // stores the default within the same opening
  store.ReadInteger("n", 5);
  store.WriteString(KeyIndex::kAdapterDatas, "t", "x");
  EXPECT_EQ(store.ReadString(KeyIndex::kAdapterDatas, "t", ""), "x");
  EXPECT_EQ(machine.notebook.registry.round_trips, 4);
  EXPECT_EQ(machine.notebook.registry.Reads(), 3);
  EXPECT_EQ(machine.notebook.registry.Writes(), 2);
}

TEST_F(Store, TheKeyIndexChoosesTheKey) {
  EXPECT_TRUE(store.WriteString(KeyIndex::kPaths, "t", "paths"));
  EXPECT_TRUE(store.WriteString(KeyIndex::kAdapterDatas, "t", "adapters"));
  EXPECT_FALSE(store.WriteString(KeyIndex::kRun, "t", "run")) << "never created";
  EXPECT_FALSE(store.WriteString(static_cast<KeyIndex>(4), "t", "beyond"));
  EXPECT_FALSE(machine.registry.Exists(kRun));
  EXPECT_EQ(store.ReadString(KeyIndex::kPaths, "t", ""), "paths");
  EXPECT_EQ(store.ReadString(KeyIndex::kRun, "t", "none"), "none");
  EXPECT_EQ(store.ReadString(static_cast<KeyIndex>(9), "t", ""), "adapters");
  EXPECT_EQ(machine.registry.Text(kAdapterDatas, "t"), "adapters");
}

TEST_F(Store, ACounterIsStoredAsItsAbsoluteValue) {
  store.Write(setting::InfoMaxDL, -17);
  EXPECT_EQ(machine.registry.Text(kSettings, "InfoMaxDL"), "17");
  store.Write(setting::InfoMaxDL, INT64_MIN);
  EXPECT_EQ(store.Read(setting::InfoMaxDL), INT64_MIN) << "what is written can be read again";
}

TEST_F(Store, ACounterThatIsNoNumberIsAnError) {
  struct Row {
    const char* text;
    bool number;
  };
  static constexpr Row kRows[] = {
      {"0", true},
      {"+7", true},
      {"-7", true},
      {"007", true},
      {"9223372036854775807", true},
      {"-9223372036854775808", true},
      {"9223372036854775808", false},
      {"", false},
      {"-", false},
      {"+-7", false},
      {" 7", false},
      {"7 ", false},
      {"$7", false},
      {"0x7", false},
      {"7.0", false},
      {"7\xC3\xA4", false},
      {"abc", false},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.text);
    machine.registry.Set(kSettings, "InfoMaxDL", RegistryValue::Text(row.text));
    if (row.number) {
      EXPECT_NO_THROW((void)store.Read(setting::InfoMaxDL));
      continue;
    }
    try {
      (void)store.Read(setting::InfoMaxDL);
      ADD_FAILURE() << "read as a number";
    } catch (const settings::ConversionError& error) {
      EXPECT_STREQ(error.what(),
                   ("'" + std::string(row.text) + "' is not a valid integer value").c_str());
    }
  }
}

TEST_F(Store, ALongTextThatIsNoNumberIsQuotedByItsBeginning) {
  machine.registry.Set(kSettings, "InfoMaxDL", RegistryValue::Text(std::string(65536, '\x07')));
  try {
    (void)store.Read(setting::InfoMaxDL);
    ADD_FAILURE() << "read as a number";
  } catch (const settings::ConversionError& error) {
    EXPECT_EQ(error.what(), "'" + std::string(100, '\x07') +
                                "' and so on, 65536 bytes, is not a valid integer value");
  }
}

TEST_F(Store, AutostartWritesTheRunValueOnlyWhereTheKeyExists) {
  const std::string program = machine.files.ProgramPath();
  settings::StartWithWindows(store, program, true);
  EXPECT_FALSE(machine.registry.Exists(kRun));

  machine.registry.Set(kRun, "other", RegistryValue::Text("other.exe"));
  settings::StartWithWindows(store, program, false);  // deletes a value that is not there
  EXPECT_EQ(machine.registry.Values(kRun), std::vector<std::string>{"other"});
  settings::StartWithWindows(store, program, true);
  EXPECT_EQ(machine.registry.Text(kRun, "BrisantoXP"), program);
  settings::StartWithWindows(store, program, false);
  EXPECT_EQ(machine.registry.Values(kRun), std::vector<std::string>{"other"});
}

}  // namespace
