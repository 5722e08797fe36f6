#include <string>

#include "preferences/page.h"
#include "settings/unit_SecurityForm.h"
#include "toolkit/controls/buttons.h"

namespace preferences {
namespace {

namespace setting = settings::setting;
namespace text = language::text::SettingsForm;

constexpr int kLocked = 1;
constexpr int kUnlocked = 0;

// This password opens a lock whose own password is gone from the registry. It counts on this page
// only: the prompt takes a missing password for an empty one.
constexpr std::string_view kPasswordIfNone = "Quillmoth";

// The page that puts the administrator lock on and takes it off.
class AdminPage final : public Page {
 public:
  AdminPage(toolkit::Notebook& notebook, Context& context) : Page(notebook, "Admin", context) {
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
    LockBtn.SetDefault(true);  // Enter reaches it only while this page is shown
    LockBtn.OnClick = [this] { LockBtnClick(); };
  }

  void Localise(const language::Translation& say) override {
    Page::Localise(say);
    ShowTexts(say);
  }

 private:
  // Shows whether the lock is on, with empty edits.
  void ReadLock() {
    AdminPassword.SetText("");
    AdminVerifyPass.SetText("");
    again_ = false;
    Show(context_.store.Read(setting::zdP1) ? kLocked : kUnlocked);
  }

  void LockBtnClick() { LockBtn.Tag == kLocked ? Unlock() : Lock(); }

  void Lock() {
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
    // The lock is also cleared when another program has put it on meanwhile.
    context_.store.Write(setting::zdP1, false);
    AdminPassword.SetFocus();
  }

  // The password stays stored.
  void Unlock() {
    if (!settings::PasswordMatches(context_.store, AdminPassword.Text(), kPasswordIfNone)) return;
    context_.store.Write(setting::zdP1, false);
    Show(kUnlocked);
    AdminPassword.SetText("");
    AdminPassword.SetFocus();
  }

  // The page as it looks while the lock is on (1) or off (0), which is the button's tag.
  void Show(int tag) {
    LockBtn.Tag = tag;
    AdminVerifyPass.label.SetVisible(tag == kUnlocked);
    AdminVerifyPass.SetVisible(tag == kUnlocked);
    ShowTexts(context_.language.Chosen());
  }

  void ShowTexts(const language::Translation& say) {
    const bool locked = LockBtn.Tag == kLocked;
    LockBtn.SetCaption(say(locked ? text::Ad7 : text::Ad5));
    CaseSensitive.SetCaption(say(locked   ? text::Ad6
                                 : again_ ? text::PasswordAgain
                                          : text::CaseSensitive));
  }

  toolkit::Label lblAdmin{*this, "lblAdmin", toolkit::kWrappedText};
  Labelled<toolkit::PasswordEdit> AdminPassword{*this, "AdminPassword"};
  Labelled<toolkit::PasswordEdit> AdminVerifyPass{*this, "AdminVerifyPass"};
  toolkit::Label CaseSensitive{*this, "CaseSensitive", {platform::TextAlign::kLeft}};
  toolkit::Button LockBtn{*this, "LockBtn"};
  bool again_ = false;  // the last attempt gave two different passwords, or none
};

}  // namespace

std::unique_ptr<Page> MakeAdminPage(toolkit::Notebook& notebook, Context& context) {
  return std::make_unique<AdminPage>(notebook, context);
}

}  // namespace preferences
