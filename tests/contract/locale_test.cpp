#include "platform/locale.h"

#include "platform/text.h"
#include "tests/contract/world.h"

namespace contract {
namespace {

using Locale = ContractTest;

TEST_F(Locale, DatesAndTimesShowTheirPartsAndOddOnesAreHarmless) {
  platform::Locale& locale = Platform().locale;
  const platform::DateTime moment = platform::EncodeDateTime(2034, 12, 28, 7, 41, 53);
  const std::string shown = locale.ShortDate(moment) + " " + locale.LongTime(moment);
  for (const char* part : {"34", "12", "28", "7", "41", "53"}) {
    EXPECT_NE(shown.find(part), std::string::npos) << shown;
  }
  EXPECT_EQ(locale.DecimalSeparator().find_first_of("0123456789"), std::string::npos);
  EXPECT_EQ(locale.ShortDate(platform::EncodeDate(1600, 12, 31)), "");
  EXPECT_NE(locale.ShortDate(platform::EncodeDate(1601, 1, 2)), "");
  EXPECT_EQ(locale.ShortDate(-1e300), "");
  EXPECT_NE(locale.ShortDate(1e300), "");
  EXPECT_EQ(locale.LongTime(-1e300), locale.LongTime(0.0));
  EXPECT_EQ(locale.LongTime(platform::EncodeDate(1600, 12, 31)), locale.LongTime(0.0));
}

TEST_F(Locale, BytesOfTheCodePageAndSmallLetters) {
  platform::Locale& locale = Platform().locale;
  EXPECT_EQ(locale.FromCodePage("Intel(R) 82574L \\ |"), "Intel(R) 82574L \\ |");
  std::string all;
  for (int byte = 1; byte < 256; ++byte) all += static_cast<char>(byte);
  const std::string text = locale.FromCodePage(all);
  EXPECT_FALSE(text.empty());
  EXPECT_EQ(platform::ValidUtf8(text), text);
  EXPECT_EQ(locale.Lower("MIXED 1 |\u00C4\u03A9\u0416 \u6F22"),
            "mixed 1 |\u00E4\u03C9\u0436 \u6F22")
      << "whatever the user's language";
}

}  // namespace
}  // namespace contract
