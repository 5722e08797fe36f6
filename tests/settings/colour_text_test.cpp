#include <gtest/gtest.h>

#include "settings/value_texts.h"

namespace {

using platform::Colour;

TEST(ColourText, NamesTheStandardColoursAndThoseOfTheSystem) {
  std::string names;
  for (const Colour part : {0x80U, 0xFFU}) {
    for (Colour bits = 0; bits < 8; ++bits) {
      names += settings::ColourText((bits & 1 ? part : 0) | (bits & 2 ? part << 8 : 0) |
                                    (bits & 4 ? part << 16 : 0)) +
               ' ';
    }
  }
  EXPECT_EQ(names,
            "clBlack clMaroon clGreen clOlive clNavy clPurple clTeal clGray "
            "clBlack clRed clLime clYellow clBlue clFuchsia clAqua clWhite ");
  EXPECT_EQ(settings::ColourText(0xC0C0C0), "clSilver");
  names.clear();
  for (std::uint32_t index = 0; index < 32; ++index) {
    names += settings::ColourText(platform::colour::System(index)) + ' ';
  }
  EXPECT_EQ(names,
            "clScrollBar clBackground clActiveCaption clInactiveCaption clMenu clWindow "
            "clWindowFrame clMenuText clWindowText clCaptionText clActiveBorder clInactiveBorder "
            "clAppWorkSpace clHighlight clHighlightText clBtnFace clBtnShadow clGrayText clBtnText "
            "clInactiveCaptionText clBtnHighlight cl3DDkShadow cl3DLight clInfoText clInfoBk "
            "$80000019 clHotLight clGradientActiveCaption clGradientInactiveCaption "
            "clMenuHighlight clMenuBar $8000001F ");
}

TEST(ColourText, ReadsNamesAndNumbersOf32Bits) {
  struct Row {
    const char* text;
    std::optional<Colour> colour;
  };
  static constexpr Row kRows[] = {
      {"clred", 0x0000FF},
      {"clMenuBar", 0x8000001E},
      {"$008184FE", 0x8184FE},
      {"$0000fF00", 0x00FF00},
      {"$FFFFFFFF", 0xFFFFFFFF},
      {"255", 0xFF},
      {"-2147483648", 0x80000000},
      {"4294967295", 0xFFFFFFFF},
      {"4294967296", std::nullopt},
      {"-2147483649", std::nullopt},
      {"$100000000", std::nullopt},
      {"", std::nullopt},
      {"$", std::nullopt},
      {"$-1", std::nullopt},
      {"$12G", std::nullopt},
      {" clRed", std::nullopt},
      {"clNoSuchColour", std::nullopt},
      {"0xFF", std::nullopt},
  };
  for (const Row& row : kRows) {
    EXPECT_EQ(settings::ParseColour(row.text), row.colour) << row.text;
  }
  EXPECT_EQ(settings::ColourText(0x8184FE), "$008184FE");
}

}  // namespace
