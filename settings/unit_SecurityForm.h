// The administrator lock, which protects the settings and the exit of the program with a password,
// and its prompt.
#pragma once

#include <string_view>

#include "language/language.h"
#include "settings/store.h"
#include "toolkit/controls/buttons.h"
#include "toolkit/controls/edit.h"
#include "toolkit/controls/label.h"
#include "toolkit/controls/sign.h"
#include "toolkit/forms/form.h"

namespace settings {

// Returns whether the lock is on. The password stays stored while the lock is off.
[[nodiscard]] bool LockEngaged(Store& store);

// Returns whether a text is the stored password; the case of the letters matters.
//   if_none  the text that counts as the password when none is stored
[[nodiscard]] bool PasswordMatches(Store& store, std::string_view typed,
                                   std::string_view if_none = {});

inline constexpr std::string_view kSecurityForm = "T_frmSecurity";

// Closes with kOk as soon as the right password stands in the edit; a wrong one gets no answer.
class T_frmSecurity final : public toolkit::Form {
 public:
  // Makes the window hidden; the modal stack shows it. All arguments outlive the window.
  T_frmSecurity(toolkit::Application& app, Store& store, const language::Language& language);

  void Localise() override;

 private:
  void FormCreate();
  void PassEditChange();

  Store& store_;
  const language::Language& language_;

  toolkit::Sign Image1{*this, "Image1", toolkit::Sign::Picture::kLock};
  toolkit::Label St1{*this, "St1", toolkit::kWrappedText};
  toolkit::Label St2{*this, "St2", toolkit::kWrappedText};
  toolkit::Label St3{*this, "St3", toolkit::kCaptionText};
  toolkit::PasswordEdit PassEdit{*this, "PassEdit"};
  toolkit::Button CancelButton{*this, "CancelButton"};
};

// Asks for the administrator's password and returns whether it was given; scans go on meanwhile.
// There is one prompt at a time: while it is open, a second request raises it and is refused.
[[nodiscard]] bool AskForPassword(toolkit::Application& app, Store& store,
                                  const language::Language& language);

}  // namespace settings
