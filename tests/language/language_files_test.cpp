// The language files and the help pages that are shipped.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "language/language_file.h"
#include "language/texts.h"
#include "platform/marked_text.h"
#include "platform/memory/locale.h"
#include "platform/text.h"
#include "tests/world.h"

namespace {

using language::TextEntry;

constexpr const char* kLanguages[] = {"English", "German",  "French",
                                      "Spanish", "Turkish", "Japanese"};

TEST(LanguageFiles, HaveEveryTextWithItsPlaceHoldersAndMarkedKeys) {
  platform::memory::Locale locale;
  for (const std::string language : kLanguages) {
    const std::string path = SOURCE_FOLDER "/assets/Languages/" + language + ".lng";
    const language::LanguageFile file(test::ReadFile(path), locale);
    std::set<std::string> marked;
    for (const TextEntry& entry : language::TextCatalogue()) {
      SCOPED_TRACE(language + " [" + std::string(entry.section) + "] " + std::string(entry.key));
      if (entry.key.empty()) marked.clear();
      if (entry.key.empty()) continue;
      const auto found = file.Find(entry.section, entry.key);
      EXPECT_TRUE(found) << "not translated";
      const std::string_view text = found.value_or(entry.english);
      EXPECT_EQ(language::PlaceHolders(text), language::PlaceHolders(entry.english));
      EXPECT_EQ(text.empty(), entry.english.empty());
      const std::string key = platform::ReadMarks(text).Key();
      EXPECT_EQ(key.empty(), platform::ReadMarks(entry.english).Key().empty()) << text;
      if (key.empty()) continue;
      EXPECT_TRUE(key.size() == 1 && std::isalnum(key[0])) << text << ": not on every keyboard";
      EXPECT_TRUE(marked.insert(platform::AsciiLower(key)).second)
          << text << ": the key stands on this page already";
    }
  }
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
  std::map<std::string, std::vector<std::string>> english;
  for (const std::string language : kLanguages) {
    SCOPED_TRACE(language);
    const std::string folder =
        SOURCE_FOLDER "/assets/Help/" + (language == "English" ? "" : language + '/');
    const std::string page = test::ReadFile(folder + "index.html");
    const std::vector<std::string> sections = Values(page, "id");
    std::vector<std::string> texts = Values(page, "data-text");
    std::ranges::sort(texts);
    EXPECT_EQ(sections, english.try_emplace("sections", sections).first->second);
    EXPECT_EQ(texts, english.try_emplace("texts", texts).first->second);
    for (const char* attribute : {"href", "src"}) {
      const std::vector<std::string> targets = Values(page, attribute);
      EXPECT_EQ(targets.size(), english.try_emplace(attribute, targets).first->second.size());
      for (const std::string& target : targets) {
        const bool there = target.starts_with('#')
                               ? std::ranges::count(sections, target.substr(1)) == 1
                               : std::filesystem::is_regular_file(folder + target);
        EXPECT_TRUE(there) << target;
      }
    }
  }
}

TEST(TextCatalogue, NamesEveryTextOnceWhateverTheCase) {
  std::set<std::string> names;
  for (const TextEntry& entry : language::TextCatalogue()) {
    const std::string name = std::string(entry.section) + ' ' + std::string(entry.key);
    EXPECT_TRUE(entry.key.empty() || names.insert(platform::AsciiLower(name)).second) << name;
  }
}

}  // namespace
