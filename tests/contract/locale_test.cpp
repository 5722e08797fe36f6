#include "platform/locale.h"

#include <gtest/gtest.h>

#include "platform/text.h"
#include "tests/contract/world.h"

namespace contract {
namespace {

class Locale : public testing::Test {
 protected:
  platform::Locale& locale() { return world_->Locale(); }

  std::unique_ptr<World> world_ = MakeWorld();
};

TEST_F(Locale, TheDecimalSeparatorIsNoDigit) {
  const std::string separator = locale().DecimalSeparator();
  EXPECT_FALSE(separator.empty());
  EXPECT_EQ(separator.find_first_of("0123456789"), std::string::npos);
}

TEST_F(Locale, DatesAndTimesShowTheirParts) {
  const platform::DateTime moment = platform::EncodeDateTime(2034, 12, 28, 7, 41, 53);
  const std::string date = locale().ShortDate(moment);
  for (const char* part : {"34", "12", "28"}) {
    EXPECT_NE(date.find(part), std::string::npos) << date;
  }
  const std::string time = locale().LongTime(moment);
  for (const char* part : {"7", "41", "53"}) {
    EXPECT_NE(time.find(part), std::string::npos) << time;
  }
}

TEST_F(Locale, DatesThatNobodyKnowsAreHarmless) {
  EXPECT_EQ(locale().ShortDate(platform::EncodeDate(1600, 12, 31)), "");
  EXPECT_NE(locale().ShortDate(platform::EncodeDate(1601, 1, 2)), "");
  EXPECT_EQ(locale().ShortDate(-1e300), "");
  EXPECT_NE(locale().ShortDate(1e300), "");
  EXPECT_EQ(locale().LongTime(-1e300), locale().LongTime(0.0));
  EXPECT_EQ(locale().LongTime(platform::EncodeDate(1600, 12, 31)), locale().LongTime(0.0));
}

TEST_F(Locale, BytesOfTheCodePageBecomeValidText) {
  EXPECT_EQ(locale().FromCodePage(""), "");
  EXPECT_EQ(locale().FromCodePage("Intel(R) 82574L \\ |"), "Intel(R) 82574L \\ |");
  std::string all;
  for (int byte = 1; byte < 256; ++byte) all += static_cast<char>(byte);
  const std::string text = locale().FromCodePage(all);
  EXPECT_FALSE(text.empty());
  EXPECT_EQ(platform::ValidUtf8(text), text);
}

}  // namespace
}  // namespace contract
