// Rules that hold for every source file.
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

#include "tests/house/source_tree.h"

namespace house {
namespace {

bool IsTest(const Source& source) {
  return source.path.starts_with("tests/") || source.path.starts_with("bench/") ||
         source.path.starts_with("tools/");
}

TEST(Sources, EveryHeaderIsReadOnce) {
  for (const Source& source : AllSources()) {
    if (!source.IsHeader()) continue;
    EXPECT_NE(source.text.find("#pragma once\n"), std::string::npos)
        << source.path << " lacks #pragma once";
  }
}

// The standard library's headers have no ending; with one it is the system's. Its macros rename
// what bears the name of a call, so that two files would see two different classes.
TEST(Sources, TheSystemsHeadersStayBehindTheFence) {
  for (const Source& source : AllSources()) {
    if (IsTest(source) || source.path.starts_with("platform/windows/")) continue;
    for (const Include& include : source.Includes()) {
      if (include.quoted) continue;
      EXPECT_EQ(include.target.find('.'), std::string::npos)
          << source.path << ":" << include.line << " includes <" << include.target
          << ">; only platform/windows may see the system";
    }
  }
}

TEST(Sources, OneHeaderLeadsToWindows) {
  for (const Source& source : AllSources()) {
    if (!source.path.starts_with("platform/windows/")) continue;
    for (const Include& include : source.Includes()) {
      const bool allowed = source.path == "platform/windows/win32.h";
      EXPECT_TRUE(allowed || (include.target != "windows.h" && include.target != "winsock2.h"))
          << source.path << ":" << include.line << " includes " << include.target
          << "; include platform/windows/win32.h, which has the right order";
    }
  }
}

// They bring locales and tables that make the executable twice as large.
TEST(Sources, TheProgramDoesWithoutStreamsAndLocales) {
  static constexpr std::string_view kHeavy[] = {
      "iostream", "istream", "ostream",    "fstream", "sstream",   "iomanip",    "locale",
      "codecvt",  "regex",   "filesystem", "format",  "strstream", "syncstream", "clocale",
  };
  for (const Source& source : AllSources()) {
    if (IsTest(source)) continue;
    for (const Include& include : source.Includes()) {
      const bool heavy = !include.quoted && std::find(std::begin(kHeavy), std::end(kHeavy),
                                                      include.target) != std::end(kHeavy);
      EXPECT_FALSE(heavy) << source.path << ":" << include.line << " includes <" << include.target
                          << ">";
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
    if (!source.path.starts_with("tests/") || source.IsHeader()) continue;
    if (source.path.find("_test") == std::string::npos) continue;  // what tests share
    const std::string folder = source.path.substr(0, source.path.rfind('/'));
    EXPECT_NE(build.find(' ' + folder + ' '), std::string::npos)
        << source.path << " lies in a folder that cmake/tests.cmake does not list";
  }
}

}  // namespace
}  // namespace house
