#include "display/option_table.h"

#include <functional>
#include <iterator>
#include <utility>
#include <vector>

#include "display/unit_BrisantoMain.h"
#include "settings/autostart.h"
#include "toolkit/application.h"

namespace display {
namespace {

namespace setting = settings::setting;

using Meter = const MeterParts&;
using platform::Colour;

// The moment at which a changed value takes effect.
enum class On {
  kChoice,   // before the value is stored
  kStorage,  // after the value is stored: for parts that read the store when they are shown
  kStart,    // only at the next start
};

// `of` is a constant of the schema, so that a row refers to it.
struct Row {
  template <class Setting, class Effect>
  Row(const Setting& of, Effect effect, On when = On::kChoice)
      : name(of.name),
        when(when),
        read([&of](settings::Store& store) -> OptionValue { return store.Read(of); }) {
    using Value = decltype(std::declval<settings::Store>().Read(of));
    take = [effect](Meter m, const OptionValue& value) { effect(m, std::get<Value>(value)); };
  }
  // Makes the row of a property of the graph.
  template <class Setting, class Owner, class Value>
  Row(const Setting& of, Value Owner::*property)
      : Row(of,
            [property](Meter m, auto value) { m.graph.Set(property, static_cast<Value>(value)); }) {
  }

  std::string_view name;
  On when;
  std::function<OptionValue(settings::Store& store)> read;
  std::function<void(Meter m, const OptionValue& value)> take;
};

// An index that the list does not have keeps the present bevel.
Row Bevel(const settings::IntegerSetting& of, toolkit::BevelCut GraphLook::*property) {
  return {of, [property](Meter m, std::int64_t index) {
            using toolkit::BevelCut;
            static constexpr BevelCut kCuts[] = {BevelCut::kRaised, BevelCut::kNone,
                                                 BevelCut::kLowered, BevelCut::kSpace};
            if (index < 0 || index >= std::ssize(kCuts)) return;
            m.graph.Set(property, kCuts[static_cast<std::size_t>(index)]);
          }};
}

ScaleUnits UnitsOf(std::int64_t index) {
  return index == 0 ? ScaleUnits::kKBytes : ScaleUnits::kKBits;
}

void TakeUnits(Meter m, std::int64_t index) { m.graph.Set(&GraphLook::ScaleUnits, UnitsOf(index)); }

// Without this, the line would show amounts in the old unit until the next scan.
void ChangeUnits(Meter m, std::int64_t index) {
  if (m.graph.Look().ScaleUnits == UnitsOf(index)) return;
  TakeUnits(m, index);
  m.line.ShowUnit(index != 0);
  m.window.LineChanged();
}

// When hints are off, their delay is a day and their duration is zero, so that they never show.
void ShowHints(Meter m, bool shown) {
  m.hints.Pause = shown ? 0 : 100000000;
  m.hints.HidePause = shown ? 1000000000 : 0;
  m.hints.Colour = platform::colour::kWhite;
}

void TakeFont(Meter m, const std::string& face) {
  platform::FontStyle font = m.label.Font();  // its size follows the width of the window
  font.face = face;
  m.label.SetFont(font);
}

Row LineMode(const settings::BooleanSetting& mode) {
  return {mode, [&mode](Meter m, bool on) {
            m.line.ShowMode(mode, on);
            m.window.LineChanged();
          }};
}

// The lines are read when they are drawn; the graph only has to be drawn anew.
template <class Setting>
Row Grid(const Setting& of) {
  return {of, [](Meter m, const auto& /*value*/) { m.graph.Refresh(); }, On::kStorage};
}

void TakeScaleOf(Meter m, const std::optional<settings::AppliedScale>& scale,
                 OptionTable::Cap cap) {
  if (!scale) return;
  m.graph.Set(&GraphLook::AutoScale, scale->AutoScale);
  m.graph.Set(&GraphLook::SpeedLimit, scale->SpeedLimit);
  if (cap == OptionTable::Cap::kFollows) m.SpeedCap = scale->SpeedCap;
}

void TakeStoredScale(Meter m, std::int64_t /*index*/) {
  TakeScaleOf(m, settings::ReadScale(m.store), OptionTable::Cap::kFollows);
}

void LoadPictures(Meter m, bool on) {
  if (on) m.tray.LoadPictures();
}

// The options that the meter takes over from the store, in this order.
const std::vector<Row>& StoredRows() {
  static const std::vector<Row> kRows = {
      {setting::StartIconMode, LoadPictures, On::kStart},
      Bevel(setting::BevelInner, &GraphLook::BevelInner),
      Bevel(setting::BevelOuter, &GraphLook::BevelOuter),
      {setting::GraphColor_Download, &GraphLook::InColor},
      {setting::GraphColor_DownloadLight, &GraphLook::InLight},
      {setting::GraphColor_DownloadShadow, &GraphLook::InShadow},
      {setting::GraphColor_Upload, &GraphLook::OutColor},
      {setting::GraphColor_UploadLight, &GraphLook::OutLight},
      {setting::GraphColor_UploadShadow, &GraphLook::OutShadow},
      {setting::GraphColor_Background, &GraphLook::DisplayColor},
      {setting::GraphColor_Border, &GraphLook::BorderColor},
      {setting::FormMagnet, [](Meter m, bool on) { m.magnet.Active = on; }},
      {setting::BevelWidth, &GraphLook::BevelWidth},
      {setting::BorderWidth, &GraphLook::BorderWidth},
      {setting::ZeroBased, &GraphLook::ZeroBased},
      {setting::ScaleShow, &GraphLook::ScaleShow},
      {setting::Pulse3D, &GraphLook::Pulse3D},
      {setting::PulseSpace, &GraphLook::PulseSpace},
      {setting::PulseWidth, &GraphLook::PulseWidth},
      {setting::ScaleUnit, TakeUnits, On::kStart},
      {setting::ShowHints, ShowHints},
      {setting::GraphScaleType, TakeStoredScale, On::kStart},
      {setting::GraphColor_FontBackground, [](Meter m, Colour c) { m.label.SetColour(c); }},
      {setting::GraphColor_Font, [](Meter m, Colour c) { m.label.SetFontColour(c); }},
      {setting::FontName, TakeFont},
      {setting::AvarageTime, [](Meter m, std::int64_t scans) { m.line.SetAveragePeriod(scans); }},
  };
  return kRows;
}

// The options that take effect only when the user, or another program, has chosen another value.
const std::vector<Row>& ChosenRows() {
  static const std::vector<Row> kRows = {
      {setting::ScaleUnit, ChangeUnits},
      Grid(setting::vGridVisible),
      Grid(setting::cmbVLineStyle),
      Grid(setting::vLineSpace),
      Grid(setting::vLineColor),
      Grid(setting::hGridVisible),
      Grid(setting::cmbHLineStyle),
      Grid(setting::hLineSpace),
      Grid(setting::hLineColor),
      LineMode(setting::SOM1),
      LineMode(setting::SOM2),
      LineMode(setting::SOM3),
      {setting::IconType, [](Meter m, std::int64_t kind) { m.tray.ChangeKind(kind); }},
      {setting::TrayIconFile,
       [](Meter m, const std::string& path) { m.tray.ChangePictures(path); }},
      {setting::GraphColor_HistogramReceiving,
       [](Meter m, Colour c) {
         m.tray.ChangeColours(c, m.store.Read(setting::GraphColor_HistogramSend));
       }},
      {setting::GraphColor_HistogramSend,
       [](Meter m, Colour c) {
         m.tray.ChangeColours(m.store.Read(setting::GraphColor_HistogramReceiving), c);
       }},
      {setting::AutoTransparentONOFF, [](Meter m, bool on) { m.transparency.ChangeAutomatic(on); }},
      {setting::Win2kTransparentRatio,
       [](Meter m, std::int64_t ratio) { m.transparency.ChangeRatio(ratio); }},
      // A tick of this option takes effect at the next scan, which starts the timer.
      {setting::NotificationsActive,
       [](Meter m, bool on) {
         if (!on) m.notifications.TimeOutTimer.SetEnabled(false);
       }},
      {setting::AutoStart,
       [](Meter m, bool on) {
         settings::StartWithWindows(m.store, m.window.App().Platform().files.ProgramPath(), on);
       }},
  };
  return kRows;
}

}  // namespace

void OptionTable::ApplyStored(ScaleTaken scale) {
  for (const Row& row : StoredRows()) {
    const bool is_scale = row.name == setting::GraphScaleType.name;
    if (!is_scale || scale == ScaleTaken::kFromStore) row.take(parts_, row.read(parts_.store));
  }
}

void OptionTable::TakeScale(const std::optional<settings::AppliedScale>& scale, Cap cap) {
  TakeScaleOf(parts_, scale, cap);
}

void OptionTable::Run(std::string_view name, Moment moment, const OptionValue& value) {
  const On wanted = moment == Moment::kChosen ? On::kChoice : On::kStorage;
  for (const std::vector<Row>* rows : {&StoredRows(), &ChosenRows()}) {
    for (const Row& row : *rows) {
      if (row.name == name && row.when == wanted) row.take(parts_, value);
    }
  }
}

}  // namespace display
