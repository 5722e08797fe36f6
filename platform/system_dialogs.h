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
  std::string name;  // the name that the user reads
  std::string mask;  // such as "*.wav"; several with ";" between
};

struct OpenFileRequest {
  std::string title;
  std::vector<FileKind> kinds;  // the first one is chosen at first
  std::string folder;           // shown at first; when it is missing or empty, the system chooses
};

// Each dialog runs a message loop of its own until the user has answered, and disables its owner
// meanwhile. It ends without an answer when MessageLoop::Quit is called.
class SystemDialogs {
 public:
  virtual ~SystemDialogs() = default;

  // Asks for a file that exists (GetOpenFileName). Returns its full path, of up to 32 766 UTF-16
  // units, or nullopt when the user cancels or the system has no such dialog. The current folder of
  // the process stays the same.
  [[nodiscard]] virtual std::optional<std::string> OpenFile(const OpenFileRequest& request,
                                                            TopWindow& owner) = 0;

  // Asks for a colour (ChooseColor); `present` is shown at first. Returns nullopt when the user
  // cancels. Colours that the user has mixed are kept as long as this object lives.
  [[nodiscard]] virtual std::optional<Colour> ChooseColour(Colour present, TopWindow& owner) = 0;

  // Disables the open dialogs while another window of the program must be answered first, and
  // afterwards enables those that it has disabled.
  virtual void SetEnabled(bool enabled) = 0;
};

}  // namespace platform
