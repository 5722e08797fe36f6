#include "display/titles/unit_AddTitlesForm.h"

#include <algorithm>

#include "language/texts.h"
#include "settings/placement_keys.h"
#include "toolkit/application.h"
#include "toolkit/controls/layout.h"

namespace display {
namespace {

namespace text = language::text::AddTitles;

constexpr platform::Size kClientSize{308, 258};  // design pixels
constexpr int kBalloonSeconds = 15;

}  // namespace

T_frmAddTitles::T_frmAddTitles(toolkit::Application& app, TitlePosting& posting,
                               alerts::Balloons& balloons, const language::Language& language)
    : Form(app, kAddTitlesForm, platform::Frame::kTool),
      posting_(posting),
      balloons_(balloons),
      language_(language),
      placement_saver_(*this, settings::placement_key::kAddTitles,
                       toolkit::PlacementSaver::Restores::kPlace) {
  SetClientSize(kClientSize);
  toolkit::ApplyLayout({
      {WindowTitlesListbox, {8, 8, 206, 150}},
      {btnRemove, {222, 8, 78, 25}},
      {AddNewLabel, {8, 166, 206, 15}},
      {AddNew, {8, 182, 206, 21}},
      {btnAdd, {222, 180, 78, 25}},
      {Note, {8, 209, 206, 43}},
      {OkBtn, {222, 225, 78, 25}},
  });
  // Enter after a typed title adds that title.
  btnAdd.SetDefault(true);
  FormCreate();
}

T_frmAddTitles::~T_frmAddTitles() {
  App().Guard([this] { FormDestroy(); });
}

void T_frmAddTitles::FormCreate() {
  file_ = LoadTitleFile(App().Platform().files, App().Platform().locale);
  CentreOnScreen();
  placement_saver_.Restore();
  WindowTitlesListbox.SetItems(file_.lines);
  WindowTitlesListbox.SetItemIndex(0);
  btnAdd.OnClick = [this] { btnAddClick(); };
  btnRemove.OnClick = [this] { btnRemoveClick(); };
  WindowTitlesListbox.OnDelete = [this] { WindowTitlesListboxDelete(); };
  OkBtn.OnClick = [this] { OkBtnClick(); };
  Localise();
}

void T_frmAddTitles::Localise() {
  const language::Translation say = language_.Chosen();
  SetCaption(say(text::Title));
  WindowTitlesListbox.SetCaption(say(text::Title));
  language::SayNames(*this, text::Title.section, say);
  ShowState();
}

void T_frmAddTitles::ShowState() {
  const bool full = WindowTitlesListbox.Items().size() >= kMostTitles;
  WindowTitlesListbox.SetEnabled(file_.readable);
  AddNew.SetEnabled(file_.readable);
  btnAdd.SetEnabled(file_.readable && !full);
  btnRemove.SetEnabled(file_.readable);
  std::string note;
  if (!file_.readable) {
    note = language_.Text(text::Unreadable);
  } else if (full || !file_.beyond.empty()) {
    note = language_.Text(text::TooMany, {std::to_string(kMostTitles)});
  }
  Note.SetCaption(note);
}

void T_frmAddTitles::btnAddClick() {
  if (AddNew.Text().empty()) return;
  WindowTitlesListbox.Add(AddNew.Text());
  ShowState();
  AddNew.SetText("");
  AddNew.SetFocus();
}

void T_frmAddTitles::btnRemoveClick() {
  WindowTitlesListbox.Remove(WindowTitlesListbox.ItemIndex());
  ShowState();
}

// Selects the line that has come in the place of the removed one.
void T_frmAddTitles::WindowTitlesListboxDelete() {
  const int row = WindowTitlesListbox.ItemIndex();
  btnRemoveClick();
  WindowTitlesListbox.SetItemIndex(std::min(row, WindowTitlesListbox.Count() - 1));
}

void T_frmAddTitles::OkBtnClick() {
  Save();
  EndModal(toolkit::ModalResult::kOk);
}

void T_frmAddTitles::FormDestroy() {
  if (Save()) return;
  balloons_.ShowBalloon(language_.Text(text::Title), language_.Text(text::SaveFailed),
                        platform::BalloonIcon::kWarning, kBalloonSeconds);
}

// The process may be gone before the editor is destroyed.
void T_frmAddTitles::FormEndSession() { Save(); }

bool T_frmAddTitles::Save() {
  if (!file_.readable) return true;
  file_.lines = WindowTitlesListbox.Items();
  posting_.SetLines(file_.lines);
  return SaveTitleFile(App().Platform().files, file_);
}

}  // namespace display
