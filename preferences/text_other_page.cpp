#include "display/unit_BrisantoMain.h"
#include "preferences/page.h"
#include "toolkit/controls/buttons.h"

namespace preferences {
namespace {

namespace setting = settings::setting;

// The page that sets what the numeric line shows, in which units, and where it is posted.
class TextOtherPage final : public Page {
 public:
  TextOtherPage(toolkit::Notebook& notebook, Context& context)
      : Page(notebook, "TextOther", context) {
    constexpr int kLineHeight = kGroupTop + 3 * kRow + 3;
    constexpr int kUnitsTop = kMargin + kLineHeight + kMargin;
    constexpr int kUnitsHeight = kGroupTop + 2 * kRow + 3;
    constexpr Place kUnits{kMargin, kUnitsTop, kWidth, kUnitsHeight};
    constexpr int kTitlesTop = kUnitsTop + kUnitsHeight + kMargin;
    constexpr int kButtonTop = kGroupTop + 4 * kRow + 4;
    Add(ReadStep::kNumericLine, {
                                    {grpNumericLine, {kMargin, kMargin, kWidth, kLineHeight}},
                                    {chkTariffName, GroupLine(0), setting::SOM1},
                                    {chkConnLength, GroupLine(1), setting::SOM2},
                                    {chkTotalCost, GroupLine(2), setting::SOM3},
                                    {rdoScaleUnits, kUnits, setting::ScaleUnit, Items{"ScaleUnit"}},
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

 private:
  toolkit::GroupBox grpNumericLine{*this, "grpNumericLine"};
  toolkit::CheckBox chkTariffName{grpNumericLine, "chkTariffName"};
  toolkit::CheckBox chkConnLength{grpNumericLine, "chkConnLength"};
  toolkit::CheckBox chkTotalCost{grpNumericLine, "chkTotalCost"};
  toolkit::RadioGroup rdoScaleUnits{*this, "rdoScaleUnits"};
  toolkit::GroupBox grpWindowTitles{*this, "grpWindowTitles"};
  toolkit::RadioButton Post0{grpWindowTitles, "Post0"};
  toolkit::RadioButton Post1{grpWindowTitles, "Post1"};
  toolkit::RadioButton Post2{grpWindowTitles, "Post2"};
  toolkit::RadioButton Post3{grpWindowTitles, "Post3"};
  toolkit::Button DefineButton{grpWindowTitles, "DefineButton"};
};

}  // namespace

std::unique_ptr<Page> MakeTextOtherPage(toolkit::Notebook& notebook, Context& context) {
  return std::make_unique<TextOtherPage>(notebook, context);
}

}  // namespace preferences
