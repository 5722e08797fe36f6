// Asks the user for a file, with the system's dialog.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/system_dialogs.h"

namespace toolkit {

class Form;

class OpenDialog {
 public:
  std::string Title;
  // The kinds of files that the user can choose from. The first one is preset; the masks are shown
  // behind the names.
  std::vector<platform::FileKind> Kinds;
  // The folder that is shown at first.
  std::string InitialFolder;

  // Shows the dialog and returns the full path of the file, or nullopt when the user cancels, the
  // program ends, or such a dialog is open already.
  [[nodiscard]] std::optional<std::string> Execute(const Form& owner) const;
};

}  // namespace toolkit
