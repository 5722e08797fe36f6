#include "platform/registry.h"

#include <stdexcept>

#include "tests/contract/world.h"

namespace contract {
namespace {

using platform::KeyAccess;
using platform::RegistryKey;

constexpr std::string_view kKey = "\\Software\\TremoluxContractTests";

// The system's numbers of value types.
constexpr std::uint32_t kText = 1;
constexpr std::uint32_t kExpandText = 2;
constexpr std::uint32_t kBinary = 3;
constexpr std::uint32_t kDword = 4;
constexpr std::uint32_t kQword = 11;

std::vector<std::byte> Bytes(std::string_view text) {
  std::vector<std::byte> bytes;
  for (const char c : text) bytes.push_back(static_cast<std::byte>(c));
  return bytes;
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
  EXPECT_NE(Open(KeyAccess::kExisting, deep), nullptr);
  EXPECT_NE(Open(KeyAccess::kExisting), nullptr);
  EXPECT_EQ(Open(KeyAccess::kCreate, std::string(kKey) + "\\" + std::string(300, 'k')), nullptr)
      << "the system refuses so long a name";
}

TEST_F(Registry, OneKeyHasManySpellings) {
  Open()->WriteDword("n", 7);
  for (const std::string_view path :
       {"\\Software\\TremoluxContractTests", "Software\\TremoluxContractTests",
        "\\SOFTWARE\\tremoluxcontracttests", "Software\\TremoluxContractTests\\"}) {
    SCOPED_TRACE(path);
    const auto key = Open(KeyAccess::kExisting, path);
    ASSERT_NE(key, nullptr);
    EXPECT_EQ(key->ReadDword("n"), 7U);
  }
}

TEST_F(Registry, NumbersAndBytesComeBack) {
  for (const std::uint32_t value : {0U, 1U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
    Open()->WriteDword("n", value);
    EXPECT_EQ(Open(KeyAccess::kExisting)->ReadDword("n"), value);
  }
  EXPECT_EQ(world_.RawValueOf(kKey, "n"), (RawValue{kDword, "\xFF\xFF\xFF\xFF"}));
  for (const std::string& data : {std::string(), std::string("\0\xFF\0", 3), std::string(8, '\x40'),
                                  std::string(5000, '\x01')}) {
    SCOPED_TRACE(data.size());
    Open()->WriteBinary("b", Bytes(data));
    EXPECT_EQ(Open(KeyAccess::kExisting)->ReadBinary("b"), Bytes(data));
    EXPECT_EQ(world_.RawValueOf(kKey, "b"), (RawValue{kBinary, data}));
  }
}

TEST_F(Registry, TextsComeBack) {
  struct Row {
    const char* why;
    std::string written;
    std::string read;
  };
  const Row rows[] = {
      {"empty", "", ""},
      {"umlauts and Chinese", "\u00DCberma\u00DF \u7F51", "\u00DCberma\u00DF \u7F51"},
      {"beyond the first plane", "\U0001F600", "\U0001F600"},
      {"blanks and line ends stay", " a\r\n\t b ", " a\r\n\t b "},
      {"per cent signs are only text", "%PATH%", "%PATH%"},
      {"longer than a usual value", std::string(20000, 'x'), std::string(20000, 'x')},
      {"up to the first NUL", std::string("a\0b", 3), "a"},
      {"malformed text is repaired", "a\xFFz", "a\uFFFDz"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.why);
    Open()->WriteText("t", row.written);
    EXPECT_EQ(Open(KeyAccess::kExisting)->ReadText("t"), row.read);
  }
  Open()->WriteText("t", "a\u00E4");
  EXPECT_EQ(world_.RawValueOf(kKey, "t"), (RawValue{kText, std::string("a\0\xE4\0\0\0", 6)}))
      << "with its terminating NUL";
}

TEST_F(Registry, NamesOfValuesMayBeNearlyAnything) {
  const std::string names[] = {"",
                               "a\\b",
                               " blanks at its ends ",
                               "\u00FCber \u7F51",
                               "R&D \"quoted\" | %x%",
                               std::string(255, 'n') + "CurrentMonthTotalDL"};
  std::uint32_t value = 0;
  for (const std::string& name : names) Open()->WriteDword(name, ++value);
  value = 0;
  for (const std::string& name : names) {
    SCOPED_TRACE(name);
    EXPECT_EQ(Open(KeyAccess::kExisting)->ReadDword(name), ++value);
    EXPECT_TRUE(Open(KeyAccess::kExisting)->Delete(name));
    EXPECT_FALSE(Open(KeyAccess::kExisting)->Delete(name)) << "it is gone";
    EXPECT_EQ(Open(KeyAccess::kExisting)->ReadDword(name), std::nullopt);
  }
}

TEST_F(Registry, CaseOfNamesIsNotToldApart) {
  struct Row {
    const char* one;
    const char* other;
    bool same;
  };
  static constexpr Row kRows[] = {
      {"CurrentDay", "cURRENTdAY", true},
      {"\u00DCber", "\u00FCber", true},
      {"\u0416", "\u0436", true},
      {"name", "name ", false},
      {"a", "\u00E4", false},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.one);
    Open()->WriteDword(row.one, 5);
    EXPECT_EQ(Open()->ReadDword(row.other).has_value(), row.same);
    EXPECT_TRUE(Open()->Delete(row.one));
  }
}

TEST_F(Registry, AValueThatIsMissingOrOfAnotherTypeGivesNothing) {
  struct Row {
    const char* why;
    std::optional<RawValue> stored;
    bool dword = false;
    bool text = false;
    bool binary = false;
  };
  const Row rows[] = {
      {.why = "missing", .stored = std::nullopt},
      {.why = "a number", .stored = {{kDword, {"\1\0\0\0", 4}}}, .dword = true},
      {.why = "a number of two bytes", .stored = {{kDword, {"\1\0", 2}}}},
      {.why = "a number of eight bytes", .stored = {{kDword, {"\1\0\0\0\0\0\0\0", 8}}}},
      {.why = "a long number", .stored = {{kQword, {"\1\0\0\0\0\0\0\0", 8}}}},
      {.why = "a text", .stored = {{kText, {"1\0\0\0", 4}}}, .text = true},
      {.why = "a text with variables", .stored = {{kExpandText, {"1\0\0\0", 4}}}},
      {.why = "four bytes", .stored = {{kBinary, {"\1\0\0\0", 4}}}, .binary = true},
      {.why = "no type", .stored = {{0, {"\1\0\0\0", 4}}}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.why);
    const auto key = Open();
    if (row.stored) world_.SetRawValue(kKey, "v", *row.stored);
    EXPECT_EQ(key->ReadDword("v").has_value(), row.dword);
    EXPECT_EQ(key->ReadText("v").has_value(), row.text);
    EXPECT_EQ(key->ReadBinary("v").has_value(), row.binary);
  }
  Open()->WriteDword("v", 3);
  EXPECT_EQ(Open()->ReadDword("v"), 3U) << "a write replaces value and type";
}

TEST_F(Registry, ATextThatAnotherProgramWroteBadlyIsRead) {
  struct Row {
    const char* why;
    std::string data;
    const char* text;
  };
  const Row rows[] = {
      {"nothing at all", "", ""},
      {"no terminating NUL", {"a\0b\0", 4}, "ab"},
      {"half a character at the end", {"a\0b", 3}, "a"},
      {"more behind the NUL", {"a\0\0\0b\0\0\0", 8}, "a"},
      {"half a pair", {"a\0\x3D\xD8\0\0", 6}, "a\uFFFD"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.why);
    const auto key = Open();
    world_.SetRawValue(kKey, "t", {kText, row.data});
    EXPECT_EQ(key->ReadText("t"), row.text);
  }
}

TEST_F(Registry, AWriteThatTheSystemRefusesIsReported) {
  Open()->WriteDword("v", 3);
  const auto reader = Open(KeyAccess::kReadOnly);
  ASSERT_NE(reader, nullptr);
  EXPECT_EQ(reader->ReadDword("v"), 3U);
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
