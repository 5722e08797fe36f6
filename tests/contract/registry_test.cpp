#include "platform/registry.h"

#include <span>
#include <stdexcept>

#include "tests/contract/world.h"

namespace contract {
namespace {

using platform::KeyAccess;
using platform::RegistryKey;

constexpr std::string_view kKey = "\\Software\\TremoluxContractTests";

// The system's numbers of value types.
constexpr std::uint32_t kText = 1, kBinary = 3, kDword = 4, kQword = 11;

std::vector<std::byte> Bytes(std::string_view text) {
  const auto bytes = std::as_bytes(std::span(text));
  return {bytes.begin(), bytes.end()};
}

class Registry : public ContractTest {
 protected:
  void SetUp() override { world_.RemoveKey(kKey); }
  void TearDown() override { world_.RemoveKey(kKey); }

  std::unique_ptr<RegistryKey> Open(KeyAccess access = KeyAccess::kCreate,
                                    std::string_view path = kKey) {
    return Platform().registry.Open(path, access);
  }
};

TEST_F(Registry, AKeyIsMadeWithThoseAboveItAndOnlyWhenThatIsAskedFor) {
  const std::string deep = std::string(kKey) + "\\A\\B";
  for (const KeyAccess access : {KeyAccess::kExisting, KeyAccess::kReadOnly}) {
    EXPECT_EQ(Open(access, deep), nullptr);
    EXPECT_EQ(Open(access), nullptr);
  }
  EXPECT_NE(Open(KeyAccess::kCreate, deep), nullptr);
  EXPECT_NE(Open(KeyAccess::kExisting, deep.substr(1) + "\\"), nullptr) << "another spelling";
  EXPECT_NE(Open(KeyAccess::kExisting), nullptr);
  EXPECT_EQ(Open(KeyAccess::kCreate, std::string(kKey) + "\\" + std::string(300, 'k')), nullptr)
      << "the system refuses so long a name";
}

TEST_F(Registry, NumbersAndBytesComeBack) {
  for (const std::uint32_t value : {0U, 0xFFFFFFFFU}) {
    Open()->WriteDword("n", value);
    EXPECT_EQ(Open(KeyAccess::kExisting)->ReadDword("n"), value);
  }
  for (const std::string& data :
       {std::string(), std::string("\0\xFF\0", 3), std::string(5000, 1)}) {
    SCOPED_TRACE(data.size());
    Open()->WriteBinary("b", Bytes(data));
    EXPECT_EQ(Open(KeyAccess::kExisting)->ReadBinary("b"), Bytes(data));
  }
}

TEST_F(Registry, TextsComeBack) {
  struct Row {
    const char* why;
    std::string written, read;
  };
  const Row rows[] = {
      {"empty", "", ""},
      {"umlauts and Chinese", "\u00DCberma\u00DF \u7F51", "\u00DCberma\u00DF \u7F51"},
      {"beyond the first plane", "\U0001F600", "\U0001F600"},
      {"longer than a usual value", std::string(20000, 'x'), std::string(20000, 'x')},
      {"up to the first NUL", std::string("a\0b", 3), "a"},
      {"malformed text is repaired", "a\xFFz", "a\uFFFDz"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.why);
    Open()->WriteText("t", row.written);
    EXPECT_EQ(Open(KeyAccess::kExisting)->ReadText("t"), row.read);
  }
}

TEST_F(Registry, NamesOfValuesMayBeNearlyAnythingAndCaseIsNotToldApart) {
  struct Row {
    std::string one, other;
    bool same;
  };
  const Row rows[] = {
      {"", "", true},
      {"a\\b", "A\\B", true},
      {"\u00DCber \u7F51 \u0416", "\u00FCber \u7F51 \u0436", true},
      {std::string(255, 'n') + "CurrentDay", std::string(255, 'n') + "cURRENTdAY", true},
      {"name", "name ", false},
      {"a", "\u00E4", false},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.one);
    Open()->WriteDword(row.one, 5);
    EXPECT_EQ(Open()->ReadDword(row.other).has_value(), row.same);
    EXPECT_TRUE(Open()->Delete(row.one));
    EXPECT_FALSE(Open()->Delete(row.one)) << "it is gone";
  }
}

TEST_F(Registry, WhatAnotherProgramWroteIsReadWhereTheTypeIsRight) {
  struct Row {
    const char* why;
    std::uint32_t type = 0;
    std::string data = {};
    std::optional<std::string> text = {};
    bool dword = false, binary = false;
  };
  const Row rows[] = {
      {.why = "missing"},
      {.why = "a number", .type = kDword, .data = {"\1\0\0\0", 4}, .dword = true},
      {.why = "a number of two bytes", .type = kDword, .data = {"\1\0", 2}},
      {.why = "a long number", .type = kQword, .data = {"\1\0\0\0\0\0\0\0", 8}},
      {.why = "a text of four bytes", .type = kText, .data = {"1\0\0\0", 4}, .text = "1"},
      {.why = "four bytes", .type = kBinary, .data = {"\1\0\0\0", 4}, .binary = true},
      {.why = "nothing at all", .type = kText, .text = ""},
      {.why = "no terminating NUL", .type = kText, .data = {"a\0b\0", 4}, .text = "ab"},
      {.why = "half a character", .type = kText, .data = {"a\0b", 3}, .text = "a"},
      {.why = "more behind", .type = kText, .data = {"a\0\0\0b\0\0\0", 8}, .text = "a"},
      {.why = "half a pair", .type = kText, .data = {"a\0\x3D\xD8\0\0", 6}, .text = "a\uFFFD"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.why);
    const auto key = Open();
    if (row.type != 0) world_.SetRawValue(kKey, "v", row.type, row.data);
    EXPECT_EQ(key->ReadText("v"), row.text);
    EXPECT_EQ(key->ReadDword("v").has_value(), row.dword);
    EXPECT_EQ(key->ReadBinary("v").has_value(), row.binary);
  }
  Open()->WriteDword("v", 3);
  EXPECT_EQ(Open()->ReadDword("v"), 3U) << "a write replaces value and type";
}

TEST_F(Registry, AWriteThatTheSystemRefusesIsReported) {
  Open()->WriteDword("v", 3);
  const auto reader = Open(KeyAccess::kReadOnly);
  ASSERT_NE(reader, nullptr);
  EXPECT_THROW(reader->WriteDword("v", 4), std::runtime_error);
  EXPECT_FALSE(reader->Delete("v"));
  EXPECT_EQ(reader->ReadDword("v"), 3U);

  const auto key = Open();
  world_.RemoveKey(kKey);
  EXPECT_THROW(key->WriteDword("v", 1), std::runtime_error) << "the key is gone";
  EXPECT_EQ(key->ReadDword("v"), std::nullopt);
  EXPECT_FALSE(key->Delete("v"));
}

}  // namespace
}  // namespace contract
