#include "platform/file_mask.h"

#include <gtest/gtest.h>

#include <tuple>

namespace platform {
namespace {

TEST(FileMask, TheWholeNameMustFit) {
  using Row = std::tuple<const char*, const char*, bool>;
  for (const auto& [name, mask, matches] : {
           Row{"GERMAN.LNG", "*.lng", true},
           Row{"German.lng2", "*.lng", false},
           Row{".lng", "*.lng", true},
           Row{"lng", "*.lng", false},
           Row{"a.lng.lng", "*.lng", true},
           Row{"abcabd", "*ab?d*", false},
           Row{"abcabxd", "*ab?d*", true},
           Row{"\u00E4", "?", true},
           Row{"", "?", false},
           Row{"x", "*", true},
           Row{"x", "", false},
           Row{"", "", true},
           Row{"xalng", "*.lng", false},
       }) {
    EXPECT_EQ(MatchesMask(name, mask), matches) << name << ' ' << mask;
  }
}

}  // namespace
}  // namespace platform
