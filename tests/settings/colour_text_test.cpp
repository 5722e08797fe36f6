#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>

#include "settings/value_texts.h"

namespace {

using platform::Colour;

TEST(ColourText, NamesTheStandardColoursAndThoseOfTheSystem) {
  std::string names;
  const auto add = [&](Colour colour) { names += settings::ColourText(colour) + ' '; };
  for (const Colour part : {0x80U, 0xFFU}) {
    for (Colour bits = 0; bits < 8; ++bits) {
      add((bits & 1 ? part : 0) | (bits & 2 ? part << 8 : 0) | (bits & 4 ? part << 16 : 0));
    }
  }
  add(0xC0C0C0);
  for (std::uint32_t index = 0; index < 32; ++index) add(platform::colour::System(index));
  EXPECT_EQ(names,
            "clBlack clMaroon clGreen clOlive clNavy clPurple clTeal clGray "
            "clBlack clRed clLime clYellow clBlue clFuchsia clAqua clWhite "
            "clSilver clScrollBar clBackground clActiveCaption clInactiveCaption clMenu clWindow "
            "clWindowFrame clMenuText clWindowText clCaptionText clActiveBorder clInactiveBorder "
            "clAppWorkSpace clHighlight clHighlightText clBtnFace clBtnShadow clGrayText clBtnText "
            "clInactiveCaptionText clBtnHighlight cl3DDkShadow cl3DLight clInfoText clInfoBk "
            "$80000019 clHotLight clGradientActiveCaption clGradientInactiveCaption "
            "clMenuHighlight clMenuBar $8000001F ");
}

TEST(ColourText, ReadsNamesAndNumbersOf32Bits) {
  using Row = std::pair<const char*, std::optional<Colour>>;
  for (const auto& [text, colour] : {
           Row{"clred", 0x0000FF},
           Row{"clMenuBar", 0x8000001E},
           Row{"$008184FE", 0x8184FE},
           Row{"$0000fF00", 0x00FF00},
           Row{"$FFFFFFFF", 0xFFFFFFFF},
           Row{"255", 0xFF},
           Row{"-2147483648", 0x80000000},
           Row{"4294967295", 0xFFFFFFFF},
           Row{"4294967296", {}},
           Row{"-2147483649", {}},
           Row{"$100000000", {}},
           Row{"", {}},
           Row{"$", {}},
           Row{"$-1", {}},
           Row{"$12G", {}},
           Row{" clRed", {}},
           Row{"clNoSuchColour", {}},
           Row{"0xFF", {}},
       }) {
    EXPECT_EQ(settings::ParseColour(text), colour) << text;
  }
  EXPECT_EQ(settings::ColourText(0x8184FE), "$008184FE");
}

}  // namespace
