// What is written for people must agree with what the commands do.
#include <gtest/gtest.h>

#include <set>
#include <sstream>

#include "program/product.h"
#include "tests/house/source_tree.h"

namespace house {
namespace {

// The words of ./dev: each is a function of the script whose name begins with "word_".
std::set<std::string> WordsOfDev() {
  std::set<std::string> words;
  std::istringstream lines(ReadFile("dev"));
  std::string line;
  while (std::getline(lines, line)) {
    constexpr std::string_view kStart = "word_";
    const std::size_t end = line.find("() {");
    if (line.starts_with(kStart) && end != std::string::npos) {
      words.insert(line.substr(kStart.size(), end - kStart.size()));
    }
  }
  return words;
}

// What follows each "./dev " between back quotes in a text.
std::set<std::string> WordsNamedIn(const std::string& text) {
  constexpr std::string_view kStart = "`./dev ";
  std::set<std::string> words;
  for (std::size_t at = text.find(kStart); at != std::string::npos; at = text.find(kStart, at)) {
    at += kStart.size();
    words.insert(text.substr(at, text.find_first_of(" `", at) - at));
  }
  return words;
}

TEST(Readme, ListsTheWordsOfDev) {
  const std::set<std::string> words = WordsOfDev();
  EXPECT_TRUE(words.contains("test"));
  EXPECT_EQ(WordsNamedIn(ReadFile("README.md")), words);
}

TEST(Readme, DevListsItsWordsItself) {
  const std::string script = ReadFile("dev");
  for (const std::string& word : WordsOfDev()) {
    EXPECT_NE(script.find("\n#   " + word + " "), std::string::npos)
        << "the usage at the head of ./dev lacks \"" << word << "\"";
  }
}

TEST(Version, IsTheSameWhereverItIsWritten) {
  const std::string version(program::kVersion);
  std::string commas = version + ".0";
  for (std::size_t at = 0; (at = commas.find('.', at)) != std::string::npos;) {
    commas.replace(at, 1, ", ");
  }
  EXPECT_NE(ReadFile("CMakeLists.txt").find("Tremolux VERSION " + version + " "),
            std::string::npos);
  const std::string resources = ReadFile("assets/tremolux.rc");
  for (const char* name : {"FileVersion", "ProductVersion"}) {
    EXPECT_NE(resources.find('"' + std::string(name) + "\", \"" + version + ".0\""),
              std::string::npos)
        << name;
  }
  for (const char* name : {"FILEVERSION ", "PRODUCTVERSION "}) {
    EXPECT_NE(resources.find(name + commas + '\n'), std::string::npos) << name;
  }
}

}  // namespace
}  // namespace house
