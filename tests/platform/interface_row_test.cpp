#include <gtest/gtest.h>

#include <algorithm>
#include <string_view>

#include "platform/interface_table.h"

namespace platform {
namespace {

TEST(InterfaceRow, TheDescriptionIsReadWhateverItsLengthSays) {
  struct Row {
    const char* why;
    std::string_view bytes;
    std::uint32_t length;
    std::string_view text;
  };
  const std::string full(256, 'x');
  const Row rows[] = {
      {"counts the NUL", "lo", 3, "lo"},
      {"does not", "lo", 2, "lo"},
      {"none at all", "abc", 0, ""},
      {"shorter than the text", "abcdef", 3, "abc"},
      {"a full field without a NUL", full, 256, full},
      {"beyond all measure", full, 0xFFFFFFFF, full},
      {"what stands behind a NUL is no part of it", std::string_view("ab\0cd", 5), 5, "ab"},
  };
  for (const Row& row : rows) {
    InterfaceRow made;
    std::copy(row.bytes.begin(), row.bytes.end(), made.bDescr.begin());
    made.dwDescrLen = row.length;
    EXPECT_EQ(DescriptionBytes(made), row.text) << row.why;
  }
}

}  // namespace
}  // namespace platform
