#include "preferences/other_page.h"

#include <limits>

#include "toolkit/controls/layout.h"

namespace preferences {
namespace {

namespace setting = settings::setting;
namespace text = language::text::SettingsForm;

using Meter = display::RunningMeter;

constexpr int kOpaque = 255;
constexpr int kOpacityPage = 16;
constexpr std::int64_t kLedStep = 1000;

}  // namespace

OtherPage::OtherPage(toolkit::Notebook& notebook, Context& context)
    : Page(notebook, "Other", context),
      grpKeyboardLeds(*this, "grpKeyboardLeds"),
      DLSwitchScr(grpKeyboardLeds, "DLSwitchScr"),
      ULSwitchNum(grpKeyboardLeds, "ULSwitchNum"),
      lblKeyLedsLimit(grpKeyboardLeds, "lblKeyLedsLimit", toolkit::kCaptionText),
      spnKeyLedsLimit(grpKeyboardLeds, "spnKeyLedsLimit"),
      grpTransparency(*this, "grpTransparency"),
      AutoTransparentONOFF(grpTransparency, "AutoTransparentONOFF"),
      lblWin2kTransTrack(grpTransparency, "lblWin2kTransTrack", toolkit::kCaptionText),
      Win2kTransTrack(grpTransparency, "Win2kTransTrack"),
      TransparentFade(grpTransparency, "TransparentFade"),
      grpExit(*this, "grpExit"),
      AskOnExit(grpExit, "AskOnExit"),
      transparency_(context),
      exit_and_fade_(context),
      leds_(context) {
  PlaceControls();
  // No bounds but those of what is stored.
  spnKeyLedsLimit.SetRange(std::numeric_limits<std::int32_t>::min(),
                           std::numeric_limits<std::int32_t>::max(), kLedStep);
  Win2kTransTrack.SetRange(0, kOpaque, kOpacityPage);
  transparency_.Connect({
      {AutoTransparentONOFF, setting::AutoTransparentONOFF,
       [](const Meter& m, bool on) { m.transparency.ChangeAutomatic(on); }},
      {Win2kTransTrack, setting::Win2kTransparentRatio,
       [](const Meter& m, std::int64_t ratio) { m.transparency.ChangeRatio(ratio); }},
  });
  exit_and_fade_.Connect({
      {AskOnExit, setting::AskOnExit},
      {TransparentFade, setting::TransparentFade},
  });
  leds_.Connect({
      {DLSwitchScr, setting::DLSwitchScr},
      {ULSwitchNum, setting::ULSwitchNum},
      {spnKeyLedsLimit, setting::spnKeyLedsLimit},
  });
}

void OtherPage::PlaceControls() {
  constexpr int kLabelWidth = 264;
  constexpr int kLedsHeight = kGroupTop + 2 * kRow + kFieldRow + 6;
  constexpr int kTransparencyTop = kMargin + kLedsHeight + kMargin;
  constexpr int kTransparencyHeight = kGroupTop + 2 * kRow + 32 + kRow + 6;
  constexpr int kExitTop = kTransparencyTop + kTransparencyHeight + kMargin;
  toolkit::ApplyLayout({
      {grpKeyboardLeds, {kMargin, kMargin, kWidth, kLedsHeight}},
      {DLSwitchScr, {kMargin, kGroupTop, kGroupWidth, kBoxHeight}},
      {ULSwitchNum, {kMargin, kGroupTop + kRow, kGroupWidth, kBoxHeight}},
      {lblKeyLedsLimit, {kMargin, kGroupTop + 2 * kRow + 4, kLabelWidth, kBoxHeight}},
      {spnKeyLedsLimit,
       {2 * kMargin + kLabelWidth, kGroupTop + 2 * kRow + 2, kGroupWidth - kLabelWidth - kMargin,
        kFieldHeight}},
      {grpTransparency, {kMargin, kTransparencyTop, kWidth, kTransparencyHeight}},
      {AutoTransparentONOFF, {kMargin, kGroupTop, kGroupWidth, kBoxHeight}},
      {lblWin2kTransTrack, {kMargin, kGroupTop + kRow, kGroupWidth, kBoxHeight}},
      {Win2kTransTrack, {kMargin, kGroupTop + 2 * kRow, kGroupWidth, 30}},
      {TransparentFade, {kMargin, kGroupTop + 2 * kRow + 34, kGroupWidth, kBoxHeight}},
      {grpExit, {kMargin, kExitTop, kWidth, kGroupTop + kRow + 3}},
      {AskOnExit, {kMargin, kGroupTop, kGroupWidth, kBoxHeight}},
  });
}

void OtherPage::Localise(const language::Translation& say) {
  Say(say, {
               {grpKeyboardLeds, text::grpKeyboardLeds},
               {DLSwitchScr, text::DLSwitchScr, text::DLSwitchScrHint},
               {ULSwitchNum, text::ULSwitchNum, text::ULSwitchNumHint},
               {lblKeyLedsLimit, text::lblKeyLedsLimit},
               {grpTransparency, text::grpTransparency},
               {AutoTransparentONOFF, text::AutoTransparentONOFF, text::AutoTransparentONOFFHint},
               {lblWin2kTransTrack, text::lblWin2kTransTrack},
               {Win2kTransTrack, {}, text::Win2kTransTrackHint},
               {TransparentFade, text::TransparentFade, text::TransparentFadeHint},
               {grpExit, text::grpExit},
               {AskOnExit, text::AskOnExit, text::AskOnExitHint},
           });
  spnKeyLedsLimit.SetHint(say(text::StepHint, {std::to_string(spnKeyLedsLimit.StepSize())}));
}

}  // namespace preferences
