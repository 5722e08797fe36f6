#include "quantity/quantity.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/memory/machine.h"

namespace {

using quantity::GetToken;
namespace setting = settings::setting;

class Quantity : public testing::Test {
 protected:
  // The texts of three amounts, "-" where there is none.
  using Format = std::string (quantity::Quantity::*)(std::int64_t bytes) const;
  std::string Three(Format format, std::int64_t first, std::int64_t step) {
    std::string all;
    for (int i = 0; i < 3; ++i) {
      const std::string text = (quantity.*format)(first + i * step);
      all += (i > 0 ? ", " : "") + (text.empty() ? "-" : text);
    }
    return all;
  }

  platform::memory::Machine machine;
  settings::Store store{machine.registry, machine.files};
  quantity::Quantity quantity{store, machine.locale};
};

// Between two ranges there are gaps without a text. They lie below the round number, and above zero
// elsewhere than below.
TEST_F(Quantity, RangesAndGapsMeetAtTheRoundNumbers) {
  struct Row {
    std::int64_t at;
    const char* up;    // of two less, one less and the number itself
    const char* down;  // of the same below zero: one more, the number, one less
  };
  static constexpr Row kRows[] = {
      {1024, "0,9|kB|, 0,9|kB|, 1|kB|", "-, -, -1,0|kB|"},
      {10240, "9,9|kB|, 9,9|kB|, 10|kB|", "-9,9|kB|, -10|kB|, -10,0|kB|"},
      {102400, "99,9|kB|, -, 100|kB|", "-99,9|kB|, -, -100,0|kB|"},
      {1024000, "999,9|kB|, -, 0,97|MB|", "-999,9|kB|, -, -0,97|MB|"},
      {10240000, "9,76|MB|, -, 9,765|MB|", "-9,76|MB|, -, -9,765|MB|"},
      {102400000, "97,65|MB|, -, 97,656|MB|", "-97,65|MB|, -, -97,656|MB|"},
      {1024000000, "976,56|MB|, -, 0,953|GB|", "-976,56|MB|, -, -0,953|GB|"},
      {10240000000, "9,536|GB|, -, 9,5367|GB|", "-9,536|GB|, -, -9,5367|GB|"},
      {102400000000, "95,367|GB|, -, 95,3674|GB|", "-95,367|GB|, -, -95,3674|GB|"},
      {1024000000000, "953,674|GB|, -, 0,9313|TB|", "-953,674|GB|, -, -0,9313|TB|"},
      {10240000000000, "9,3132|TB|, -, 9,3132|TB|", "-9,3132|TB|, -, -9,3132|TB|"},
      {102400000000000, "93,1323|TB|, -, 93,1323|TB|", "-93,1323|TB|, -, -93,1323|TB|"},
      {1024000000000000, "931,3226|TB|, -, -", "-931,3226|TB|, -, -"},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.at);
    EXPECT_EQ(Three(&quantity::Quantity::FormatQuantity, row.at - 2, 1), row.up);
    EXPECT_EQ(Three(&quantity::Quantity::FormatSignedQuantity, row.at - 2, 1), row.up);
    EXPECT_EQ(Three(&quantity::Quantity::FormatSignedQuantity, 1 - row.at, -1), row.down);
  }
}

TEST_F(Quantity, OfBytesAndBitsWithinTheRanges) {
  struct Row {
    const char* why;
    std::int64_t bytes;
    const char* text;
    const char* signed_text;
    const char* bits;
    const char* signed_bits;
  };
  static constexpr Row kRows[] = {
      {"zero: no range takes it in but the first below zero, and that of bytes only", 0, "0,0|kB|",
       "0|kB|", "0,0|kbit|", "0,0|kbit|"},
      {"smallest", 1, "0,0|kB|", "0,0|kB|", "0,0|kbits|", "0,0|kbits|"},
      {"cut, not rounded", 1000, "0,9|kB|", "0,9|kB|", "7,8|kbits|", "7,8|kbits|"},
      {"no zeros at the end", 1536, "1,5|kB|", "1,5|kB|", "12|kbits|", "12|kbits|"},
      {"10.05 kB", 10291, "10,0|kB|", "10,0|kB|", "80,3|kbits|", "80,3|kbits|"},
      {"largest", INT64_MAX, "", "", "", "-0,0|kbits|"},
      {"bits wrap", std::int64_t{1} << 61, "", "", "0,0|kbit|", "0,0|kbit|"},
      {"below zero", -1, "", "-0,0|kB|", "", "-0,0|kbits|"},
      {"the last before the gap below zero", -1022, "", "-0,9|kB|", "", "-7,9|kbits|"},
      {"smallest number", INT64_MIN, "", "", "0,0|kbit|", "0,0|kbit|"},
      {"a tie goes up to an even 9688", 31LL << 35, "0,9688|TB|", "0,9688|TB|", "7,75|Tbits|",
       "7,75|Tbits|"},
      {"and down to an even 10312", 33LL << 35, "1,0312|TB|", "1,0312|TB|", "8,25|Tbits|",
       "8,25|Tbits|"},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.why);
    store.Write(setting::ScaleUnit, 0);
    EXPECT_EQ(quantity.FormatQuantity(row.bytes), row.text);
    EXPECT_EQ(quantity.FormatSignedQuantity(row.bytes), row.signed_text);
    store.Write(setting::ScaleUnit, -1);  // any unit but 0
    EXPECT_EQ(quantity.FormatQuantity(row.bytes), row.bits);
    EXPECT_EQ(quantity.FormatSignedQuantity(row.bytes), row.signed_bits);
  }
  EXPECT_EQ(quantity.FormatQuantity(128000), "0,97|Mbits|");
  EXPECT_EQ(quantity.FormatQuantity(128000000), "0,953|Gbits|");
}

TEST_F(Quantity, TheSeparatorIsTheUsersButNotInTheTextsOfZero) {
  machine.locale.decimal_separator = "\u066B";  // two bytes, one character
  EXPECT_EQ(quantity.FormatQuantity(150000), "146\u066B4|kB|");
  EXPECT_EQ(quantity.FormatQuantity(0), "0,0|kB|");
}

TEST(GetToken, CutsAPieceOut) {
  struct Row {
    const char* text;
    const char* delimiter;
    int index;
    const char* token;
  };
  static constexpr Row kRows[] = {
      {"1,5|kB|", "|", 1, "1,5"}, {"1,5|kB|", "|", 2, "kB"},
      {"1,5|kB|", "|", 3, ""},    {"a|b", "|", 2, ""},  // the last piece needs its bar too
      {"a|b|", "|", 0, ""},       {"a|b|", "|", -1, ""},
      {"|kB|", "|", 1, ""},       {"|kB|", "|", 2, "kB"},
      {"a--b--", "--", 2, "-b"},  // only the first character of a long delimiter goes
      {"abc", "", 1, ""},         {"x\u00E4y\u00E4", "\u00E4", 2, "y"},
  };
  for (const Row& row : kRows) {
    EXPECT_EQ(GetToken(row.text, row.delimiter, row.index), row.token) << row.text << row.index;
  }
}

}  // namespace
