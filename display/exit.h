// Ends the program when the user asks for it.
#pragma once

#include "language/language.h"
#include "settings/store.h"

namespace toolkit {
class Application;
}

namespace display {

// The user must first give the password, if the administrator lock ("zdP1") is on, and then confirm
// the exit, if "AskOnExit" is on.
class Exit {
 public:
  // All arguments outlive the object.
  Exit(toolkit::Application& app, settings::Store& store, const language::Language& language)
      : app_(app), store_(store), language_(language) {}

  // Asks for the password and the confirmation as needed, while scans go on, and ends the program
  // unless the user declines. Every modal window that is open then, the caller's own too, ends with
  // kCancel. While a prompt or question is open already, it is raised and nothing else happens.
  void Request();

 private:
  [[nodiscard]] bool MayLeave();
  [[nodiscard]] bool AskWhetherSure();

  toolkit::Application& app_;
  settings::Store& store_;
  const language::Language& language_;
};

}  // namespace display
