// The windows of a machine in memory, in order of creation, and where the keyboard is among them.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/memory/screen.h"
#include "platform/memory/widget_state.h"

namespace platform::memory {

class Desktop {
 public:
  explicit Desktop(Screen& screen) : screen_(screen) {}

  void Add(WidgetState& state) { widgets_.push_back(&state); }
  void Remove(WidgetState& state);
  [[nodiscard]] const std::vector<WidgetState*>& Widgets() const { return widgets_; }
  // Whether the widget still exists; a report may have destroyed it.
  [[nodiscard]] bool Alive(const WidgetState* state) const;
  [[nodiscard]] platform::Screen& TheScreen() { return screen_; }

  // What the pointer is on; null for nothing. Gives what it was on before.
  WidgetState* MovePointer(WidgetState* to) { return std::exchange(pointed_at_, to); }
  // Whether the pointer is on it or on a child of it.
  [[nodiscard]] bool UnderPointer(const WidgetState& state) const;

  // Whether the system has layered windows.
  bool layered_windows = true;
  // The name of the window or control that the system refuses to make.
  std::string refused;

  // The widget that has the keyboard; null for none.
  [[nodiscard]] WidgetState* Focused() const { return focused_; }
  // Puts the keyboard there, null for nowhere, and tells the edit that it leaves.
  void MoveFocus(WidgetState* to);
  // What a click on it does.
  void Click(WidgetState& state) const;

  // Whether a top window has the keys of a dialog.
  [[nodiscard]] static bool TakesDialogKeys(const WidgetState& top);
  [[nodiscard]] static const WidgetState& TopOf(const WidgetState& state);

 private:
  // Radio buttons that exclude each other: those of the same parent, one made after the other.
  [[nodiscard]] std::vector<WidgetState*> GroupOf(const WidgetState& radio) const;

  Screen& screen_;
  std::vector<WidgetState*> widgets_;
  WidgetState* focused_ = nullptr;
  WidgetState* pointed_at_ = nullptr;
};

}  // namespace platform::memory
