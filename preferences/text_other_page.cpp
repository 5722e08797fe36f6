#include "preferences/text_other_page.h"

#include "display/unit_BrisantoMain.h"

namespace preferences {
namespace {

namespace setting = settings::setting;

}  // namespace

TextOtherPage::TextOtherPage(toolkit::Notebook& notebook, Context& context)
    : Page(notebook, "TextOther", context) {
  constexpr int kLineHeight = kGroupTop + 3 * kRow + 3;
  constexpr int kUnitsTop = kMargin + kLineHeight + kMargin;
  constexpr int kUnitsHeight = kGroupTop + 2 * kRow + 3;
  constexpr int kTitlesTop = kUnitsTop + kUnitsHeight + kMargin;
  constexpr int kButtonTop = kGroupTop + 4 * kRow + 4;
  Add(ReadStep::kNumericLine, {
                                  {grpNumericLine, {kMargin, kMargin, kWidth, kLineHeight}},
                                  {chkTariffName, GroupLine(0), setting::SOM1},
                                  {chkConnLength, GroupLine(1), setting::SOM2},
                                  {chkTotalCost, GroupLine(2), setting::SOM3},
                                  {rdoScaleUnits,
                                   {kMargin, kUnitsTop, kWidth, kUnitsHeight},
                                   setting::ScaleUnit,
                                   Items{"ScaleUnit"}},
                              });
  Add(ReadStep::kWindowTitle,
      {
          {grpWindowTitles, {kMargin, kTitlesTop, kWidth, kButtonTop + kButtonHeight + kMargin}},
          {Post0, GroupLine(0), Choice{setting::WindowTitle, 0}},
          {Post1, GroupLine(1), Choice{setting::WindowTitle, 1}},
          {Post2, GroupLine(2), Choice{setting::WindowTitle, 2}},
          {Post3, GroupLine(3), Choice{setting::WindowTitle, 3}},
          {DefineButton, {kMargin, kButtonTop, 110, kButtonHeight}},
      });
  DefineButton.OnClick = [this] { context_.meter.window.EditTitles(); };
}

}  // namespace preferences
