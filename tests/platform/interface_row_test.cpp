#include <gtest/gtest.h>

#include <algorithm>
#include <string_view>

#include "platform/interface_table.h"
#include "platform/memory/interface_table.h"

namespace platform {
namespace {

TEST(InterfaceRow, TheDescriptionIsTheSameWhetherItsLengthCountsTheNulOrNot) {
  const std::string longest(255, 'x');
  const std::string_view texts[] = {"",     "a",    "lo", "Intel(R) Ethernet ", "\xDCml\xE4ut",
                                    "a\\b", longest};
  for (const std::string_view text : texts) {
    SCOPED_TRACE(text);
    for (const auto length :
         {memory::DescriptionLength::kCountsNul, memory::DescriptionLength::kWithoutNul}) {
      EXPECT_EQ(DescriptionBytes(memory::MakeRow(text, {}, 0, 0, length)), text);
    }
  }
}

TEST(InterfaceRow, ALengthThatCannotBeIsHarmless) {
  struct Row {
    const char* why;
    std::string_view bytes;
    std::uint32_t length;
    std::string_view text;
  };
  const std::string full(256, 'x');
  const Row rows[] = {
      {"none at all", "abc", 0, ""},
      {"one, which is the NUL", "", 1, ""},
      {"shorter than the text", "abcdef", 3, "abc"},
      {"longer than the text", "abc", 200, "abc"},
      {"longer than the field", "abc", 257, "abc"},
      {"beyond all measure", "abc", 0xFFFFFFFF, "abc"},
      {"a full field without a NUL", full, 256, full},
      {"a full field and too long a length", full, 0xFFFFFFFF, full},
      {"what stands behind a NUL is no part of it", std::string_view("ab\0cd", 5), 5, "ab"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.why);
    InterfaceRow made;
    std::copy(row.bytes.begin(), row.bytes.end(), made.bDescr.begin());
    made.dwDescrLen = row.length;
    EXPECT_EQ(DescriptionBytes(made), row.text);
  }
}

}  // namespace
}  // namespace platform
