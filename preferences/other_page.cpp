#include "preferences/other_page.h"

#include <cstdint>
#include <limits>
#include <string>

namespace preferences {
namespace {

namespace setting = settings::setting;
namespace text = language::text::SettingsForm;

constexpr int kOpacityPage = 16;
// No bounds but those of what is stored.
constexpr Range kLedsLimit{std::numeric_limits<std::int32_t>::min(),
                           std::numeric_limits<std::int32_t>::max(), 1000};

}  // namespace

OtherPage::OtherPage(toolkit::Notebook& notebook, Context& context)
    : Page(notebook, "Other", context) {
  constexpr int kLabelWidth = 264;
  constexpr int kLedsHeight = kGroupTop + 2 * kRow + kFieldRow + 6;
  constexpr int kTransparencyTop = kMargin + kLedsHeight + kMargin;
  constexpr int kTransparencyHeight = kGroupTop + 2 * kRow + 32 + kRow + 6;
  constexpr int kExitTop = kTransparencyTop + kTransparencyHeight + kMargin;
  Add(ReadStep::kTransparency,
      {
          {grpTransparency, {kMargin, kTransparencyTop, kWidth, kTransparencyHeight}},
          {AutoTransparentONOFF, GroupLine(0), setting::AutoTransparentONOFF},
          {Win2kTransTrack,
           {{kMargin, kGroupTop + 2 * kRow, kGroupWidth, 30}, GroupLine(1).control},
           setting::Win2kTransparentRatio,
           Range{0, 255, kOpacityPage}},
      });
  Add(ReadStep::kExitAndFade,
      {
          {grpExit, {kMargin, kExitTop, kWidth, kGroupTop + kRow + 3}},
          {AskOnExit, GroupLine(0), setting::AskOnExit},
          {TransparentFade, Line(kGroupTop + 2 * kRow + 34, kGroupWidth), setting::TransparentFade},
      });
  Add(ReadStep::kLeds, {
                           {grpKeyboardLeds, {kMargin, kMargin, kWidth, kLedsHeight}},
                           {DLSwitchScr, GroupLine(0), setting::DLSwitchScr},
                           {ULSwitchNum, GroupLine(1), setting::ULSwitchNum},
                           {spnKeyLedsLimit,
                            {{2 * kMargin + kLabelWidth, kGroupTop + 2 * kRow + 2,
                              kGroupWidth - kLabelWidth - kMargin, kFieldHeight},
                             {kMargin, kGroupTop + 2 * kRow + 4, kLabelWidth, kBoxHeight}},
                            setting::spnKeyLedsLimit,
                            kLedsLimit},
                       });
}

void OtherPage::Localise(const language::Translation& say) {
  Page::Localise(say);
  spnKeyLedsLimit.SetHint(say(text::StepHint, {std::to_string(kLedsLimit.step)}));
}

}  // namespace preferences
