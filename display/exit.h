// The end of the program at the user's wish.
#pragma once

#include "language/language.h"
#include "settings/store.h"

namespace toolkit {
class Application;
}

namespace display {

// Two things can stand in its way: the administrator lock ("zdP1") with the password prompt, and
// then, if "AskOnExit" is on, the question.
class Exit {
 public:
  // All outlive it.
  Exit(toolkit::Application& app, settings::Store& store, const language::Language& language)
      : app_(app), store_(store), language_(language) {}

  // Asks what there is to ask, while scans go on, and ends the program unless the user stays. What
  // is open meanwhile, also around the caller, ends with kCancel. While something is asked already
  // it is raised, and nothing else happens.
  void Request();

 private:
  [[nodiscard]] bool MayLeave();
  [[nodiscard]] bool AskWhetherSure();

  toolkit::Application& app_;
  settings::Store& store_;
  const language::Language& language_;
};

}  // namespace display
