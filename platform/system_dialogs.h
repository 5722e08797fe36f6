// The system's own dialogs.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/colour.h"

namespace platform {

class TopWindow;

// Files that the user can choose from.
struct FileKind {
  std::string name;  // as the user reads it
  std::string mask;  // such as "*.wav"; several with ";" between
};

struct OpenFileRequest {
  std::string title;
  std::vector<FileKind> kinds;  // the first one is chosen at first
  std::string folder;           // shown at first; one that is missing or empty: the system's choice
};

// Each runs a message loop of its own until the user has answered, and disables its owner
// meanwhile. It ends without an answer when MessageLoop::Quit is called.
class SystemDialogs {
 public:
  virtual ~SystemDialogs() = default;

  // Asks for a file that exists: its full path, of up to 32 766 UTF-16 units, or nothing when the
  // user cancels or the system has no such dialog (GetOpenFileName). The current folder of the
  // process is afterwards what it was.
  [[nodiscard]] virtual std::optional<std::string> OpenFile(const OpenFileRequest& request,
                                                            TopWindow& owner) = 0;

  // Asks for a colour; `present` is the one that is shown at first. Nothing when the user cancels.
  // Colours that the user has mixed are kept as long as this lives (ChooseColor).
  [[nodiscard]] virtual std::optional<Colour> ChooseColour(Colour present, TopWindow& owner) = 0;

  // While another window of the program wants an answer first: disables the open dialogs, and
  // enables those that it has disabled.
  virtual void SetEnabled(bool enabled) = 0;
};

}  // namespace platform
