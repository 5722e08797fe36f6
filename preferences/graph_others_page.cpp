#include "preferences/graph_others_page.h"

#include "display/display_settings.h"
#include "settings/scale_choice.h"
#include "toolkit/controls/layout.h"

namespace preferences {
namespace {

namespace setting = settings::setting;
namespace text = language::text::SettingsForm;

using Meter = display::RunningMeter;

// Design pixels.
constexpr int kWidestBevel = 20;
constexpr int kWidestPulse = 50;

// Bits per second.
constexpr std::int64_t kSlowest = 1024;
constexpr std::int64_t kFastest = 2100000000;

}  // namespace

GraphOthersPage::GraphOthersPage(toolkit::Notebook& notebook, Context& context)
    : Page(notebook, "GraphOthers", context),
      lblBevelInner(*this, "lblBevelInner", toolkit::kCaptionText),
      BevelInner(*this, "BevelInner"),
      lblBevelOuter(*this, "lblBevelOuter", toolkit::kCaptionText),
      BevelOuter(*this, "BevelOuter"),
      lblBevelWidth(*this, "lblBevelWidth", toolkit::kCaptionText),
      BevelWidth(*this, "BevelWidth"),
      lblBorderWidth(*this, "lblBorderWidth", toolkit::kCaptionText),
      BorderWidth(*this, "BorderWidth"),
      lblPulseSpace(*this, "lblPulseSpace", toolkit::kCaptionText),
      PulseSpace(*this, "PulseSpace"),
      lblPulseWidth(*this, "lblPulseWidth", toolkit::kCaptionText),
      PulseWidth(*this, "PulseWidth"),
      chkZeroBased(*this, "chkZeroBased"),
      chkScaleActive(*this, "chkScaleActive"),
      chk3dGraph(*this, "chk3dGraph"),
      lblScale(*this, "lblScale", toolkit::kCaptionText),
      ScaleCombo(*this, "ScaleCombo"),
      lblCustomScale(*this, "lblCustomScale", toolkit::kCaptionText),
      CustomScale(*this, "CustomScale"),
      bevels_(context),
      others_(context) {
  PlaceControls();
  BevelWidth.SetRange(0, kWidestBevel, 1);
  BorderWidth.SetRange(0, kWidestBevel, 1);
  PulseSpace.SetRange(0, kWidestPulse, 1);
  PulseWidth.SetRange(1, kWidestPulse, 1);
  CustomScale.SetRange(kSlowest, kFastest, kSlowest);
  CustomScale.SetEnabled(false);
  bevels_.Connect({
      {BevelInner, setting::BevelInner,
       [](const Meter& m, std::int64_t index) {
         m.graph.BevelInner = display::BevelOf(index, m.graph.BevelInner);
       }},
      {BevelOuter, setting::BevelOuter,
       [](const Meter& m, std::int64_t index) {
         m.graph.BevelOuter = display::BevelOf(index, m.graph.BevelOuter);
       }},
  });
  others_.Connect({
      {BevelWidth, setting::BevelWidth,
       [](const Meter& m, std::int64_t width) { m.graph.BevelWidth = width; }},
      {BorderWidth, setting::BorderWidth,
       [](const Meter& m, std::int64_t width) { m.graph.BorderWidth = width; }},
      {chkZeroBased, setting::ZeroBased, [](const Meter& m, bool on) { m.graph.ZeroBased = on; }},
      {chkScaleActive, setting::ScaleShow, [](const Meter& m, bool on) { m.graph.ScaleShow = on; }},
      {chk3dGraph, setting::Pulse3D, [](const Meter& m, bool on) { m.graph.Pulse3D = on; }},
      {PulseSpace, setting::PulseSpace,
       [](const Meter& m, std::int64_t space) { m.graph.PulseSpace = space; }},
      {PulseWidth, setting::PulseWidth,
       [](const Meter& m, std::int64_t width) { m.graph.PulseWidth = width; }},
  });
  ScaleCombo.OnChange = [this] { ScaleComboChange(); };
  CustomScale.OnChange = [this] { CustomScaleChange(); };
}

void GraphOthersPage::PlaceControls() {
  constexpr int kLabelWidth = 230;
  constexpr FieldColumn kFields{kMargin, kLabelWidth};
  constexpr int kFieldWidth = kFields.FieldWidth();
  constexpr int kNumberWidth = 80;
  constexpr int kBoxes = kMargin + 6 * kFieldRow + 4;
  constexpr int kScale = kBoxes + 3 * kRow + 6;
  constexpr FieldColumn kCustom{kScale + 20 + kFieldRow + 4, kLabelWidth};
  toolkit::ApplyLayout({
      {lblBevelInner, kFields.Label(0)},
      {BevelInner, kFields.Field(0, kFieldWidth)},
      {lblBevelOuter, kFields.Label(1)},
      {BevelOuter, kFields.Field(1, kFieldWidth)},
      {lblBevelWidth, kFields.Label(2)},
      {BevelWidth, kFields.Field(2, kNumberWidth)},
      {lblBorderWidth, kFields.Label(3)},
      {BorderWidth, kFields.Field(3, kNumberWidth)},
      {lblPulseSpace, kFields.Label(4)},
      {PulseSpace, kFields.Field(4, kNumberWidth)},
      {lblPulseWidth, kFields.Label(5)},
      {PulseWidth, kFields.Field(5, kNumberWidth)},
      {chkZeroBased, {kMargin, kBoxes, kWidth, kBoxHeight}},
      {chkScaleActive, {kMargin, kBoxes + kRow, kWidth, kBoxHeight}},
      {chk3dGraph, {kMargin, kBoxes + 2 * kRow, kWidth, kBoxHeight}},
      {lblScale, {kMargin, kScale, kWidth, kBoxHeight}},
      {ScaleCombo, {kMargin, kScale + 20, kWidth, kFieldHeight}},
      {lblCustomScale, kCustom.Label(0)},
      {CustomScale, kCustom.Field(0, kFieldWidth)},
  });
}

void GraphOthersPage::Localise(const language::Translation& say) {
  const std::vector<std::string> bevels =
      Texts(say, {text::Bevel0, text::Bevel1, text::Bevel2, text::Bevel3});
  BevelInner.SetItems(bevels);
  BevelOuter.SetItems(bevels);
  SayScales(say);
  Say(say, {
               {lblBevelInner, text::lblBevelInner},
               {BevelInner, {}, text::BevelInnerHint},
               {lblBevelOuter, text::lblBevelOuter},
               {BevelOuter, {}, text::BevelOuterHint},
               {lblBevelWidth, text::lblBevelWidth},
               {lblBorderWidth, text::lblBorderWidth},
               {lblPulseSpace, text::lblPulseSpace},
               {lblPulseWidth, text::lblPulseWidth},
               {chkZeroBased, text::chkZeroBased, text::chkZeroBasedHint},
               {chkScaleActive, text::chkScaleActive, text::chkScaleActiveHint},
               {chk3dGraph, text::chk3dGraph, text::chk3dGraphHint},
               {lblScale, text::lblScale},
               {ScaleCombo, {}, text::ScaleComboHint},
               {lblCustomScale, text::lblCustomScale},
           });
  for (toolkit::SpinEdit* spin :
       {&BevelWidth, &BorderWidth, &PulseSpace, &PulseWidth, &CustomScale}) {
    spin->SetHint(RangeOf(*spin, say));
  }
}

// The first and the last have a text in the user's language; the speeds are the same in all.
void GraphOthersPage::SayScales(const language::Translation& say) {
  std::vector<std::string> scales;
  for (const settings::ScaleChoice& choice : settings::kScaleChoices)
    scales.emplace_back(choice.text);
  scales[settings::kAutomaticScale] = say(text::S13);
  scales[settings::kCustomScale] = say(text::S14);
  if (scales != ScaleCombo.Items()) ScaleCombo.SetItems(scales);
}

// Both are read before either control changes, as the handler of each uses the other.
void GraphOthersPage::ReadScale() {
  SayScales(context_.language.Chosen());
  const std::int64_t index = context_.store.Read(setting::GraphScaleType);
  const std::int64_t speed = context_.store.Read(setting::SpeedLimit);
  CustomScale.SetValue(settings::ShownSpeed(speed));
  ShowChoice(ScaleCombo, index);
}

bool GraphOthersPage::CustomChosen() const {
  return ScaleCombo.ItemIndex() == static_cast<int>(settings::kCustomScale);
}

// The custom speed is stored with every choice, as it is shown: it outlasts a fixed one.
void GraphOthersPage::ScaleComboChange() {
  CustomScale.SetEnabled(CustomChosen());
  PushScale();
  context_.Save(setting::GraphScaleType, ScaleCombo.ItemIndex());
  context_.Save(setting::SpeedLimit, settings::StoredSpeed(CustomScale.Value()));
}

void GraphOthersPage::CustomScaleChange() {
  if (CustomChosen()) PushScale();
  context_.Save(setting::SpeedLimit, settings::StoredSpeed(CustomScale.Value()));
}

// While the settings are read, the graph takes what is stored, as at the start. The cap stays: who
// only looks at the settings changes nothing of what is counted.
void GraphOthersPage::PushScale() {
  const display::RunningMeter& meter = context_.meter;
  if (context_.IsReading()) {
    display::ApplyScale(settings::ReadScale(context_.store), meter.graph, nullptr);
  } else {
    display::ApplyScale(
        settings::ScaleOf(ScaleCombo.ItemIndex(), settings::LimitOfShownSpeed(CustomScale.Value())),
        meter.graph, &meter.SpeedCap);
  }
}

}  // namespace preferences
