#include "platform/file_mask.h"

#include <gtest/gtest.h>

namespace platform {
namespace {

TEST(FileMask, TheWholeNameMustFit) {
  struct Row {
    const char* name;
    const char* mask;
    bool matches;
  };
  static constexpr Row kRows[] = {
      {"German.lng", "*.lng", true},
      {"GERMAN.LNG", "*.lng", true},
      {"German.lng2", "*.lng", false},
      {".lng", "*.lng", true},
      {"lng", "*.lng", false},
      {"a.lng.lng", "*.lng", true},
      {"abcabd", "*ab?d*", false},
      {"abcabxd", "*ab?d*", true},
      {"\u00E4", "?", true},
      {"", "?", false},
      {"x", "*", true},
      {"x", "", false},
      {"", "", true},
      {"xalng", "*.lng", false},
  };
  for (const Row& row : kRows) {
    EXPECT_EQ(MatchesMask(row.name, row.mask), row.matches) << row.name << ' ' << row.mask;
  }
}

}  // namespace
}  // namespace platform
