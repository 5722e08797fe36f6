// The page "Admin": the administrator lock is put on and taken off.
#pragma once

#include "preferences/page.h"
#include "toolkit/controls/button.h"

namespace preferences {

class AdminPage final : public Page {
 public:
  AdminPage(toolkit::Notebook& notebook, Context& context);

  void Localise(const language::Translation& say) override;

 private:
  // Shows whether the lock is on, with empty edits.
  void ReadLock();
  void LockBtnClick();
  void Lock();
  void Unlock();
  // The page as it looks while the lock is on (1) or off (0), which is the button's tag.
  void Show(int tag);
  void ShowTexts(const language::Translation& say);

  toolkit::Label lblAdmin{*this, "lblAdmin", toolkit::kWrappedText};
  Labelled<toolkit::PasswordEdit> AdminPassword{*this, "AdminPassword"};
  Labelled<toolkit::PasswordEdit> AdminVerifyPass{*this, "AdminVerifyPass"};
  toolkit::Label CaseSensitive{*this, "CaseSensitive", {platform::TextAlign::kLeft}};
  toolkit::Button LockBtn{*this, "LockBtn"};
  bool again_ = false;  // two different passwords, or none, were given last
};

}  // namespace preferences
