#include "preferences/admin_page.h"

#include <string>

#include "settings/administrator_lock.h"
#include "toolkit/controls/layout.h"

namespace preferences {
namespace {

namespace setting = settings::setting;
namespace text = language::text::SettingsForm;

constexpr int kLocked = 1;
constexpr int kUnlocked = 0;

// Opens a lock whose password is gone from the registry. It counts here only: the prompt takes a
// missing password for an empty one.
constexpr std::string_view kPasswordIfNone = "Quillmoth";

constexpr platform::TextStyle kLine{platform::TextAlign::kLeft};

}  // namespace

AdminPage::AdminPage(toolkit::Notebook& notebook, Context& context)
    : Page(notebook, "Admin", context),
      lblAdmin(*this, "lblAdmin", toolkit::kWrappedText),
      lblAdminPassword(*this, "lblAdminPassword", toolkit::kCaptionText),
      AdminPassword(*this, "AdminPassword"),
      lblAdminVerifyPass(*this, "lblAdminVerifyPass", toolkit::kCaptionText),
      AdminVerifyPass(*this, "AdminVerifyPass"),
      CaseSensitive(*this, "CaseSensitive", kLine),
      LockBtn(*this, "LockBtn") {
  constexpr int kLabelWidth = 150;
  constexpr int kFieldLeft = kMargin + kLabelWidth + kMargin;
  constexpr int kFieldWidth = 180;
  constexpr int kPasswordTop = kMargin + 2 * kRow;
  toolkit::ApplyLayout({
      {lblAdmin, {kMargin, kMargin, kWidth, 2 * kBoxHeight}},
      {lblAdminPassword, {kMargin, kPasswordTop + 2, kLabelWidth, kBoxHeight}},
      {AdminPassword, {kFieldLeft, kPasswordTop, kFieldWidth, kFieldHeight}},
      {lblAdminVerifyPass, {kMargin, kPasswordTop + kFieldRow + 2, kLabelWidth, kBoxHeight}},
      {AdminVerifyPass, {kFieldLeft, kPasswordTop + kFieldRow, kFieldWidth, kFieldHeight}},
      {CaseSensitive, {kMargin, kPasswordTop + 2 * kFieldRow + 2, kWidth, kBoxHeight}},
      {LockBtn, {kFieldLeft, kPasswordTop + 3 * kFieldRow, 110, kButtonHeight}},
  });
  LockBtn.SetDefault(true);  // of this page: it is out of reach behind the others
  LockBtn.OnClick = [this] { LockBtnClick(); };
}

void AdminPage::Localise(const language::Translation& say) {
  Say(say, {
               {lblAdmin, text::lblAdmin},
               {lblAdminPassword, text::lblAdminPassword},
               {AdminPassword, {}, text::AdminPasswordHint},
               {lblAdminVerifyPass, text::lblAdminVerifyPass},
               {AdminVerifyPass, {}, text::AdminVerifyPassHint},
               {LockBtn, {}, text::LockBtnHint},
           });
  ShowTexts(say);
}

void AdminPage::Read() {
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
  lblAdminVerifyPass.SetVisible(tag == kUnlocked);
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
