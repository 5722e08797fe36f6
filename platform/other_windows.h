// The windows on the desktop, whatever program they belong to, and their titles.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

// The number of a window, valid as long as the window exists; the system may use it again
// afterwards.
using WindowId = std::uintptr_t;

// The beginning of a window's title.
struct WindowTitle {
  std::string text;
  bool longer = false;  // the title goes on
};

enum class TitleOutcome {
  kSet,
  kRefused,   // the window is gone, or the system does not let this program change it
  kNoAnswer,  // its program took longer than the wait
};

class OtherWindows {
 public:
  virtual ~OtherWindows() = default;

  // Returns all top-level windows, this program's own ones too, visible or not, from front to back
  // (EnumWindows).
  [[nodiscard]] virtual std::vector<WindowId> TopLevel() = 0;

  // Returns at most the first `characters` of the title, or an empty title when the window is gone.
  // Never waits for the window's program (InternalGetWindowText).
  [[nodiscard]] virtual WindowTitle Title(WindowId window, std::size_t characters) = 0;

  // Gives the window a title (WM_SETTEXT). Waits for the window's program at most `patience_ms`
  // (above 0), and not at all for a program that the system knows to be hanging. Messages sent to
  // this program are not handled meanwhile.
  virtual TitleOutcome SetTitle(WindowId window, std::string_view title, int patience_ms) = 0;

  // Returns the window that the user works in (GetForegroundWindow), or 0 for none.
  [[nodiscard]] virtual WindowId Foreground() = 0;
};

}  // namespace platform
