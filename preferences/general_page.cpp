#include "preferences/general_page.h"

#include "display/display_settings.h"
#include "settings/autostart.h"
#include "toolkit/controls/layout.h"

namespace preferences {
namespace {

namespace setting = settings::setting;
namespace text = language::text::SettingsForm;

using Meter = display::RunningMeter;

constexpr int kLongestAverage = 60;  // scans
constexpr int kAveragePage = 5;
constexpr platform::TextStyle kNumber{};

}  // namespace

GeneralPage::GeneralPage(toolkit::Notebook& notebook, Context& context)
    : Page(notebook, "General", context),
      chkScreenDocking(*this, "chkScreenDocking"),
      chkStartIconMode(*this, "chkStartIconMode"),
      chkShowHints(*this, "chkShowHints"),
      chkLoadOnWindows(*this, "chkLoadOnWindows"),
      chkCopyIP(*this, "chkCopyIP"),
      lblAvarage(*this, "lblAvarage", toolkit::kCaptionText),
      AvarageTrackBar(*this, "AvarageTrackBar"),
      lblAvarageTime(*this, "lblAvarageTime", kNumber),
      lblLanguage(*this, "lblLanguage", toolkit::kCaptionText),
      cmbLanguage(*this, "cmbLanguage"),
      options_(context) {
  PlaceControls();
  AvarageTrackBar.SetRange(1, kLongestAverage, kAveragePage);
  options_.Connect({
      {chkScreenDocking, setting::FormMagnet,
       [](const Meter& m, bool on) { m.magnet.Active = on; }},
      {chkLoadOnWindows, setting::AutoStart,
       [this](const Meter& m, bool on) {
         settings::StartWithWindows(m.store, App().Platform().files.ProgramPath(), on);
       }},
      {chkStartIconMode, setting::StartIconMode},
      {chkCopyIP, setting::CopyIP},
      {chkShowHints, setting::ShowHints,
       [](const Meter& m, bool on) { display::ShowHints(m.hints, on); }},
      {AvarageTrackBar, setting::AvarageTime,
       [this](const Meter& m, std::int64_t scans) { AvarageTrackBarChange(m, scans); }},
  });
  cmbLanguage.OnChange = [this] { LanguageChange(); };
  cmbLanguage.OnChosenAgain = cmbLanguage.OnChange;  // its file may have changed
}

void GeneralPage::PlaceControls() {
  constexpr int kAverageTop = kMargin + 5 * kRow + kMargin;
  constexpr int kLanguageTop = kAverageTop + 3 * kRow + kMargin;
  constexpr int kNumberWidth = 72;
  toolkit::ApplyLayout({
      {chkScreenDocking, {kMargin, kMargin, kWidth, kBoxHeight}},
      {chkStartIconMode, {kMargin, kMargin + kRow, kWidth, kBoxHeight}},
      {chkShowHints, {kMargin, kMargin + 2 * kRow, kWidth, kBoxHeight}},
      {chkLoadOnWindows, {kMargin, kMargin + 3 * kRow, kWidth, kBoxHeight}},
      {chkCopyIP, {kMargin, kMargin + 4 * kRow, kWidth, kBoxHeight}},
      {lblAvarage, {kMargin, kAverageTop, kWidth, kBoxHeight}},
      {AvarageTrackBar, {kMargin, kAverageTop + kRow, kWidth - kNumberWidth - kMargin, 30}},
      {lblAvarageTime,
       {kPageWidth - kMargin - kNumberWidth, kAverageTop + kRow + 4, kNumberWidth, kBoxHeight}},
      {lblLanguage, {kMargin, kLanguageTop, kWidth, kBoxHeight}},
      {cmbLanguage, {kMargin, kLanguageTop + 20, 200, kFieldHeight}},
  });
}

void GeneralPage::Localise(const language::Translation& say) {
  Say(say, {
               {chkScreenDocking, text::chkScreenDocking, text::chkScreenDockingHint},
               {chkStartIconMode, text::chkStartIconMode, text::chkStartIconModeHint},
               {chkShowHints, text::chkShowHints, text::chkShowHintsHint},
               {chkLoadOnWindows, text::chkLoadOnWindows, text::chkLoadOnWindowsHint},
               {chkCopyIP, text::chkCopyIP, text::chkCopyIPHint},
               {lblAvarage, text::lblAvarage},
               {AvarageTrackBar, {}, text::AvarageTrackBarHint},
               {lblLanguage, text::lblLanguage},
               {cmbLanguage, {}, text::cmbLanguageHint},
           });
}

void GeneralPage::Read() {
  options_.Read();
  // A number beyond the ends of the bar too.
  lblAvarageTime.SetCaption(std::to_string(context_.store.Read(setting::AvarageTime)));
  ReadLanguages();
}

void GeneralPage::AvarageTrackBarChange(const Meter& meter, std::int64_t scans) {
  lblAvarageTime.SetCaption(std::to_string(scans));
  meter.line.SetAveragePeriod(scans);
}

void GeneralPage::ReadLanguages() {
  languages_ = context_.language.Names();
  std::vector<std::string> own_names;
  for (const std::string& name : languages_) own_names.push_back(context_.language.OwnName(name));
  cmbLanguage.SetItems(own_names);
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
