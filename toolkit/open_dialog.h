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
  // The first kind is chosen at first; the masks are shown behind the names.
  std::vector<platform::FileKind> Kinds;
  // Shown at first.
  std::string InitialFolder;

  // The full path of the file; nothing when the user cancels, the program ends, or such a dialog is
  // open already.
  [[nodiscard]] std::optional<std::string> Execute(const Form& owner) const;
};

}  // namespace toolkit
