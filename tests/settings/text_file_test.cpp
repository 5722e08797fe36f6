#include "settings/text_file.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "platform/memory/locale.h"

namespace {

using namespace std::string_literals;

TEST(TextFile, IsReadInEveryEncodingThatAnEditorWrites) {
  platform::memory::Locale locale;
  using Row = std::tuple<const char*, std::string, std::string>;
  for (const auto& [why, bytes, text] : {
           Row{"UTF-8 with mark", "\xEF\xBB\xBFGröße", "Größe"},
           Row{"a mark alone", "\xEF\xBB\xBF", ""},
           Row{"UTF-16, low byte first", "\xFF\xFEG\0\xF6\0\xE5\x65"s, "Gö日"},
           Row{"UTF-16, high byte first", "\xFE\xFF\0G\0\xF6\x65\xE5"s, "Gö日"},
           Row{"UTF-16 beyond the first plane", "\xFF\xFE\x3D\xD8\x00\xDE"s, "😀"},
           Row{"UTF-16 cut in the middle of a unit", "\xFF\xFEG\0\xF6"s, "G"},
           Row{"UTF-16 cut between two halves", "\xFF\xFEG\0\x3D\xD8"s, "G\xEF\xBF\xBD"},
           Row{"the code page, which is Latin-1 here", "Gr\xF6\xDF"s + "e", "Größe"},
           Row{"the code page with such a character last", "Caf\xE9", "Café"},
           Row{"UTF-8 with its one such character last", "Café", "Café"},
           Row{"of three bytes", "a日", "a日"},
           Row{"UTF-8 cut behind two bytes of three", "ö\xE2\x80", "ö\xEF\xBF\xBD"},
           Row{"the same of the lowest three", "ö\xE0\xA4", "ö\xEF\xBF\xBD"},
           Row{"behind three of four", "ö\xF0\x9F\x98", "ö\xEF\xBF\xBD"},
           Row{"UTF-8 with a wrong byte inside is the code page", "\xC3\xB6\xFF-", "Ã¶ÿ-"},
       }) {
    EXPECT_EQ(settings::DecodeTextFile(bytes, locale), text) << why;
  }
}

}  // namespace
