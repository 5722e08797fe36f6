#include <cstdint>
#include <string>
#include <vector>

#include "preferences/page.h"
#include "settings/scale_choice.h"
#include "toolkit/controls/lists.h"

namespace preferences {
namespace {

namespace setting = settings::setting;
namespace text = language::text::SettingsForm;

constexpr Items kBevels{"Bevel"};
// These ranges are in design pixels.
constexpr Range kFrame{0, 20};
constexpr Range kGap{0, 50};
constexpr Range kPulse{1, 50};

// This range is in bits per second.
constexpr Range kSpeed{1024, 2100000000, 1024};

constexpr int kLabelWidth = 230;
constexpr int kNumberWidth = 80;

// The page of the graph's frame, bars and scale.
class GraphOthersPage final : public Page {
 public:
  GraphOthersPage(toolkit::Notebook& notebook, Context& context)
      : Page(notebook, "GraphOthers", context) {
    constexpr FieldColumn kFields{kMargin, kLabelWidth};
    constexpr int kBoxes = kFields.Top(6) + 4;
    Add(ReadStep::kBevels, {
                               {BevelInner, kFields.At(0), setting::BevelInner, kBevels},
                               {BevelOuter, kFields.At(1), setting::BevelOuter, kBevels},
                           });
    Add(ReadStep::kGraphOther,
        {
            {BevelWidth, kFields.At(2, kNumberWidth), setting::BevelWidth, kFrame},
            {BorderWidth, kFields.At(3, kNumberWidth), setting::BorderWidth, kFrame},
            {chkZeroBased, Line(kBoxes), setting::ZeroBased},
            {chkScaleActive, Line(kBoxes + kRow), setting::ScaleShow},
            {chk3dGraph, Line(kBoxes + 2 * kRow), setting::Pulse3D},
            {PulseSpace, kFields.At(4, kNumberWidth), setting::PulseSpace, kGap},
            {PulseWidth, kFields.At(5, kNumberWidth), setting::PulseWidth, kPulse},
        });
    AddScale(kBoxes + 3 * kRow + 6);
  }

  void Localise(const language::Translation& say) override {
    Page::Localise(say);
    SayScales(say);
  }

 private:
  void AddScale(int top) {
    Add({
        {ScaleCombo, Below(top, {kMargin, top + 20, kWidth, kFieldHeight})},
        {CustomScale, FieldColumn{top + 20 + kFieldRow + 4, kLabelWidth}.At(0), kSpeed},
    });
    Add(ReadStep::kScale, [this] { ReadScale(); });
    CustomScale.SetEnabled(false);
    ScaleCombo.OnChange = [this] { ScaleComboChange(); };
    CustomScale.OnChange = [this] { CustomScaleChange(); };
  }

  // The first and the last scale have a text in the user's language; the speeds are the same in all
  // languages.
  void SayScales(const language::Translation& say) {
    std::vector<std::string> scales;
    for (const settings::ScaleChoice& choice : settings::kScaleChoices)
      scales.emplace_back(choice.text);
    scales[settings::kAutomaticScale] = say(text::S13);
    scales[settings::kCustomScale] = say(text::S14);
    if (scales != ScaleCombo.Items()) ScaleCombo.SetItems(scales);
  }

  // Both values are read before either control changes, since the handler of each control uses the
  // other one.
  void ReadScale() {
    const std::int64_t index = context_.store.Read(setting::GraphScaleType);
    const std::int64_t speed = context_.store.Read(setting::SpeedLimit);
    CustomScale.SetValue(settings::ShownSpeed(speed));
    ShowIn(ScaleCombo, index);
  }

  [[nodiscard]] bool CustomChosen() const {
    return ScaleCombo.ItemIndex() == static_cast<int>(settings::kCustomScale);
  }

  // The shown custom speed is stored with every choice, so that it outlasts the choice of a fixed
  // one.
  void ScaleComboChange() {
    CustomScale.SetEnabled(CustomChosen());
    PushScale();
    context_.Change(setting::GraphScaleType, ScaleCombo.ItemIndex());
    context_.Change(setting::SpeedLimit, settings::StoredSpeed(CustomScale.Value()));
  }

  void CustomScaleChange() {
    if (CustomChosen()) PushScale();
    context_.Change(setting::SpeedLimit, settings::StoredSpeed(CustomScale.Value()));
  }

  // While the settings are read, the graph takes what is stored, as at the start. The cap stays:
  // opening the preferences must not change what is counted.
  void PushScale() {
    using Cap = display::OptionTable::Cap;
    display::OptionTable& options = context_.meter.options;
    if (context_.IsReading()) {
      options.TakeScale(settings::ReadScale(context_.store), Cap::kStays);
    } else {
      const std::int64_t custom = settings::LimitOfShownSpeed(CustomScale.Value());
      options.TakeScale(settings::ScaleOf(ScaleCombo.ItemIndex(), custom), Cap::kFollows);
    }
  }

  Labelled<toolkit::ComboBox> BevelInner{*this, "BevelInner"};
  Labelled<toolkit::ComboBox> BevelOuter{*this, "BevelOuter"};
  Labelled<toolkit::SpinEdit> BevelWidth{*this, "BevelWidth"};
  Labelled<toolkit::SpinEdit> BorderWidth{*this, "BorderWidth"};
  Labelled<toolkit::SpinEdit> PulseSpace{*this, "PulseSpace"};
  Labelled<toolkit::SpinEdit> PulseWidth{*this, "PulseWidth"};
  toolkit::CheckBox chkZeroBased{*this, "chkZeroBased"};
  toolkit::CheckBox chkScaleActive{*this, "chkScaleActive"};
  toolkit::CheckBox chk3dGraph{*this, "chk3dGraph"};
  Labelled<toolkit::ComboBox> ScaleCombo{*this, "lblScale", "ScaleCombo"};
  Labelled<toolkit::SpinEdit> CustomScale{*this, "CustomScale"};
};

}  // namespace

std::unique_ptr<Page> MakeGraphOthersPage(toolkit::Notebook& notebook, Context& context) {
  return std::make_unique<GraphOthersPage>(notebook, context);
}

}  // namespace preferences
