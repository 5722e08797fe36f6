#include "preferences/general_page.h"

namespace preferences {
namespace {

namespace setting = settings::setting;

constexpr int kLongestAverage = 60;  // scans
constexpr int kAveragePage = 5;

}  // namespace

GeneralPage::GeneralPage(toolkit::Notebook& notebook, Context& context)
    : Page(notebook, "General", context) {
  constexpr int kAverage = kMargin + 5 * kRow + kMargin;
  constexpr int kLanguage = kAverage + 3 * kRow + kMargin;
  constexpr int kNumberWidth = 72;
  Add(ReadStep::kGeneral,
      {
          {chkScreenDocking, Line(kMargin), setting::FormMagnet},
          {chkStartIconMode, Line(kMargin + kRow), setting::StartIconMode},
          {chkShowHints, Line(kMargin + 2 * kRow), setting::ShowHints},
          {chkLoadOnWindows, Line(kMargin + 3 * kRow), setting::AutoStart},
          {chkCopyIP, Line(kMargin + 4 * kRow), setting::CopyIP},
          {AvarageTrackBar,
           {{kMargin, kAverage + kRow, kWidth - kNumberWidth - kMargin, 30},
            Line(kAverage).control},
           setting::AvarageTime,
           Range{1, kLongestAverage, kAveragePage},
           [this] { AvarageTrackBarChange(); }},
          {lblAvarageTime,
           {kPageWidth - kMargin - kNumberWidth, kAverage + kRow + 4, kNumberWidth, kBoxHeight}},
          {cmbLanguage, {{kMargin, kLanguage + 20, 200, kFieldHeight}, Line(kLanguage).control}},
      });
  Add(ReadStep::kGeneral, [this] {
    // A number beyond the ends of the bar too.
    lblAvarageTime.SetCaption(std::to_string(context_.store.Read(setting::AvarageTime)));
    ReadLanguages();
  });
  cmbLanguage.OnChange = [this] { LanguageChange(); };
}

void GeneralPage::AvarageTrackBarChange() {
  lblAvarageTime.SetCaption(std::to_string(AvarageTrackBar.Position()));
}

void GeneralPage::ReadLanguages() {
  languages_ = context_.language.Names();
  cmbLanguage.SetItems(languages_);
  cmbLanguage.SetItemIndex(static_cast<int>(context_.language.IndexIn(languages_)));
}

// Stored first, as the texts are looked up by what is stored.
void GeneralPage::LanguageChange() {
  const int index = cmbLanguage.ItemIndex();
  if (context_.IsReading() || index < 0) return;
  context_.language.Choose(languages_[static_cast<std::size_t>(index)]);
  App().LanguageChanged();
}

}  // namespace preferences
