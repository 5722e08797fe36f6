#include "settings/unit_SecurityForm.h"

#include "language/texts.h"
#include "toolkit/application.h"
#include "toolkit/controls/layout.h"

namespace settings {

bool LockEngaged(Store& store) { return store.Read(setting::zdP1); }

bool PasswordMatches(Store& store, std::string_view typed, std::string_view if_none) {
  return store.ReadWith(setting::zdP, if_none) == typed;
}

namespace {

constexpr platform::Size kClientSize{300, 138};  // design pixels

}  // namespace

T_frmSecurity::T_frmSecurity(toolkit::Application& app, Store& store,
                             const language::Language& language)
    : Form(app, kSecurityForm, platform::Frame::kDialog), store_(store), language_(language) {
  SetClientSize(kClientSize);
  toolkit::ApplyLayout({
      {Image1, {12, 12, toolkit::kSignSize, toolkit::kSignSize}},
      {St1, {60, 12, 228, 28}},
      {St2, {60, 42, 228, 28}},
      {St3, {60, 74, 80, 21}},
      {PassEdit, {144, 74, 144, 21}},
      {CancelButton, {213, 104, 75, 25}},
  });
  CancelButton.ModalResult = toolkit::ModalResult::kCancel;
  FormCreate();
}

void T_frmSecurity::FormCreate() {
  Localise();
  CentreOnScreen();
  // The edit is compared only when it changes: when no password is stored, the empty edit of a new
  // prompt opens nothing.
  PassEdit.OnChange = [this] { PassEditChange(); };
}

void T_frmSecurity::Localise() {
  const language::Translation say = language_.Chosen();
  const language::TextEntry& title = language::text::Security::Title;
  SetCaption(say(title));
  language::SayNames(*this, title.section, say);
}

void T_frmSecurity::PassEditChange() {
  if (PasswordMatches(store_, PassEdit.Text())) EndModal(toolkit::ModalResult::kOk);
}

bool AskForPassword(toolkit::Application& app, Store& store, const language::Language& language) {
  return app.Modals().ShowOnce<T_frmSecurity>(kSecurityForm, app, store, language) ==
         toolkit::ModalResult::kOk;
}

}  // namespace settings
