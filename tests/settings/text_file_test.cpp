#include "settings/text_file.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/memory/locale.h"

namespace {

using namespace std::string_literals;

TEST(TextFile, IsReadInEveryEncodingThatAnEditorWrites) {
  struct Row {
    const char* why;
    std::string bytes, text;
  };
  const Row rows[] = {
      {"UTF-8 with mark", "\xEF\xBB\xBFGröße", "Größe"},
      {"a mark alone", "\xEF\xBB\xBF", ""},
      {"two marks, as where files were joined", "\xEF\xBB\xBF\xEF\xBB\xBFGröße", "Größe"},
      {"two marks of UTF-16", "\xFE\xFF\xFE\xFF\0a"s, "a"},
      {"UTF-16, low byte first", "\xFF\xFEG\0\xF6\0\xE5\x65"s, "Gö日"},
      {"UTF-16, high byte first", "\xFE\xFF\0G\0\xF6\x65\xE5"s, "Gö日"},
      {"UTF-16 beyond the first plane", "\xFF\xFE\x3D\xD8\x00\xDE"s, "😀"},
      {"UTF-16 cut in the middle of a unit", "\xFF\xFEG\0\xF6"s, "G"},
      {"UTF-16 cut between two halves", "\xFF\xFEG\0\x3D\xD8"s, "G\xEF\xBF\xBD"},
      {"the code page, which is Latin-1 here", "Gr\xF6\xDF"s + "e", "Größe"},
      {"the code page with such a character last", "Caf\xE9", "Café"},
      {"UTF-8 with its one such character last", "Café", "Café"},
      {"UTF-8 cut behind two bytes of three", "ö\xE2\x80", "ö\xEF\xBF\xBD"},
      {"the same of the lowest three", "ö\xE0\xA4", "ö\xEF\xBF\xBD"},
      {"behind three of four", "ö\xF0\x9F\x98", "ö\xEF\xBF\xBD"},
      {"UTF-8 with a wrong byte inside is the code page", "\xC3\xB6\xFF-", "Ã¶ÿ-"},
  };
  platform::memory::Locale locale;
  for (const Row& row : rows) {
    EXPECT_EQ(settings::DecodeTextFile(row.bytes, locale), row.text) << row.why;
  }
}

}  // namespace
