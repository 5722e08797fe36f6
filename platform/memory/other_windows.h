// A desktop of windows with titles: windows that tests put there, and the program's own.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/memory/clock.h"
#include "platform/memory/windowing.h"
#include "platform/other_windows.h"

namespace platform::memory {

class OtherWindows final : public platform::OtherWindows {
 public:
  // A window of another program.
  struct Window {
    std::string title;
    bool hangs = false;    // never answers: a call that sets its title waits in vain
    bool refuses = false;  // belongs to a program with higher privileges
    int title_changes = 0;
  };

  OtherWindows(Windowing& windowing, Clock& clock) : windowing_(windowing), clock_(clock) {}

  // Lists the program's own windows first.
  [[nodiscard]] std::vector<WindowId> TopLevel() override;
  [[nodiscard]] WindowTitle Title(WindowId window, std::size_t characters) override;
  // Waiting for a window that hangs moves the clock on.
  TitleOutcome SetTitle(WindowId window, std::string_view title, int patience_ms) override;
  [[nodiscard]] WindowId Foreground() override { return foreground; }

  // The functions that follow are for tests.
  WindowId Add(std::string_view title);
  void Remove(WindowId window) { windows_.erase(window); }
  // Throws std::out_of_range when there is no such window.
  [[nodiscard]] Window& Find(WindowId window) { return windows_.at(window); }

  WindowId foreground = 0;
  // The number of calls of SetTitle.
  int sets = 0;

 private:
  Windowing& windowing_;
  Clock& clock_;
  std::map<WindowId, Window> windows_;
  WindowId last_id_ = 0;
};

}  // namespace platform::memory
