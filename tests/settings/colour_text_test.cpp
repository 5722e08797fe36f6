#include <gtest/gtest.h>

#include "settings/value_texts.h"

namespace {

using platform::Colour;

TEST(ColourText, NamesWhatHasANameAndWritesTheOthersInHexadecimal) {
  struct Row {
    const char* why;
    Colour colour;
    const char* text;
  };
  static constexpr Row kRows[] = {
      {"standard", 0x0000FF, "clRed"},
      {"the grey of the sixteen", 0x808080, "clGray"},
      {"the light grey of the sixteen", 0xC0C0C0, "clSilver"},
      {"system colour", 0x8000000F, "clBtnFace"},
      {"first system colour", 0x80000000, "clScrollBar"},
      {"last system colour", 0x8000001E, "clMenuBar"},
      {"hole in the system's numbering", 0x80000019, "$80000019"},
      {"beyond the system's colours", 0x8000001F, "$8000001F"},
      {"no name", 0x8184FE, "$008184FE"},
      {"one beside red", 0x0000CD, "$000000CD"},
      {"every bit", 0xFFFFFFFF, "$FFFFFFFF"},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.why);
    EXPECT_EQ(settings::ColourText(row.colour), row.text);
    EXPECT_EQ(settings::ParseColour(row.text), row.colour);
  }
}

TEST(ColourText, ReadsWhatOtherProgramsMayHaveWritten) {
  struct Row {
    const char* text;
    std::optional<Colour> colour;
  };
  static constexpr Row kRows[] = {
      {"CLBTNFACE", 0x8000000F},
      {"clred", 0x0000FF},
      {"$ff", 0xFF},
      {"$0000fF00", 0x00FF00},
      {"255", 0xFF},
      {"-2147483633", 0x8000000F},
      {"4294967295", 0xFFFFFFFF},
      {"4294967296", std::nullopt},
      {"-2147483649", std::nullopt},
      {"$100000000", std::nullopt},
      {"", std::nullopt},
      {"$", std::nullopt},
      {"$-1", std::nullopt},
      {"$12G", std::nullopt},
      {"abc", std::nullopt},
      {"clNoSuchColour", std::nullopt},
      {" clRed", std::nullopt},
      {"0xFF", std::nullopt},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.text);
    EXPECT_EQ(settings::ParseColour(row.text), row.colour);
  }
}

}  // namespace
