// What the mouse does to windows and controls, and the system to windows.
#include <algorithm>
#include <stdexcept>

#include "platform/memory/windowing.h"

namespace platform::memory {

WidgetState* Windowing::Reach(std::string_view name) {
  WidgetState& state = Find(name);
  return state.Reachable() ? &state : nullptr;
}

WidgetState* Windowing::Reach(std::string_view name, WidgetState::Kind kind) {
  if (Find(name).kind != kind) throw std::logic_error(std::string(name) + " is of another kind");
  return Reach(name);
}

void Windowing::MoveMouse(std::string_view name, Point at, bool left_down) {
  if (WidgetState* state = Reach(name)) {
    state->events->OnMouseMove({at, MouseButton::kNone, left_down});
  }
}

void Windowing::PointAt(std::string_view name) {
  WidgetState& onto = Find(name);
  WidgetState* const left = desktop_.MovePointer(&onto);
  if (left == &onto) return;
  if (onto.Reachable()) onto.events->OnMouseEnter();
  if (left != nullptr && desktop_.Alive(left)) left->events->OnMouseLeave();
}

void Windowing::PointAway() {
  WidgetState* const left = desktop_.MovePointer(nullptr);
  if (left != nullptr) left->events->OnMouseLeave();
}

void Windowing::PressMouse(std::string_view name, Point at, MouseButton button) {
  WidgetState* state = Reach(name);
  if (state == nullptr) return;
  // A click brings the keyboard to what can have it.
  if (button == MouseButton::kLeft && state->TakesKeyboard()) desktop_.MoveFocus(state);
  if (!desktop_.Alive(state)) return;
  state->events->OnMouseDown({at, button, button == MouseButton::kLeft});
}

void Windowing::ReleaseMouse(std::string_view name, Point at, MouseButton button) {
  WidgetState* state = Reach(name);
  if (state == nullptr) return;
  state->events->OnMouseUp({at, button, false});
  if (button != MouseButton::kRight || !desktop_.Alive(state)) return;
  if (state->kind != WidgetState::Kind::kEdit) state->events->OnContextMenu(state->ToScreen(at));
}

void Windowing::DoubleClick(std::string_view name, Point at) {
  if (WidgetState* state = Reach(name)) {
    state->events->OnDoubleClick({at, MouseButton::kLeft, true});
  }
}

void Windowing::RightClick(std::string_view name, Point at) {
  PressMouse(name, at, MouseButton::kRight);
  if (Exists(name)) ReleaseMouse(name, at, MouseButton::kRight);
}

void Windowing::Press(std::string_view name) {
  using Kind = WidgetState::Kind;
  const Kind kind = Find(name).kind;
  if (kind != Kind::kButton && kind != Kind::kText && kind != Kind::kSurface) {
    throw std::logic_error(std::string(name) + " has no click");
  }
  WidgetState* state = Reach(name);
  if (state == nullptr) return;
  PressMouse(name);
  if (desktop_.Alive(state) && state->Reachable()) desktop_.Click(*state);
  if (desktop_.Alive(state)) ReleaseMouse(name);
}

void Windowing::Choose(std::string_view name, int index) {
  using Kind = WidgetState::Kind;
  const Kind kind = Find(name).kind;
  if (kind != Kind::kList && kind != Kind::kTree && kind != Kind::kTabs) {
    throw std::logic_error(std::string(name) + " is no list");
  }
  WidgetState* state = Reach(name);
  if (state == nullptr) return;
  if (index < 0 || index >= static_cast<int>(state->items.size())) {
    throw std::out_of_range(std::string(name) + " has no row " + std::to_string(index));
  }
  desktop_.MoveFocus(state);
  // Lists report also the row that is selected already.
  if (!desktop_.Alive(state) || (state->index == index && kind != Kind::kList)) return;
  state->Select(index);
  state->events->OnChanged();
}

void Windowing::Tick(std::string_view name, int row) {
  WidgetState* state = Reach(name, WidgetState::Kind::kList);
  if (state == nullptr) return;
  if (state->list != ListKind::kCheckBox) {
    throw std::logic_error(std::string(name) + " has no boxes");
  }
  const auto at = static_cast<std::size_t>(row);
  state->row_checks.at(at) = !state->row_checks.at(at);
  state->events->OnRowChecked(row);
}

void Windowing::Drag(std::string_view name, int position) {
  WidgetState* state = Reach(name, WidgetState::Kind::kTrackBar);
  if (state == nullptr) return;
  const int placed = std::clamp(position, state->lowest, state->highest);
  if (placed == state->position) return;
  state->position = placed;
  state->events->OnChanged();
}

void Windowing::Drag(std::string_view window, Point to) {
  WidgetState& state = Find(window);
  state.dragging = true;
  Rect bounds{to.x, to.y, state.bounds.width, state.bounds.height};
  state.top_events->OnMoving(bounds);
  state.window->SetBounds(bounds);
  state.dragging = false;
  state.top_events->OnDragEnded();
}

void Windowing::Place(std::string_view window, const Rect& bounds) {
  Find(window).window->SetBounds(bounds);
}

void Windowing::ClickCloseBox(std::string_view window) {
  if (WidgetState* state = Reach(window, WidgetState::Kind::kTopWindow)) {
    state->top_events->OnClose();
  }
}

void Windowing::ChangeDpi(std::string_view window, int dpi, const Rect& bounds) {
  WidgetState& state = Find(window);
  state.dpi = dpi;
  state.top_events->OnDpiChanged(dpi, bounds);
}

void Windowing::ForAllWindows(const std::function<void(TopWindowEvents&)>& report) {
  const std::vector<WidgetState*> widgets = desktop_.Widgets();
  for (WidgetState* state : widgets) {
    if (desktop_.Alive(state) && state->top_events != nullptr) report(*state->top_events);
  }
}

void Windowing::ChangeDisplay() {
  ForAllWindows([](TopWindowEvents& events) { events.OnDisplayChange(); });
}

void Windowing::ChangeSettings() {
  ForAllWindows([](TopWindowEvents& events) { events.OnSettingChange(); });
}

void Windowing::Resume() {
  ForAllWindows([](TopWindowEvents& events) { events.OnResume(); });
}

void Windowing::EndSession() {
  ForAllWindows([](TopWindowEvents& events) { events.OnEndSession(); });
}

}  // namespace platform::memory
