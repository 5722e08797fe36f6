// A desktop of windows with titles: windows that tests put there, and the program's own.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/memory/clock.h"
#include "platform/memory/windowing.h"
#include "platform/other_windows.h"
#include "platform/text.h"

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
  std::vector<WindowId> TopLevel() override {
    std::vector<WindowId> ids;
    for (const WidgetState* own : windowing_.TopWindows()) ids.push_back(IdOf(own));
    for (const auto& [id, window] : windows_) ids.push_back(id);
    return ids;
  }
  WindowTitle Title(WindowId window, std::size_t characters) override {
    const WidgetState* own = Own(window);
    if (own == nullptr && !windows_.contains(window)) return {};
    const std::string& title = own == nullptr ? Find(window).title : own->text;
    const std::string cut = CutCharacters(title, characters);
    return {cut, cut.size() < title.size()};
  }
  // Waiting for a window that hangs moves the clock on.
  TitleOutcome SetTitle(WindowId window, std::string_view title, int patience_ms) override {
    ++sets;
    if (WidgetState* own = Own(window)) {
      own->text = title;
      return TitleOutcome::kSet;
    }
    if (!windows_.contains(window) || Find(window).refuses) return TitleOutcome::kRefused;
    Window& other = Find(window);
    if (other.hangs) {
      clock_.Advance(patience_ms);
      return TitleOutcome::kNoAnswer;
    }
    other.title = title;
    ++other.title_changes;
    return TitleOutcome::kSet;
  }
  WindowId Foreground() override { return foreground; }

  // The functions that follow are for tests.
  WindowId Add(std::string_view title) {
    windows_[++last_id_].title = title;
    return last_id_;
  }
  void Remove(WindowId window) { windows_.erase(window); }
  // Throws std::out_of_range when there is no such window.
  [[nodiscard]] Window& Find(WindowId window) { return windows_.at(window); }

  WindowId foreground = 0;
  // The number of calls of SetTitle.
  int sets = 0;

 private:
  static WindowId IdOf(const WidgetState* own) { return reinterpret_cast<WindowId>(own); }
  // One of the program's own, or null.
  WidgetState* Own(WindowId window) {
    for (WidgetState* own : windowing_.TopWindows()) {
      if (IdOf(own) == window) return own;
    }
    return nullptr;
  }

  Windowing& windowing_;
  Clock& clock_;
  std::map<WindowId, Window> windows_;
  WindowId last_id_ = 0;
};

}  // namespace platform::memory
