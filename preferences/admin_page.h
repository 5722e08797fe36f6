// The page "Admin": the administrator lock is put on and taken off.
#pragma once

#include "preferences/page.h"
#include "toolkit/controls/button.h"
#include "toolkit/controls/edit.h"
#include "toolkit/controls/label.h"

namespace preferences {

class AdminPage final : public Page {
 public:
  AdminPage(toolkit::Notebook& notebook, Context& context);

  void Localise(const language::Translation& say) override;

  // Shows whether the lock is on, with empty edits.
  void Read();

 private:
  void LockBtnClick();
  void Lock();
  void Unlock();
  // The page as it looks while the lock is on (1) or off (0), which is the button's tag.
  void Show(int tag);
  void ShowTexts(const language::Translation& say);

  toolkit::Label lblAdmin;
  toolkit::Label lblAdminPassword;
  toolkit::PasswordEdit AdminPassword;
  toolkit::Label lblAdminVerifyPass;
  toolkit::PasswordEdit AdminVerifyPass;
  toolkit::Label CaseSensitive;
  toolkit::Button LockBtn;
  bool again_ = false;  // two different passwords, or none, were given last
};

}  // namespace preferences
