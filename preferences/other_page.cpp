#include <string>

#include "preferences/page.h"

namespace preferences {
namespace {

namespace setting = settings::setting;
namespace text = language::text::SettingsForm;

constexpr int kOpaque = 255;  // position of the track bar

// The page of the keyboard lights, the transparency and the exit.
class OtherPage final : public Page {
 public:
  OtherPage(toolkit::Notebook& notebook, Context& context) : Page(notebook, "Other", context) {
    constexpr int kLabelWidth = 264;
    constexpr Place kLimit = LabelAndField(kMargin, kGroupTop + 2 * kRow + 2, kLabelWidth,
                                           kGroupWidth - kLabelWidth - kMargin);
    constexpr int kLedsHeight = kGroupTop + 2 * kRow + kFieldRow + 6;
    constexpr int kTransparencyTop = kMargin + kLedsHeight + kMargin;
    constexpr int kTransparencyHeight = kGroupTop + 2 * kRow + 32 + kRow + 6;
    constexpr int kExitTop = kTransparencyTop + kTransparencyHeight + kMargin;
    Add(ReadStep::kTransparency,
        {
            {grpTransparency, {kMargin, kTransparencyTop, kWidth, kTransparencyHeight}},
            {AutoTransparentONOFF, GroupLine(0), setting::AutoTransparentONOFF},
            {Win2kTransTrack,
             {{kMargin, GroupLine(2).control.top, kGroupWidth, 30}, GroupLine(1).control},
             setting::Win2kTransparentRatio,
             Range{0, kOpaque, 16},
             [this] { ShowOpacity(); }},
        });
    Add(ReadStep::kTransparency, [this] { ShowOpacity(); });
    context.meter.options.Parts().transparency.OnToggled = [this] { ShowOpacity(); };
    Add(ReadStep::kExitAndFade, {
                                    {grpExit, {kMargin, kExitTop, kWidth, kGroupTop + kRow + 3}},
                                    {AskOnExit, GroupLine(0), setting::AskOnExit},
                                    {TransparentFade, Line(kGroupTop + 2 * kRow + 34, kGroupWidth),
                                     setting::TransparentFade},
                                });
    Add(ReadStep::kLeds, {
                             {grpKeyboardLeds, {kMargin, kMargin, kWidth, kLedsHeight}},
                             {DLSwitchScr, GroupLine(0), setting::DLSwitchScr},
                             {ULSwitchNum, GroupLine(1), setting::ULSwitchNum},
                             {spnKeyLedsLimit, kLimit, setting::spnKeyLedsLimit, Steps{1000}},
                         });
  }

  void Localise(const language::Translation& say) override {
    Page::Localise(say);
    ShowOpacity();
  }

 private:
  // Shows the per cent behind the label, and in the hint whether they count at all.
  void ShowOpacity() {
    const language::Translation say = context_.language.Chosen();
    const int percent = (Win2kTransTrack.Position() * 100 + kOpaque / 2) / kOpaque;
    Win2kTransTrack.label.SetCaption(say(text::lblWin2kTransTrack) + ' ' + std::to_string(percent) +
                                     " %");
    namespace menu = language::text::MainForm;
    const std::string entry = say(menu::GraphDisplayOptions1) + " > " + say(menu::Transparent1) +
                              " > " + say(menu::mnuTransparent2k);
    Win2kTransTrack.SetHint(context_.store.Read(setting::Transparent2k)
                                ? say(text::Win2kTransTrackHint)
                                : say(text::Win2kTransTrackOffHint, {entry}));
  }

  toolkit::GroupBox grpKeyboardLeds{*this, "grpKeyboardLeds"};
  toolkit::CheckBox DLSwitchScr{grpKeyboardLeds, "DLSwitchScr"};
  toolkit::CheckBox ULSwitchNum{grpKeyboardLeds, "ULSwitchNum"};
  Labelled<toolkit::SpinEdit> spnKeyLedsLimit{grpKeyboardLeds, "lblKeyLedsLimit",
                                              "spnKeyLedsLimit"};
  toolkit::GroupBox grpTransparency{*this, "grpTransparency"};
  toolkit::CheckBox AutoTransparentONOFF{grpTransparency, "AutoTransparentONOFF"};
  Labelled<toolkit::TrackBar> Win2kTransTrack{grpTransparency, "Win2kTransTrack"};
  toolkit::CheckBox TransparentFade{grpTransparency, "TransparentFade"};
  toolkit::GroupBox grpExit{*this, "grpExit"};
  toolkit::CheckBox AskOnExit{grpExit, "AskOnExit"};
};

}  // namespace

std::unique_ptr<Page> MakeOtherPage(toolkit::Notebook& notebook, Context& context) {
  return std::make_unique<OtherPage>(notebook, context);
}

}  // namespace preferences
