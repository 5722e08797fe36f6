// The language files and the help pages that are shipped. `./dev languages` runs this with
// TREMOLUX_UPDATE set and so brings the files into the order of the catalogue, and the names of
// menus and pages in the help up to date.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
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

std::string FolderOfHelp(const std::string& language) {
  return SOURCE_FOLDER "/assets/Help/" + (language == "English" ? "" : language + '/');
}

std::string HelpPage(const std::string& language) {
  return ReadFile(FolderOfHelp(language) + "index.html");
}

// A caption in HTML, without what marks its key and without the colon before a field.
std::string AsNamed(std::string_view caption) {
  std::string name;
  for (std::size_t at = 0; at < caption.size(); ++at) {
    const std::string_view rest = caption.substr(at);
    if (rest.starts_with("&&")) {
      name += "&amp;";
      ++at;
    } else if (rest.starts_with("(&") && rest.size() > 3 && rest[3] == ')') {
      at += 3;
    } else if (rest.front() != '&') {
      name += rest.front() == '<'   ? "&lt;"
              : rest.front() == '>' ? "&gt;"
                                    : std::string(1, rest.front());
    }
  }
  if (name.ends_with(':')) name.pop_back();
  return std::string(platform::Trim(name));
}

// The page with the captions of the program in each <b data-text="section.key">.
std::string WithNames(const std::string& page, const std::string& language) {
  constexpr std::string_view kStart = "<b data-text=\"";
  const language::LanguageFile file = Parsed(language);
  std::string made;
  std::size_t kept = 0;
  for (std::size_t at = page.find(kStart); at != std::string::npos; at = page.find(kStart, kept)) {
    at += kStart.size();
    const std::string name = page.substr(at, page.find('"', at) - at);
    const std::size_t point = name.find('.');
    const TextEntry* entry = language::FindText(name.substr(0, point), name.substr(point + 1));
    EXPECT_NE(entry, nullptr) << name << " is no text of the catalogue";
    const std::size_t begin = page.find('>', at) + 1;
    made += page.substr(kept, begin - kept);
    kept = page.find("</b>", begin);
    if (entry == nullptr) continue;
    const auto text =
        language == "English" ? entry->english : file.Find(entry->section, entry->key);
    made += AsNamed(text.value_or(entry->english));
  }
  return made + page.substr(kept);
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

TEST(HelpPages, NameWhatTheProgramShows) {
  for (const std::string language : kLanguages) {
    const std::string page = HelpPage(language);
    const std::string made = WithNames(page, language);
    if (std::getenv("TREMOLUX_UPDATE") != nullptr) {
      std::ofstream(FolderOfHelp(language) + "index.html", std::ios::binary) << made;
    }
    EXPECT_FALSE(page.empty()) << language;
    EXPECT_TRUE(page == made) << language << ": run ./dev languages";
  }
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
