// What is written for people must agree with what the commands do.
#include <gtest/gtest.h>

#include <set>
#include <sstream>

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

}  // namespace
}  // namespace house
