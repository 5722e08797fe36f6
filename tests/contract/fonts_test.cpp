#include "platform/fonts.h"

#include <gtest/gtest.h>

#include "platform/text.h"
#include "tests/contract/desk.h"

namespace contract {
namespace {

TEST(FontsContract, AreNamedOnceInTheOrderOfTheAlphabetWithoutTheVerticalOnes) {
  const std::unique_ptr<Desk> desk = MakeDesk();
  const std::vector<std::string> names = desk->Platform().fonts.Families();
  // Which ones there are is the machine's own.
  EXPECT_FALSE(names.empty());
  for (std::size_t at = 0; at < names.size(); ++at) {
    SCOPED_TRACE(names[at]);
    EXPECT_FALSE(names[at].empty() || names[at].front() == '@');
    if (at == 0) continue;
    EXPECT_NE(names[at - 1], names[at]);
    // Only of the first letters every alphabet says the same.
    EXPECT_LE(platform::AsciiLower(names[at - 1])[0], platform::AsciiLower(names[at])[0]);
  }
}

}  // namespace
}  // namespace contract
