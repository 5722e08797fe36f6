#include "platform/file_mask.h"

#include <gtest/gtest.h>

namespace platform {
namespace {

TEST(FileMask, TheWholeNameMustFit) {
  struct Row {
    const char* why;
    const char* name;
    const char* mask;
    bool matches;
  };
  static constexpr Row kRows[] = {
      {"the usual case", "German.lng", "*.lng", true},
      {"case does not count", "GERMAN.LNG", "*.lng", true},
      {"a longer ending is another one", "German.lng2", "*.lng", false},
      {"a star may be nothing", ".lng", "*.lng", true},
      {"the ending is not the whole", "lng", "*.lng", false},
      {"a later dot may be the right one", "a.lng.lng", "*.lng", true},
      {"two stars look on from each other", "abcabd", "*ab?d*", false},
      {"two stars find the later place", "abcabxd", "*ab?d*", true},
      {"a question mark is one character", "\u00E4", "?", true},
      {"and not none", "", "?", false},
      {"everything", "x", "*", true},
      {"nothing fits an empty mask but nothing", "x", "", false},
      {"nothing and nothing", "", "", true},
      {"a dot is only a dot", "xalng", "*.lng", false},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.why);
    EXPECT_EQ(MatchesMask(row.name, row.mask), row.matches);
  }
}

}  // namespace
}  // namespace platform
