// The windows of a machine in memory, in order of creation, and where the keyboard is among them.
#pragma once

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "platform/memory/screen.h"
#include "platform/memory/widget_state.h"

namespace platform::memory {

class Desktop {
 public:
  explicit Desktop(Screen& screen) : screen_(screen) {}

  void Add(WidgetState& state) { widgets_.push_back(&state); }
  void Remove(WidgetState& state) {
    std::erase(widgets_, &state);
    if (focused_ == &state) focused_ = nullptr;
    if (pointed_at_ == &state) pointed_at_ = nullptr;
  }
  [[nodiscard]] const std::vector<WidgetState*>& Widgets() const { return widgets_; }
  // Whether the widget still exists; a report may have destroyed it.
  [[nodiscard]] bool Alive(const WidgetState* state) const {
    return std::ranges::count(widgets_, state) > 0;
  }
  [[nodiscard]] platform::Screen& TheScreen() { return screen_; }

  // What the pointer is on; null for nothing. Gives what it was on before.
  WidgetState* MovePointer(WidgetState* to) { return std::exchange(pointed_at_, to); }
  // Whether the pointer is on it or on a child of it.
  [[nodiscard]] bool UnderPointer(const WidgetState& state) const {
    return pointed_at_ != nullptr && pointed_at_->IsIn(state) && state.OnScreen();
  }

  // Whether the system has layered windows.
  bool layered_windows = true;
  // The name of the window or control that the system refuses to make, with an exception.
  std::string refused;

  // The widget that has the keyboard; null for none.
  [[nodiscard]] WidgetState* WithKeyboard() const { return focused_; }
  // Puts the keyboard there, null for nowhere, and tells the edit that it leaves.
  void MoveFocus(WidgetState* to) {
    WidgetState* from = std::exchange(focused_, to);
    if (from == to) return;
    if (to != nullptr) {
      const WidgetState& top = to->Top();
      const Point at = to->ToScreen({0, 0});
      const Point origin = top.ToScreen({0, 0});
      top.top_events->OnFocusMoved(
          {at.x - origin.x, at.y - origin.y, to->bounds.width, to->bounds.height});
    }
    if (from != nullptr) {
      from->all_selected = false;
      if (from->kind == WidgetState::Kind::kEdit) from->events->OnFocusLost();
    }
    for (WidgetState* each : {from, to}) {
      if (Alive(each) && each->IsPush()) each->events->OnFocusChanged();
    }
  }
  // What a click on it does.
  void Click(WidgetState& state) const {
    if (state.IsButton(ButtonKind::kGroup)) return;
    if (state.IsButton(ButtonKind::kCheck)) state.checked = !state.checked;
    if (state.IsButton(ButtonKind::kRadio)) {
      if (state.checked) return;
      for (WidgetState* other : GroupOf(state)) other->checked = other == &state;
    }
    state.events->OnClicked();
  }

 private:
  // Radio buttons that exclude each other: those of the same parent, one made after the other.
  [[nodiscard]] std::vector<WidgetState*> GroupOf(const WidgetState& radio) const {
    std::vector<WidgetState*> group;
    for (WidgetState* state : widgets_) {
      if (state->parent != radio.parent) continue;
      if (state->IsButton(ButtonKind::kRadio)) {
        group.push_back(state);
      } else if (std::ranges::count(group, &radio) > 0) {
        break;
      } else {
        group.clear();
      }
    }
    return group;
  }

  Screen& screen_;
  std::vector<WidgetState*> widgets_;
  WidgetState* focused_ = nullptr;
  WidgetState* pointed_at_ = nullptr;
};

}  // namespace platform::memory
