#include "quantity/quantity.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "tests/world.h"

namespace {

using quantity::GetToken;
namespace setting = settings::setting;

class Quantity : public testing::Test, protected test::Computer {
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

  quantity::Quantity quantity{store, machine.locale};
};

// Between two ranges there are gaps without a text. They lie below the round number, and above zero
// elsewhere than below.
TEST_F(Quantity, RangesAndGapsMeetAtTheRoundNumbers) {
  // The number; the texts of two less, one less and itself; and of these below zero: one more than
  // it, it, one less.
  using Row = std::tuple<std::int64_t, const char*, const char*>;
  for (const auto& [at, up, down] : {
           Row{1024, "0,9|kB|, 0,9|kB|, 1|kB|", "-, -, -1,0|kB|"},
           Row{10240, "9,9|kB|, 9,9|kB|, 10|kB|", "-9,9|kB|, -10|kB|, -10,0|kB|"},
           Row{102400, "99,9|kB|, -, 100|kB|", "-99,9|kB|, -, -100,0|kB|"},
           Row{1024000, "999,9|kB|, -, 0,97|MB|", "-999,9|kB|, -, -0,97|MB|"},
           Row{10240000, "9,76|MB|, -, 9,765|MB|", "-9,76|MB|, -, -9,765|MB|"},
           Row{102400000, "97,65|MB|, -, 97,656|MB|", "-97,65|MB|, -, -97,656|MB|"},
           Row{1024000000, "976,56|MB|, -, 0,953|GB|", "-976,56|MB|, -, -0,953|GB|"},
           Row{10240000000, "9,536|GB|, -, 9,5367|GB|", "-9,536|GB|, -, -9,5367|GB|"},
           Row{102400000000, "95,367|GB|, -, 95,3674|GB|", "-95,367|GB|, -, -95,3674|GB|"},
           Row{1024000000000, "953,674|GB|, -, 0,9313|TB|", "-953,674|GB|, -, -0,9313|TB|"},
           Row{10240000000000, "9,3132|TB|, -, 9,3132|TB|", "-9,3132|TB|, -, -9,3132|TB|"},
           Row{102400000000000, "93,1323|TB|, -, 93,1323|TB|", "-93,1323|TB|, -, -93,1323|TB|"},
           Row{1024000000000000, "931,3226|TB|, -, -", "-931,3226|TB|, -, -"},
       }) {
    SCOPED_TRACE(at);
    EXPECT_EQ(Three(&quantity::Quantity::FormatQuantity, at - 2, 1), up);
    EXPECT_EQ(Three(&quantity::Quantity::FormatSignedQuantity, at - 2, 1), up);
    EXPECT_EQ(Three(&quantity::Quantity::FormatSignedQuantity, 1 - at, -1), down);
  }
}

TEST_F(Quantity, OfBytesAndBitsWithinTheRanges) {
  struct Row {
    const char* why;
    std::int64_t bytes;
    const char *text, *signed_text, *bits, *signed_bits;
  };
  for (const Row& row : {
           Row{"zero: no range takes it in but the first below zero, and that of bytes only", 0,
               "0,0|kB|", "0|kB|", "0,0|kbit|", "0,0|kbit|"},
           Row{"smallest", 1, "0,0|kB|", "0,0|kB|", "0,0|kbits|", "0,0|kbits|"},
           Row{"cut, not rounded", 1000, "0,9|kB|", "0,9|kB|", "7,8|kbits|", "7,8|kbits|"},
           Row{"no zeros at the end", 1536, "1,5|kB|", "1,5|kB|", "12|kbits|", "12|kbits|"},
           Row{"10.05 kB", 10291, "10,0|kB|", "10,0|kB|", "80,3|kbits|", "80,3|kbits|"},
           Row{"largest", INT64_MAX, "", "", "", "-0,0|kbits|"},
           Row{"bits wrap", std::int64_t{1} << 61, "", "", "0,0|kbit|", "0,0|kbit|"},
           Row{"below zero", -1, "", "-0,0|kB|", "", "-0,0|kbits|"},
           Row{"the last before the gap below", -1022, "", "-0,9|kB|", "", "-7,9|kbits|"},
           Row{"smallest number", INT64_MIN, "", "", "0,0|kbit|", "0,0|kbit|"},
           Row{"a tie goes up to an even 9688", 31LL << 35, "0,9688|TB|", "0,9688|TB|",
               "7,75|Tbits|", "7,75|Tbits|"},
           Row{"and down to an even 10312", 33LL << 35, "1,0312|TB|", "1,0312|TB|", "8,25|Tbits|",
               "8,25|Tbits|"},
       }) {
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
  using Row = std::tuple<const char*, const char*, int, const char*>;
  for (const auto& [text, delimiter, index, token] : {
           Row{"1,5|kB|", "|", 1, "1,5"},
           Row{"1,5|kB|", "|", 2, "kB"},
           Row{"1,5|kB|", "|", 3, ""},
           Row{"a|b", "|", 2, ""},  // the last piece needs its bar too
           Row{"a|b|", "|", 0, ""},
           Row{"a|b|", "|", -1, ""},
           Row{"|kB|", "|", 1, ""},
           Row{"a--b--", "--", 2, "-b"},  // only the first character of a long delimiter goes
           Row{"abc", "", 1, ""},
           Row{"x\u00E4y\u00E4", "\u00E4", 2, "y"},
       }) {
    EXPECT_EQ(GetToken(text, delimiter, index), token) << text << index;
  }
}

}  // namespace
