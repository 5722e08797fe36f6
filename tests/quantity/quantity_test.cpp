#include "quantity/quantity.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <string>

#include "platform/memory/machine.h"

namespace {

using quantity::GetToken;
using quantity::Quantity;
namespace setting = settings::setting;

class QuantityTest : public testing::Test {
 protected:
  void UseBits() { store.Write(setting::ScaleUnit, 1); }

  platform::memory::Machine machine;
  settings::Store store{machine.registry, machine.files};
  Quantity quantity{store, machine.locale};
};

TEST_F(QuantityTest, KeepsTheDigitsThatItsRangeAllows) {
  struct Row {
    const char* why;
    std::int64_t bytes;
    const char* text;
  };
  static constexpr Row kRows[] = {
      {"zero has a text of its own", 0, "0,0|kB|"},
      {"smallest", 1, "0,0|kB|"},
      {"half", 512, "0,5|kB|"},
      {"cut, not rounded", 1000, "0,9|kB|"},
      {"last below one kB", 1023, "0,9|kB|"},
      {"whole numbers have no decimals", 1024, "1|kB|"},
      {"one and a half", 1536, "1,5|kB|"},
      {"9.9990", 10239, "9,9|kB|"},
      {"four characters from here", 10240, "10|kB|"},
      {"two digits", 15000, "14,6|kB|"},
      {"last before the gap", 102398, "99,9|kB|"},
      {"in the gap", 102399, ""},
      {"behind the gap", 102400, "100|kB|"},
      {"three digits", 150000, "146,4|kB|"},
      {"last before the gap", 1023998, "999,9|kB|"},
      {"in the gap", 1023999, ""},
      {"the next unit begins at 1000", 1024000, "0,97|MB|"},
      {"one MB", 1048576, "1|MB|"},
      {"last before the gap", 10239998, "9,76|MB|"},
      {"in the gap", 10239999, ""},
      {"behind the gap", 10240000, "9,765|MB|"},
      {"last before the gap", 102399998, "97,65|MB|"},
      {"in the gap", 102399999, ""},
      {"behind the gap", 102400000, "97,656|MB|"},
      {"in the gap", 1023999999, ""},
      {"GB", 1024000000, "0,953|GB|"},
      {"in the gap", 10239999999, ""},
      {"behind the gap", 10240000000, "9,5367|GB|"},
      {"in the gap", 102399999999, ""},
      {"behind the gap", 102400000000, "95,3674|GB|"},
      {"in the gap", 1023999999999, ""},
      {"TB", 1024000000000, "0,9313|TB|"},
      {"in the gap", 10239999999999, ""},
      {"behind the gap", 10240000000000, "9,3132|TB|"},
      {"in the gap", 102399999999999, ""},
      {"behind the gap", 102400000000000, "93,1323|TB|"},
      {"the last amount with a text", 1023999999999998, "931,3226|TB|"},
      {"no text any more", 1023999999999999, ""},
      {"largest number", INT64_MAX, ""},
      {"negative", -1, ""},
      {"smallest number", INT64_MIN, ""},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(std::to_string(row.bytes) + ": " + row.why);
    EXPECT_EQ(quantity.FormatQuantity(row.bytes), row.text);
    if (row.bytes > 0) {
      EXPECT_EQ(quantity.FormatSignedQuantity(row.bytes), row.text) << "the signed form differs";
    }
  }
}

TEST_F(QuantityTest, NegativeAmountsHaveTheirOwnGaps) {
  struct Row {
    std::int64_t bytes;
    const char* text;
  };
  static constexpr Row kRows[] = {
      {0, "0|kB|"},  // the first range takes it in and overrules the text of zero
      {-1, "-0,0|kB|"},
      {-1022, "-0,9|kB|"},
      {-1023, ""},
      {-1024, ""},
      {-1025, "-1,0|kB|"},
      {-1536, "-1,5|kB|"},
      {-10240, "-10|kB|"},
      {-10241, "-10,0|kB|"},
      {-102399, "-99,9|kB|"},
      {-102400, ""},
      {-102401, "-100,0|kB|"},
      {-1023999, "-999,9|kB|"},
      {-1024000, ""},
      {-1024001, "-0,97|MB|"},
      {-1048576, "-1|MB|"},
      {-10239999, "-9,76|MB|"},
      {-10240000, ""},
      {-10240001, "-9,765|MB|"},
      {-102399999, "-97,65|MB|"},
      {-102400000, ""},
      {-1023999999, "-976,56|MB|"},
      {-1024000000, ""},
      {-1024000001, "-0,953|GB|"},
      {-10239999999, "-9,536|GB|"},
      {-10240000000, ""},
      {-102399999999, "-95,367|GB|"},
      {-102400000000, ""},
      {-1023999999999, "-953,674|GB|"},
      {-1024000000000, ""},
      {-1024000000001, "-0,9313|TB|"},
      {-10239999999999, "-9,3132|TB|"},
      {-10240000000000, ""},
      {-102399999999999, "-93,1323|TB|"},
      {-102400000000000, ""},
      {-102400000000001, "-93,1323|TB|"},
      {-1023999999999999, "-931,3226|TB|"},
      {-1024000000000000, ""},
      {INT64_MIN, ""},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.bytes);
    EXPECT_EQ(quantity.FormatSignedQuantity(row.bytes), row.text);
  }
}

TEST_F(QuantityTest, BitsAreEightTimesTheBytes) {
  UseBits();
  struct Row {
    const char* why;
    std::int64_t bytes;
    const char* text;
    const char* signed_text;
  };
  static constexpr Row kRows[] = {
      {"no final s at zero, and no range takes it in", 0, "0,0|kbit|", "0,0|kbit|"},
      {"one byte", 1, "0,0|kbits|", "0,0|kbits|"},
      {"one kbit", 128, "1|kbits|", "1|kbits|"},
      {"next unit", 128000, "0,97|Mbits|", "0,97|Mbits|"},
      {"Gbits", 128000000, "0,953|Gbits|", "0,953|Gbits|"},
      {"Tbits", 128000000000, "0,9313|Tbits|", "0,9313|Tbits|"},
      {"below zero", -1, "", "-0,0|kbits|"},
      {"in a negative gap", -128, "", ""},
      {"wraps to zero bits", std::int64_t{1} << 61, "0,0|kbit|", "0,0|kbit|"},
      {"wraps to minus eight bits", INT64_MAX, "", "-0,0|kbits|"},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.why);
    EXPECT_EQ(quantity.FormatQuantity(row.bytes), row.text);
    EXPECT_EQ(quantity.FormatSignedQuantity(row.bytes), row.signed_text);
  }
  store.Write(setting::ScaleUnit, -1);
  EXPECT_EQ(quantity.FormatQuantity(128), "1|kbits|") << "any unit but 0 means bits";
  store.Write(setting::ScaleUnit, 0);
  EXPECT_EQ(quantity.FormatQuantity(1024), "1|kB|") << "a change counts at once";
}

TEST_F(QuantityTest, TenThousandthsAreRoundedToEvenAtATie) {
  const std::int64_t tie = (std::int64_t{1} << 35) * 31;  // 0,96875 TB
  EXPECT_EQ(quantity.FormatQuantity(tie), "0,9688|TB|") << "9687.5 goes up to an even 9688";
  EXPECT_EQ(quantity.FormatSignedQuantity(-tie), "-0,9688|TB|");
  const std::int64_t tie_down = (std::int64_t{1} << 35) * 33;  // 1,03125 TB
  EXPECT_EQ(quantity.FormatQuantity(tie_down), "1,0312|TB|")
      << "10312.5 goes down to an even 10312";
}

TEST_F(QuantityTest, TheSeparatorIsTheUsersButNotInTheTextsOfZero) {
  machine.locale.decimal_separator = ".";
  EXPECT_EQ(quantity.FormatQuantity(1536), "1.5|kB|");
  EXPECT_EQ(quantity.FormatQuantity(0), "0,0|kB|");
  machine.locale.decimal_separator = "\xD9\xAB";  // Arabic, two bytes, one character
  EXPECT_EQ(quantity.FormatQuantity(1536),
            "1\xD9\xAB"
            "5|kB|");
  EXPECT_EQ(quantity.FormatQuantity(150000),
            "146\xD9\xAB"
            "4|kB|");
}

// What 80-bit floating point gives: division by a power of two is exact there, and so is the
// product for every amount that has a text.
std::string ByFloatingPoint(std::int64_t n, int divisions, std::size_t keep) {
  const long double thousandths =
      std::nearbyint(std::ldexp(static_cast<long double>(n), -10 * divisions) * 10000);
  char text[64];
  std::snprintf(text, sizeof text, "%.15Lg", thousandths / 10000);
  return std::string(text).substr(0, keep);
}

TEST_F(QuantityTest, IntegersGiveWhatExtendedFloatingPointGives) {
  static_assert(sizeof(long double) > sizeof(double), "the comparison needs 64 bits of precision");
  machine.locale.decimal_separator = ".";
  struct Row {
    std::int64_t from;
    std::int64_t last;
    int divisions;
    std::size_t keep;
  };
  static constexpr Row kRows[] = {
      {1, 10239, 1, 3},
      {10240, 102398, 1, 4},
      {102400, 1023998, 1, 5},
      {1024000, 10239998, 2, 4},
      {102400000, 1023999998, 2, 6},
      {102400000000, 1023999999998, 3, 7},
      {1024000000000, 10239999999998, 4, 6},
      {102400000000000, 1023999999999998, 4, 8},
  };
  for (const Row& row : kRows) {
    const std::int64_t step = (row.last - row.from) / 500 | 1;
    for (std::int64_t n = row.from; n <= row.last; n += step) {
      ASSERT_EQ(GetToken(quantity.FormatQuantity(n), "|", 1),
                ByFloatingPoint(n, row.divisions, row.keep))
          << n;
      const std::string negative = GetToken(quantity.FormatSignedQuantity(-n), "|", 1);
      if (negative.empty()) continue;  // the gaps below zero lie elsewhere
      ASSERT_EQ(negative, ByFloatingPoint(-n, row.divisions, row.keep + 1)) << -n;
    }
  }
}

TEST(GetToken, CutsAPieceOut) {
  struct Row {
    const char* why;
    const char* text;
    const char* delimiter;
    int index;
    const char* token;
  };
  static constexpr Row kRows[] = {
      {"number", "1,5|kB|", "|", 1, "1,5"},
      {"unit", "1,5|kB|", "|", 2, "kB"},
      {"behind the last bar", "1,5|kB|", "|", 3, ""},
      {"the last piece needs its bar too", "a|b", "|", 2, ""},
      {"no bar", "abc", "|", 1, ""},
      {"no text", "", "|", 1, ""},
      {"index 0", "a|b|", "|", 0, ""},
      {"negative index", "a|b|", "|", -1, ""},
      {"empty piece", "|kB|", "|", 1, ""},
      {"behind an empty piece", "|kB|", "|", 2, "kB"},
      {"only the first character of a long delimiter goes", "a--b--", "--", 2, "-b"},
      {"no delimiter", "abc", "", 1, ""},
      {"text of several bytes a character", "\xC3\xA4|\xE4\xB8\xAD|", "|", 2, "\xE4\xB8\xAD"},
      {"delimiter of several bytes",
       "a\xC3\xA4"
       "b\xC3\xA4",
       "\xC3\xA4", 2, "b"},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.why);
    EXPECT_EQ(GetToken(row.text, row.delimiter, row.index), row.token);
  }
}

}  // namespace
