// The language files and the help pages that are shipped.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include "language/language_file.h"
#include "language/texts.h"
#include "platform/memory/locale.h"
#include "platform/text.h"

namespace {

using language::TextEntry;

constexpr const char* kLanguages[] = {"English", "German",  "French",
                                      "Spanish", "Turkish", "Japanese"};

std::string ReadFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

language::LanguageFile Parsed(const std::string& language) {
  platform::memory::Locale locale;
  return language::LanguageFile(ReadFile(SOURCE_FOLDER "/assets/Languages/" + language + ".lng"),
                                locale);
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

std::string FolderOfHelp(const std::string& language) {
  return SOURCE_FOLDER "/assets/Help/" + (language == "English" ? "" : language + '/');
}

std::string HelpPage(const std::string& language) {
  return ReadFile(FolderOfHelp(language) + "index.html");
}

std::vector<std::string> Sorted(std::vector<std::string> values) {
  std::sort(values.begin(), values.end());
  return values;
}

// The values of an attribute, in their order.
std::vector<std::string> Values(const std::string& page, const std::string& attribute) {
  const std::string start = ' ' + attribute + "=\"";
  std::vector<std::string> values;
  for (std::size_t at = page.find(start); at != std::string::npos; at = page.find(start, at)) {
    at += start.size();
    values.push_back(page.substr(at, page.find('"', at) - at));
  }
  return values;
}

TEST(HelpPages, HaveTheSectionsOfTheEnglishOneAndNoDeadLink) {
  const std::string english = HelpPage("English");
  for (const std::string language : kLanguages) {
    SCOPED_TRACE(language);
    const std::string page = HelpPage(language);
    const std::vector<std::string> sections = Values(page, "id");
    EXPECT_EQ(sections, Values(english, "id"));
    EXPECT_EQ(Sorted(Values(page, "data-text")), Sorted(Values(english, "data-text")));
    for (const char* attribute : {"href", "src"}) {
      EXPECT_EQ(Values(page, attribute).size(), Values(english, attribute).size());
      for (const std::string& target : Values(page, attribute)) {
        const bool there = target.starts_with('#')
                               ? std::count(sections.begin(), sections.end(), target.substr(1)) == 1
                               : std::filesystem::is_regular_file(FolderOfHelp(language) + target);
        EXPECT_TRUE(there) << target;
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
