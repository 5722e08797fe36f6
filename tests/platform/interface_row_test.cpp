#include <gtest/gtest.h>

#include <algorithm>
#include <string_view>
#include <tuple>

#include "platform/interface_table.h"

namespace platform {
namespace {

TEST(InterfaceRow, TheDescriptionIsReadWhateverItsLengthSays) {
  const std::string full(256, 'x');
  using Row = std::tuple<const char*, std::string_view, std::uint32_t, std::string_view>;
  for (const auto& [why, bytes, length, text] : {
           Row{"counts the NUL", "lo", 3, "lo"},
           Row{"none at all", "abc", 0, ""},
           Row{"shorter than the text", "abcdef", 3, "abc"},
           Row{"a full field without a NUL", full, 256, full},
           Row{"beyond all measure", full, 0xFFFFFFFF, full},
           Row{"what stands behind a NUL is no part of it", {"ab\0cd", 5}, 5, "ab"},
       }) {
    InterfaceRow made;
    std::copy(bytes.begin(), bytes.end(), made.bDescr.begin());
    made.dwDescrLen = length;
    EXPECT_EQ(DescriptionBytes(made), text) << why;
  }
}

}  // namespace
}  // namespace platform
