#include "platform/text.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <tuple>
#include <utility>

namespace platform {
namespace {

TEST(Text, ACutNeverLeavesHalfACharacter) {
  using Row = std::tuple<const char*, std::string_view, std::size_t, std::string_view>;
  for (const auto& [why, text, count, cut] : {
           Row{"fewer than there are", "abc", 2, "ab"},
           Row{"more than there are", "abc", 9, "abc"},
           Row{"whole ones", "\u4E2D\U0001F600x", 2, "\u4E2D\U0001F600"},
           Row{"a stray byte counts as one and is not joined", "\x80xyz", 2, "\x80x"},
           Row{"a broken sequence ends where it breaks", "\xE4\xB8xyz", 2, "\xE4\xB8x"},
       }) {
    EXPECT_EQ(CutCharacters(text, count), cut) << why;
  }
}

TEST(Text, LowerCaseTouchesAToZOnly) {
  EXPECT_EQ(AsciiLower("AZ [@`{] \u00C4\u0130\u0394"), "az [@`{] \u00C4\u0130\u0394");
}

using Row = std::tuple<const char*, std::string_view, std::string_view>;

TEST(Text, TrimTakesBlanksAndControlCharactersOffBothEnds) {
  for (const auto& [why, text, trimmed] : {
           Row{"nothing but blanks", " \t\r\n ", ""},
           Row{"inner blanks stay", "  a b\t", "a b"},
           Row{"the first and the last control character", {"\0x\x1F", 3}, "x"},
           Row{"delete is none", "\x7Fx", "\x7Fx"},
           Row{"bytes above 127 are not negative numbers", "\u00E4", "\u00E4"},
       }) {
    EXPECT_EQ(Trim(text), trimmed) << why;
  }
}

TEST(Text, MalformedUtf8IsReplaced) {
  for (const auto& [why, text, valid] : {
           Row{"a stray continuation", "a\x80z", "a\uFFFDz"},
           Row{"a lead without its end", "a\xC3", "a\uFFFD"},
           Row{"a lead before something else", "\xC3(", "\uFFFD("},
           Row{"the begun bytes are one replacement", "\xF0\x9F\x98z", "\uFFFDz"},
           Row{"overlong in three bytes", "\xE0\x80\xAF", "\uFFFD\uFFFD\uFFFD"},
           Row{"overlong in four bytes", "\xF0\x8F\xBF\xBF", "\uFFFD\uFFFD\uFFFD\uFFFD"},
           Row{"a surrogate", "\xED\xA0\x80", "\uFFFD\uFFFD\uFFFD"},
           Row{"the last before the surrogates is none", "\xED\x9F\xBF", "\xED\x9F\xBF"},
           Row{"beyond the last plane", "\xF4\x90\x80\x80", "\uFFFD\uFFFD\uFFFD\uFFFD"},
           Row{"bytes that never occur", "\xFE\xFF", "\uFFFD\uFFFD"},
       }) {
    EXPECT_EQ(ValidUtf8(text), valid) << why;
    EXPECT_EQ(ToUtf8(ToUtf16(text)), valid) << why;
  }
}

TEST(Text, HalfCharactersOfUtf16AreReplaced) {
  using Wide = std::pair<std::u16string_view, std::string_view>;
  for (const auto& [wide, text] : {
           Wide{{u"a\xD83D\xDE00", 2}, "a\uFFFD"},  // its other half is not in the view
           Wide{u"\xDE00x", "\uFFFDx"},
           Wide{u"\xDE00\xD83D", "\uFFFD\uFFFD"},
           Wide{u"\xD83Dx", "\uFFFDx"},
           Wide{u"\xDBFF\xDFFF", "\U0010FFFF"},
       }) {
    EXPECT_EQ(ToUtf8(wide), text);
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
