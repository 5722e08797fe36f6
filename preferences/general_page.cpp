#include <string>
#include <vector>

#include "preferences/page.h"
#include "toolkit/controls/lists.h"

namespace preferences {
namespace {

namespace setting = settings::setting;

// The page of the options that have no page of their own.
class GeneralPage final : public Page {
 public:
  GeneralPage(toolkit::Notebook& notebook, Context& context) : Page(notebook, "General", context) {
    constexpr int kNumberWidth = 72;
    constexpr int kAverage = kMargin + 5 * kRow + kMargin;
    constexpr int kLanguage = kAverage + 3 * kRow + kMargin;
    constexpr platform::Rect kBar{kMargin, kAverage + kRow, kWidth - kNumberWidth - kMargin, 30};
    constexpr Place kNumber{kBar.Right() + kMargin, kBar.top + 4, kNumberWidth, kBoxHeight};
    constexpr Range kScans{1, 60, 5};
    const auto changed = [this] { AvarageTrackBarChange(); };
    Add(ReadStep::kGeneral,
        {
            {chkScreenDocking, Line(kMargin), setting::FormMagnet},
            {chkStartIconMode, Line(kMargin + kRow), setting::StartIconMode},
            {chkShowHints, Line(kMargin + 2 * kRow), setting::ShowHints},
            {chkLoadOnWindows, Line(kMargin + 3 * kRow), setting::AutoStart},
            {chkCopyIP, Line(kMargin + 4 * kRow), setting::CopyIP},
            {AvarageTrackBar, Below(kAverage, kBar), setting::AvarageTime, kScans, changed},
            {lblAvarageTime, kNumber},
            {cmbLanguage, Below(kLanguage, {kMargin, kLanguage + 20, 200, kFieldHeight})},
        });
    Add(ReadStep::kGeneral, [this] { ReadOthers(); });
    cmbLanguage.OnChange = [this] { LanguageChange(); };
    cmbLanguage.OnChosenAgain = cmbLanguage.OnChange;  // the language's file may have changed
  }

 private:
  void AvarageTrackBarChange() {
    lblAvarageTime.SetCaption(std::to_string(AvarageTrackBar.Position()));
  }

  void ReadOthers() {
    // The label also shows a stored number beyond the ends of the bar.
    lblAvarageTime.SetCaption(std::to_string(context_.store.Read(setting::AvarageTime)));
    languages_ = context_.language.Names();
    std::vector<std::string> own_names;
    for (const std::string& name : languages_) {
      own_names.push_back(context_.language.OwnName(name));
    }
    cmbLanguage.SetItems(own_names);
    cmbLanguage.SetItemIndex(static_cast<int>(context_.language.IndexIn(languages_)));
  }

  // The choice is stored first, since texts are looked up by the stored language.
  void LanguageChange() {
    const int index = cmbLanguage.ItemIndex();
    if (context_.IsReading() || index < 0) return;
    context_.language.Choose(languages_[static_cast<std::size_t>(index)]);
    App().LanguageChanged();
  }

  toolkit::CheckBox chkScreenDocking{*this, "chkScreenDocking"};
  toolkit::CheckBox chkStartIconMode{*this, "chkStartIconMode"};
  toolkit::CheckBox chkShowHints{*this, "chkShowHints"};
  toolkit::CheckBox chkLoadOnWindows{*this, "chkLoadOnWindows"};
  toolkit::CheckBox chkCopyIP{*this, "chkCopyIP"};
  Labelled<toolkit::TrackBar> AvarageTrackBar{*this, "lblAvarage", "AvarageTrackBar"};
  toolkit::Label lblAvarageTime{*this, "lblAvarageTime", {}};  // the number that the bar stands for
  Labelled<toolkit::ComboBox> cmbLanguage{*this, "lblLanguage", "cmbLanguage"};

  std::vector<std::string> languages_;  // the files of the list, row by row
};

}  // namespace

std::unique_ptr<Page> MakeGeneralPage(toolkit::Notebook& notebook, Context& context) {
  return std::make_unique<GeneralPage>(notebook, context);
}

}  // namespace preferences
