#include "platform/text.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace platform {
namespace {

TEST(Text, ACutNeverLeavesHalfACharacter) {
  struct Row {
    const char* why;
    std::string_view text;
    std::size_t count;
    std::string_view cut;
  };
  static constexpr Row kRows[] = {
      {"fewer than there are", "abc", 2, "ab"},
      {"more than there are", "abc", 9, "abc"},
      {"whole ones", "\u4E2D\U0001F600x", 2, "\u4E2D\U0001F600"},
      {"a stray byte counts as one and is not joined", "\x80xyz", 2, "\x80x"},
      {"a broken sequence ends where it breaks", "\xE4\xB8xyz", 2, "\xE4\xB8x"},
  };
  for (const Row& row : kRows) {
    EXPECT_EQ(CutCharacters(row.text, row.count), row.cut) << row.why;
  }
}

TEST(Text, LowerCaseTouchesAToZOnly) {
  EXPECT_EQ(AsciiLower("AZ [@`{] \u00C4\u0130\u0394"), "az [@`{] \u00C4\u0130\u0394");
}

TEST(Text, TrimTakesBlanksAndControlCharactersOffBothEnds) {
  struct Row {
    const char* why;
    std::string_view text, trimmed;
  };
  static constexpr Row kRows[] = {
      {"nothing but blanks", " \t\r\n ", ""},
      {"inner blanks stay", "  a b\t", "a b"},
      {"the last control character", "\x1Fx\x1F", "x"},
      {"delete is none", "\x7Fx", "\x7Fx"},
      {"a no-break space is none", "\u00A0a", "\u00A0a"},
      {"bytes above 127 are not negative numbers", "\u00E4", "\u00E4"},
  };
  for (const Row& row : kRows) {
    EXPECT_EQ(Trim(row.text), row.trimmed) << row.why;
  }
  EXPECT_EQ(Trim(std::string_view("\0a\0", 3)), "a");
}

TEST(Text, MalformedUtf8IsReplaced) {
  struct Row {
    const char* why;
    std::string_view text, valid;
  };
  static constexpr Row kRows[] = {
      {"valid text stays", "a\u00E4\u4E2D\U0001F600\U0010FFFF",
       "a\u00E4\u4E2D\U0001F600\U0010FFFF"},
      {"a stray continuation", "a\x80z", "a\uFFFDz"},
      {"a lead without its end", "a\xC3", "a\uFFFD"},
      {"a lead before something else", "\xC3(", "\uFFFD("},
      {"the begun bytes are one replacement", "\xF0\x9F\x98z", "\uFFFDz"},
      {"overlong in three bytes", "\xE0\x80\xAF", "\uFFFD\uFFFD\uFFFD"},
      {"overlong in four bytes", "\xF0\x8F\xBF\xBF", "\uFFFD\uFFFD\uFFFD\uFFFD"},
      {"a surrogate", "\xED\xA0\x80", "\uFFFD\uFFFD\uFFFD"},
      {"the last before the surrogates is none", "\xED\x9F\xBF", "\xED\x9F\xBF"},
      {"beyond the last plane", "\xF4\x90\x80\x80", "\uFFFD\uFFFD\uFFFD\uFFFD"},
      {"bytes that never occur", "\xFE\xFF", "\uFFFD\uFFFD"},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.why);
    EXPECT_EQ(ValidUtf8(row.text), row.valid);
    EXPECT_EQ(ToUtf8(ToUtf16(row.text)), row.valid);
  }
}

TEST(Text, HalfCharactersOfUtf16AreReplaced) {
  struct Row {
    const char* why;
    std::u16string wide;
    std::string_view text;
  };
  const Row rows[] = {
      {"a lone high surrogate at the end", {u'a', 0xD83D}, "a\uFFFD"},
      {"a lone low surrogate", {0xDE00, u'a'}, "\uFFFDa"},
      {"two in the wrong order", {0xDE00, 0xD83D}, "\uFFFD\uFFFD"},
      {"a high one before a letter", {0xD83D, u'a'}, "\uFFFDa"},
      {"the last of all characters", {0xDBFF, 0xDFFF}, "\U0010FFFF"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(ToUtf8(row.wide), row.text) << row.why;
  }
}

TEST(Text, CharactersOfEveryPlaneSurviveTheWayThere) {
  for (std::uint32_t code = 1; code <= 0x10FFFF; code += code < 0x3000 ? 1 : 13) {
    if (code >= 0xD800 && code <= 0xDFFF) continue;
    std::u16string wide;
    if (code < 0x10000) {
      wide = static_cast<char16_t>(code);
    } else {
      wide = {static_cast<char16_t>(0xD7C0 + (code >> 10)),
              static_cast<char16_t>(0xDC00 | (code & 0x3FF))};
    }
    const std::string text = ToUtf8(wide);
    ASSERT_EQ(ValidUtf8(text), text) << code;
    ASSERT_EQ(CutCharacters(text, 1), text) << code;
    ASSERT_EQ(ToUtf16(text), wide) << code;
  }
}

}  // namespace
}  // namespace platform
