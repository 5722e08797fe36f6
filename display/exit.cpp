#include "display/exit.h"

#include "display/unit_AreYouSureForm.h"
#include "settings/unit_SecurityForm.h"
#include "toolkit/application.h"

namespace display {

void Exit::Request() {
  if (MayLeave()) app_.Terminate();
}

bool Exit::MayLeave() {
  // This comes before the password prompt, so that the user is not asked twice for one exit.
  if (app_.Modals().Raise(kAreYouSureForm)) return false;
  if (settings::LockEngaged(store_) && !settings::AskForPassword(app_, store_, language_)) {
    return false;
  }
  return !store_.Read(settings::setting::AskOnExit) || AskWhetherSure();
}

bool Exit::AskWhetherSure() {
  return app_.Modals().ShowOnce<T_frmAreYouSure>(kAreYouSureForm, app_, store_, language_) ==
         toolkit::ModalResult::kYes;
}

}  // namespace display
