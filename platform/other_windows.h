// The windows on the desktop, whatever program they belong to, and their titles.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

// Names a window as long as it exists; the system may use the number again afterwards.
using WindowId = std::uintptr_t;

// The beginning of a window's title.
struct WindowTitle {
  std::string text;
  bool longer = false;  // the title goes on
};

enum class TitleOutcome {
  kSet,
  kRefused,   // the window is gone, or the system keeps us from touching it
  kNoAnswer,  // its program took longer than we would wait
};

class OtherWindows {
 public:
  virtual ~OtherWindows() = default;

  // All top-level windows, this program's own ones too, visible or not, from the front to the back
  // (EnumWindows).
  [[nodiscard]] virtual std::vector<WindowId> TopLevel() = 0;

  // At most the first `characters` of the title; empty when the window is gone. Never waits for the
  // window's program (InternalGetWindowText).
  [[nodiscard]] virtual WindowTitle Title(WindowId window, std::size_t characters) = 0;

  // Gives the window a title (WM_SETTEXT). Waits for the window's program at most `patience_ms`
  // (above 0), and not at all for one that the system knows to be hanging; nothing that is sent to
  // this program is handled meanwhile.
  virtual TitleOutcome SetTitle(WindowId window, std::string_view title, int patience_ms) = 0;

  // The window that the user works in (GetForegroundWindow); 0 for none.
  [[nodiscard]] virtual WindowId Foreground() = 0;
};

}  // namespace platform
