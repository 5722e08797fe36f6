#include "display/titles/unit_AddTitlesForm.h"

#include <algorithm>

#include "language/texts.h"
#include "toolkit/application.h"
#include "toolkit/controls/layout.h"

namespace display {
namespace {

namespace text = language::text::AddTitles;

constexpr platform::Size kClientSize{308, 246};  // design pixels
constexpr std::string_view kPlacementKey = "\\Software\\BrisantoNET\\Settings\\AddTitlesScreen";

}  // namespace

T_frmAddTitles::T_frmAddTitles(toolkit::Application& app, TitlePosting& posting,
                               const language::Language& language)
    : Form(app, kAddTitlesForm, platform::Frame::kTool),
      posting_(posting),
      language_(language),
      WindowTitlesListbox(*this, "WindowTitlesListbox"),
      btnRemove(*this, "btnRemove"),
      AddNewLabel(*this, "AddNewLabel", toolkit::kCaptionText),
      AddNew(*this, "AddNew"),
      btnAdd(*this, "btnAdd"),
      OkBtn(*this, "OkBtn"),
      placement_saver_(*this, kPlacementKey, toolkit::PlacementSaver::Restores::kPlace) {
  SetClientSize(kClientSize);
  toolkit::ApplyLayout({
      {WindowTitlesListbox, {8, 8, 206, 150}},
      {btnRemove, {222, 8, 78, 25}},
      {AddNewLabel, {8, 166, 206, 15}},
      {AddNew, {8, 182, 206, 21}},
      {btnAdd, {222, 180, 78, 25}},
      {OkBtn, {222, 213, 78, 25}},
  });
  // Enter behind a typed title means that title.
  btnAdd.SetDefault(true);
  FormCreate();
}

T_frmAddTitles::~T_frmAddTitles() {
  App().Guard([this] { FormDestroy(); });
}

void T_frmAddTitles::FormCreate() {
  Localise();
  CentreOnScreen();
  placement_saver_.Restore();
  WindowTitlesListbox.SetItems(LoadTitleLines(App().Platform().files, App().Platform().locale));
  WindowTitlesListbox.SetItemIndex(0);
  btnAdd.OnClick = [this] { btnAddClick(); };
  btnRemove.OnClick = [this] { btnRemoveClick(); };
  WindowTitlesListbox.OnDelete = [this] { WindowTitlesListboxDelete(); };
  OkBtn.OnClick = [this] { OkBtnClick(); };
}

void T_frmAddTitles::Localise() {
  const language::Translation say = language_.Chosen();
  SetCaption(say(text::Title));
  WindowTitlesListbox.SetCaption(say(text::Title));
  WindowTitlesListbox.SetHint(say(text::WindowTitlesListboxHint));
  AddNewLabel.SetCaption(say(text::AddNewLabel));
  AddNew.SetHint(say(text::AddNewHint));
  btnAdd.SetCaption(say(text::btnAdd));
  btnRemove.SetCaption(say(text::btnRemove));
  OkBtn.SetCaption(say(text::OkBtn));
}

void T_frmAddTitles::btnAddClick() {
  if (AddNew.Text().empty()) return;
  WindowTitlesListbox.Add(AddNew.Text());
  AddNew.SetText("");
  AddNew.SetFocus();
}

void T_frmAddTitles::btnRemoveClick() {
  WindowTitlesListbox.Remove(WindowTitlesListbox.ItemIndex());
}

// Goes on with the line that has come in its place.
void T_frmAddTitles::WindowTitlesListboxDelete() {
  const int row = WindowTitlesListbox.ItemIndex();
  btnRemoveClick();
  WindowTitlesListbox.SetItemIndex(std::min(row, WindowTitlesListbox.Count() - 1));
}

void T_frmAddTitles::OkBtnClick() {
  Save();
  EndModal(toolkit::ModalResult::kOk);
}

void T_frmAddTitles::FormDestroy() { Save(); }

// The process may be gone before the editor is destroyed.
void T_frmAddTitles::FormEndSession() { Save(); }

void T_frmAddTitles::Save() {
  const TitleLines& lines = WindowTitlesListbox.Items();
  SaveTitleLines(App().Platform().files, lines);
  posting_.SetLines(lines);
}

}  // namespace display
