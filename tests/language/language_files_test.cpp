// The language files that are shipped.
#include <gtest/gtest.h>

#include <cctype>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

#include "language/language_file.h"
#include "language/texts.h"
#include "platform/memory/locale.h"
#include "platform/text.h"

namespace {

using language::TextEntry;

constexpr const char* kLanguages[] = {"English", "German",  "French",
                                      "Spanish", "Turkish", "Japanese"};

language::LanguageFile Parsed(const std::string& language) {
  std::ifstream file(SOURCE_FOLDER "/assets/Languages/" + language + ".lng", std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  platform::memory::Locale locale;
  return language::LanguageFile(bytes, locale);
}

// The letters that the text marks with "&".
std::string MarkedKeys(std::string_view text) {
  std::string keys;
  for (std::size_t at = 0; at + 1 < text.size(); ++at) {
    if (text[at] != '&') continue;
    const auto letter = static_cast<unsigned char>(text[++at]);
    if (letter != '&') keys += letter < 0x80 ? static_cast<char>(std::toupper(letter)) : '?';
  }
  return keys;
}

TEST(LanguageFiles, HaveEveryTextWithItsPlaceHoldersAndMarkedKeys) {
  for (const std::string language : kLanguages) {
    const language::LanguageFile file = Parsed(language);
    std::set<char> marked;
    for (const TextEntry& entry : language::TextCatalogue()) {
      SCOPED_TRACE(language + " [" + std::string(entry.section) + "] " + std::string(entry.key));
      if (entry.key.empty()) {
        marked.clear();
        continue;
      }
      const auto text = file.Find(entry.section, entry.key);
      if (!text) {
        ADD_FAILURE() << "not translated";
        continue;
      }
      EXPECT_EQ(language::PlaceHolders(*text), language::PlaceHolders(entry.english));
      EXPECT_EQ(text->empty(), entry.english.empty());
      const std::string keys = MarkedKeys(*text);
      EXPECT_EQ(keys.size(), MarkedKeys(entry.english).size()) << *text;
      for (const char key : keys) {
        EXPECT_TRUE(std::isalnum(key)) << *text << ": not on every keyboard";
        EXPECT_TRUE(marked.insert(key).second) << *text << ": the key stands on this page already";
      }
    }
  }
}

TEST(TextCatalogue, NamesEveryTextOnceWhateverTheCase) {
  std::set<std::string> names;
  for (const TextEntry& entry : language::TextCatalogue()) {
    if (entry.key.empty()) continue;
    const std::string name = std::string(entry.section) + ' ' + std::string(entry.key);
    EXPECT_TRUE(names.insert(platform::AsciiLower(name)).second) << name;
  }
}

}  // namespace
