#include "preferences/admin_page.h"

#include <string>

#include "settings/administrator_lock.h"

namespace preferences {
namespace {

namespace setting = settings::setting;
namespace text = language::text::SettingsForm;

constexpr int kLocked = 1;
constexpr int kUnlocked = 0;

// Opens a lock whose password is gone from the registry. It counts here only: the prompt takes a
// missing password for an empty one.
constexpr std::string_view kPasswordIfNone = "Quillmoth";

}  // namespace

AdminPage::AdminPage(toolkit::Notebook& notebook, Context& context)
    : Page(notebook, "Admin", context) {
  constexpr FieldColumn kFields{kMargin + 2 * kRow, 150};
  constexpr int kFieldWidth = 180;
  Add({
      {lblAdmin, {kMargin, kMargin, kWidth, 2 * kBoxHeight}},
      {AdminPassword, kFields.At(0, kFieldWidth)},
      {AdminVerifyPass, kFields.At(1, kFieldWidth)},
      {CaseSensitive, Line(kFields.Top(2) + 2)},
      {LockBtn, {kFields.FieldLeft(), kFields.Top(3), 110, kButtonHeight}},
  });
  Add(ReadStep::kLock, [this] { ReadLock(); });
  LockBtn.SetDefault(true);  // of this page: it is out of reach behind the others
  LockBtn.OnClick = [this] { LockBtnClick(); };
}

void AdminPage::Localise(const language::Translation& say) {
  Page::Localise(say);
  ShowTexts(say);
}

void AdminPage::ReadLock() {
  AdminPassword.SetText("");
  AdminVerifyPass.SetText("");
  again_ = false;
  Show(context_.store.Read(setting::zdP1) ? kLocked : kUnlocked);
}

void AdminPage::LockBtnClick() { LockBtn.Tag == kLocked ? Unlock() : Lock(); }

void AdminPage::Lock() {
  const std::string password = AdminPassword.Text();
  const bool given = !password.empty() && password == AdminVerifyPass.Text();
  if (given) {
    context_.store.Write(setting::zdP, password);
    context_.store.Write(setting::zdP1, true);
  }
  AdminPassword.SetText("");
  AdminVerifyPass.SetText("");
  again_ = !given;
  Show(given ? kLocked : kUnlocked);
  if (given) return;
  App().Platform().sound.Beep();
  // Also where another program has put the lock on meanwhile.
  context_.store.Write(setting::zdP1, false);
  AdminPassword.SetFocus();
}

// The password stays stored.
void AdminPage::Unlock() {
  if (!settings::PasswordMatches(context_.store, AdminPassword.Text(), kPasswordIfNone)) return;
  context_.store.Write(setting::zdP1, false);
  again_ = false;
  Show(kUnlocked);
  AdminPassword.SetText("");
  AdminPassword.SetFocus();
}

void AdminPage::Show(int tag) {
  LockBtn.Tag = tag;
  AdminVerifyPass.label.SetVisible(tag == kUnlocked);
  AdminVerifyPass.SetVisible(tag == kUnlocked);
  ShowTexts(context_.language.Chosen());
}

void AdminPage::ShowTexts(const language::Translation& say) {
  const bool locked = LockBtn.Tag == kLocked;
  LockBtn.SetCaption(say(locked ? text::Ad7 : text::Ad5));
  CaseSensitive.SetCaption(say(locked   ? text::Ad6
                               : again_ ? text::PasswordAgain
                                        : text::CaseSensitive));
}

}  // namespace preferences
