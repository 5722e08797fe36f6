// The language files that are shipped. `./dev languages` runs this with TREMOLUX_UPDATE set and so
// brings them into the order of the catalogue.
#include <gtest/gtest.h>

#include <cctype>
#include <cstdlib>
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

std::string PathOf(const std::string& language) {
  return SOURCE_FOLDER "/assets/Languages/" + language + ".lng";
}

std::string ReadFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

language::LanguageFile Parsed(const std::string& language) {
  platform::memory::Locale locale;
  return language::LanguageFile(ReadFile(PathOf(language)), locale);
}

// As a line of the file, quoted where the reader would take something off its ends.
std::string Line(const TextEntry& entry, std::string_view text) {
  const bool quote = platform::Trim(text) != text ||
                     (text.size() > 1 && text.front() == '"' && text.back() == '"');
  const std::string mark = quote ? "\"" : "";
  return std::string(entry.key) + '=' + mark + std::string(text) + mark;
}

// The file in the order of the catalogue. What is not translated yet is a comment.
std::string MadeFromCatalogue(const std::string& language, const language::LanguageFile& file) {
  std::string made = "\xEF\xBB\xBF; Korvane Tremolux, " + language + "\r\n";
  std::string_view section;
  std::string heading;
  for (const TextEntry& entry : language::TextCatalogue()) {
    if (entry.key.empty()) {
      heading = "; " + std::string(entry.english) + "\r\n";
      continue;
    }
    if (entry.section != section) made += "\r\n[" + std::string(entry.section) + "]\r\n";
    if (!heading.empty()) made += (entry.section == section ? "\r\n" : "") + heading;
    heading.clear();
    section = entry.section;
    const auto text = language == "English" ? entry.english : file.Find(entry.section, entry.key);
    made += text ? Line(entry, *text) : "; " + Line(entry, entry.english);
    made += "\r\n";
  }
  return made;
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

TEST(LanguageFiles, AreInTheOrderOfTheCatalogueAndHaveNoOtherKey) {
  for (const std::string language : kLanguages) {
    const std::string made = MadeFromCatalogue(language, Parsed(language));
    if (std::getenv("TREMOLUX_UPDATE") != nullptr) {
      std::ofstream(PathOf(language), std::ios::binary) << made;
    }
    EXPECT_TRUE(ReadFile(PathOf(language)) == made) << language << ": run ./dev languages";
  }
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
