#include "display/display_settings.h"

namespace display {
namespace {

namespace setting = settings::setting;

}  // namespace

toolkit::BevelCut BevelOf(std::int64_t stored, toolkit::BevelCut present) {
  switch (stored) {
    case 0:
      return toolkit::BevelCut::kRaised;
    case 1:
      return toolkit::BevelCut::kNone;
    case 2:
      return toolkit::BevelCut::kLowered;
    case 3:
      return toolkit::BevelCut::kSpace;
    default:
      return present;
  }
}

ScaleUnits UnitsOf(std::int64_t stored) {
  return stored == 0 ? ScaleUnits::kKBytes : ScaleUnits::kKBits;
}

void ApplyGraphAppearance(settings::Store& store, TKxInterMeter& meter) {
  meter.BevelInner = BevelOf(store.Read(setting::BevelInner), meter.BevelInner);
  meter.BevelOuter = BevelOf(store.Read(setting::BevelOuter), meter.BevelOuter);
  meter.InColor = store.Read(setting::GraphColor_Download);
  meter.InLight = store.Read(setting::GraphColor_DownloadLight);
  meter.InShadow = store.Read(setting::GraphColor_DownloadShadow);
  meter.OutColor = store.Read(setting::GraphColor_Upload);
  meter.OutLight = store.Read(setting::GraphColor_UploadLight);
  meter.OutShadow = store.Read(setting::GraphColor_UploadShadow);
  meter.DisplayColor = store.Read(setting::GraphColor_Background);
  meter.BorderColor = store.Read(setting::GraphColor_Border);
  meter.BevelWidth = store.Read(setting::BevelWidth);
  meter.BorderWidth = store.Read(setting::BorderWidth);
  meter.ZeroBased = store.Read(setting::ZeroBased);
  meter.ScaleShow = store.Read(setting::ScaleShow);
  meter.Pulse3D = store.Read(setting::Pulse3D);
  meter.PulseSpace = store.Read(setting::PulseSpace);
  meter.PulseWidth = store.Read(setting::PulseWidth);
  meter.ScaleUnits = UnitsOf(store.Read(setting::ScaleUnit));
}

void ApplyHints(settings::Store& store, toolkit::HintWindow& hints) {
  ShowHints(hints, store.Read(setting::ShowHints));
}

void ShowHints(toolkit::HintWindow& hints, bool shown) {
  // Switched off, hints would come after a day and stay for no time: they never show.
  hints.Pause = shown ? 0 : 100000000;
  hints.HidePause = shown ? 1000000000 : 0;
  hints.Colour = platform::colour::kWhite;
}

void ApplyScale(const std::optional<settings::AppliedScale>& scale, TKxInterMeter& meter,
                std::int64_t* SpeedCap) {
  if (!scale) return;
  meter.AutoScale = scale->AutoScale;
  meter.SpeedLimit = scale->SpeedLimit;
  if (SpeedCap != nullptr) *SpeedCap = scale->SpeedCap;
}

void ApplyLabelAppearance(settings::Store& store, toolkit::Label& label) {
  label.SetColour(store.Read(setting::GraphColor_FontBackground));
  label.SetFontColour(store.Read(setting::GraphColor_Font));
  platform::FontSpec font = label.Font();
  font.face = store.Read(setting::FontName);
  label.SetFont(font);
}

}  // namespace display
