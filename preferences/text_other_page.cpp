#include "preferences/text_other_page.h"

#include "display/display_settings.h"
#include "display/unit_BrisantoMain.h"
#include "toolkit/controls/layout.h"

namespace preferences {
namespace {

namespace setting = settings::setting;
namespace text = language::text::SettingsForm;

using Meter = display::RunningMeter;

Push<bool> ModeOf(const settings::BooleanSetting& mode) {
  return [mode](const Meter& meter, bool on) {
    meter.line.ShowMode(mode, on);
    meter.window.LineChanged();
  };
}

// Amounts in the old unit would stand in the line until the next scan.
void ShowUnit(const Meter& meter, std::int64_t index) {
  if (meter.graph.ScaleUnits == display::UnitsOf(index)) return;
  meter.graph.ScaleUnits = display::UnitsOf(index);
  meter.line.ShowUnit(index != 0);
  meter.window.LineChanged();
}

}  // namespace

TextOtherPage::TextOtherPage(toolkit::Notebook& notebook, Context& context)
    : Page(notebook, "TextOther", context),
      grpNumericLine(*this, "grpNumericLine"),
      chkTariffName(grpNumericLine, "chkTariffName"),
      chkConnLength(grpNumericLine, "chkConnLength"),
      chkTotalCost(grpNumericLine, "chkTotalCost"),
      rdoScaleUnits(*this, "rdoScaleUnits"),
      grpWindowTitles(*this, "grpWindowTitles"),
      Post0(grpWindowTitles, "Post0"),
      Post1(grpWindowTitles, "Post1"),
      Post2(grpWindowTitles, "Post2"),
      Post3(grpWindowTitles, "Post3"),
      DefineButton(grpWindowTitles, "DefineButton"),
      line_(context),
      titles_(context) {
  PlaceControls();
  const std::vector<std::string> units(2);
  rdoScaleUnits.SetItems(units);
  ConnectHandlers();
}

void TextOtherPage::ConnectHandlers() {
  line_.Connect({
      {chkTariffName, setting::SOM1, ModeOf(setting::SOM1)},
      {chkConnLength, setting::SOM2, ModeOf(setting::SOM2)},
      {chkTotalCost, setting::SOM3, ModeOf(setting::SOM3)},
      {rdoScaleUnits, setting::ScaleUnit, ShowUnit},
  });
  titles_.Connect({
      {{&Post0, &Post1, &Post2, &Post3}, setting::WindowTitle},
  });
  DefineButton.OnClick = [this] { context_.meter.window.EditTitles(); };
}

void TextOtherPage::PlaceControls() {
  constexpr int kLineHeight = kGroupTop + 3 * kRow + 3;
  constexpr int kUnitsTop = kMargin + kLineHeight + kMargin;
  constexpr int kUnitsHeight = kGroupTop + 2 * kRow + 3;
  constexpr int kTitlesTop = kUnitsTop + kUnitsHeight + kMargin;
  constexpr int kButtonTop = kGroupTop + 4 * kRow + 4;
  toolkit::ApplyLayout({
      {grpNumericLine, {kMargin, kMargin, kWidth, kLineHeight}},
      {chkTariffName, {kMargin, kGroupTop, kGroupWidth, kBoxHeight}},
      {chkConnLength, {kMargin, kGroupTop + kRow, kGroupWidth, kBoxHeight}},
      {chkTotalCost, {kMargin, kGroupTop + 2 * kRow, kGroupWidth, kBoxHeight}},
      {rdoScaleUnits, {kMargin, kUnitsTop, kWidth, kUnitsHeight}},
      {grpWindowTitles, {kMargin, kTitlesTop, kWidth, kButtonTop + kButtonHeight + kMargin}},
      {Post0, {kMargin, kGroupTop, kGroupWidth, kBoxHeight}},
      {Post1, {kMargin, kGroupTop + kRow, kGroupWidth, kBoxHeight}},
      {Post2, {kMargin, kGroupTop + 2 * kRow, kGroupWidth, kBoxHeight}},
      {Post3, {kMargin, kGroupTop + 3 * kRow, kGroupWidth, kBoxHeight}},
      {DefineButton, {kMargin, kButtonTop, 110, kButtonHeight}},
  });
}

void TextOtherPage::Localise(const language::Translation& say) {
  rdoScaleUnits.SetItems(Texts(say, {text::ScaleUnit0, text::ScaleUnit1}));
  Say(say, {
               {grpNumericLine, text::grpNumericLine},
               {chkTariffName, text::chkTariffName, text::chkTariffNameHint},
               {chkConnLength, text::chkConnLength, text::chkConnLengthHint},
               {chkTotalCost, text::chkTotalCost, text::chkTotalCostHint},
               {rdoScaleUnits, text::rdoScaleUnits, text::rdoScaleUnitsHint},
               {grpWindowTitles, text::grpWindowTitles},
               {Post0, text::Post0, text::Post0Hint},
               {Post1, text::Post1, text::Post1Hint},
               {Post2, text::Post2, text::Post2Hint},
               {Post3, text::Post3, text::Post3Hint},
               {DefineButton, text::DefineButton, text::DefineButtonHint},
           });
}

}  // namespace preferences
