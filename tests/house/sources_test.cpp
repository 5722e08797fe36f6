// Rules that hold for every source file, and for what is written about the commands.
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <set>

#include "tests/house/source_tree.h"

namespace house {
namespace {

bool IsTest(const Source& source) {
  return source.path.starts_with("tests/") || source.path.starts_with("bench/");
}

// The standard library's headers have no ending; with one it is the system's. Its macros rename
// what bears the name of a call, so that two files would see two different classes. Streams and
// locales bring tables that make the executable twice as large.
TEST(Sources, TheSystemsHeadersStayBehindTheFenceAndStreamsOutside) {
  static constexpr std::string_view kHeavy[] = {
      "iostream", "istream", "ostream",    "fstream", "sstream",   "iomanip",    "locale",
      "codecvt",  "regex",   "filesystem", "format",  "strstream", "syncstream", "clocale",
  };
  for (const Source& source : AllSources()) {
    if (IsTest(source)) continue;
    const bool sees_system = source.path.starts_with("platform/windows/");
    for (const Include& include : source.Includes()) {
      if (include.quoted) continue;
      const std::string& target = include.target;
      EXPECT_TRUE(sees_system || target.find('.') == std::string::npos)
          << source.path << ":" << include.line << " includes <" << target
          << ">; only platform/windows may see the system";
      EXPECT_EQ(std::find(std::begin(kHeavy), std::end(kHeavy), target), std::end(kHeavy))
          << source.path << ":" << include.line << " includes <" << target << ">";
    }
  }
}

// Nearly every test runs by lying in a folder that the build lists.
TEST(Sources, EveryFolderOfTestsIsBuilt) {
  std::string build = ReadFile("cmake/tests.cmake");
  ASSERT_FALSE(build.empty());
  std::replace_if(
      build.begin(), build.end(), [](char c) { return c == '"' || c == ';' || c == ')'; }, ' ');
  for (const Source& source : AllSources()) {
    if (!source.path.starts_with("tests/") || !source.path.ends_with("_test.cpp")) continue;
    const std::string folder = source.path.substr(0, source.path.rfind('/'));
    EXPECT_NE(build.find(' ' + folder + ' '), std::string::npos)
        << source.path << " lies in a folder that cmake/tests.cmake does not list";
  }
}

// What stands between `open` and `close` in a text, each time; up to a blank, too.
std::set<std::string> Between(std::string_view text, std::string_view open,
                              std::string_view close) {
  std::set<std::string> found;
  for (std::size_t at = text.find(open); at != text.npos; at = text.find(open, at)) {
    at += open.size();
    const std::string_view rest = text.substr(at);
    const std::size_t end = rest.find_first_of(" `(");
    if (rest.substr(end).starts_with(close)) found.emplace(rest.substr(0, end));
  }
  return found;
}

TEST(Sources, TheReadmeAndTheUsageListTheWordsOfDev) {
  const std::string script = ReadFile("dev");
  // Each word is a function of the script.
  const std::set<std::string> words = Between(script, "\nword_", "() {");
  EXPECT_TRUE(words.contains("test"));
  EXPECT_EQ(Between(ReadFile("README.md"), "`./dev ", ""), words);
  for (const std::string& word : words) {
    EXPECT_NE(script.find("\n#   " + word + " "), std::string::npos)
        << "the usage at the head of ./dev lacks \"" << word << "\"";
  }
}

}  // namespace
}  // namespace house
