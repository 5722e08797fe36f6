#include "platform/memory/windowing.h"

#include <algorithm>
#include <stdexcept>

#include "platform/text.h"

namespace platform::memory {

WidgetState& Windowing::Find(std::string_view name) {
  const auto found = std::ranges::find(Widgets(), name, &WidgetState::name);
  if (found == Widgets().end()) throw std::out_of_range("no control is " + std::string(name));
  return **found;
}

bool Windowing::Exists(std::string_view name) const {
  return std::ranges::count(Widgets(), name, &WidgetState::name) > 0;
}

std::vector<WidgetState*> Windowing::TopWindows() const {
  std::vector<WidgetState*> windows = Widgets();
  std::erase_if(windows, [](const WidgetState* state) { return state->parent != nullptr; });
  return windows;
}

std::string Windowing::Focused() const {
  return WithKeyboard() != nullptr ? WithKeyboard()->name : std::string();
}

std::vector<std::string> Windowing::TabOrder(std::string_view window) {
  WidgetState* before = WithKeyboard();
  MoveFocus(nullptr);
  std::vector<std::string> names;
  for (PressTab(window); !Focused().empty(); PressTab(window)) {
    if (!names.empty() && names.front() == Focused()) break;
    names.push_back(Focused());
  }
  MoveFocus(before);
  return names;
}

// What the mouse does to windows and controls, and the system to windows.

WidgetState* Windowing::Reach(std::string_view name) {
  WidgetState& state = Find(name);
  return state.Reachable() ? &state : nullptr;
}

WidgetState* Windowing::Reach(std::string_view name, Kind kind) {
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
  WidgetState* const left = MovePointer(&onto);
  if (left == &onto) return;
  if (onto.Reachable()) onto.events->OnMouseEnter();
  if (left != nullptr && Alive(left)) left->events->OnMouseLeave();
}

void Windowing::PointAway() {
  WidgetState* const left = MovePointer(nullptr);
  if (left != nullptr) left->events->OnMouseLeave();
}

void Windowing::PressMouse(std::string_view name, Point at, MouseButton button) {
  WidgetState* state = Reach(name);
  if (state == nullptr) return;
  // A click brings the keyboard to what can have it.
  if (button == MouseButton::kLeft && state->TakesKeyboard()) MoveFocus(state);
  if (!Alive(state)) return;
  state->events->OnMouseDown({at, button, button == MouseButton::kLeft});
}

void Windowing::ReleaseMouse(std::string_view name, Point at, MouseButton button) {
  WidgetState* state = Reach(name);
  if (state == nullptr) return;
  state->events->OnMouseUp({at, button, false});
  if (button != MouseButton::kRight || !Alive(state)) return;
  if (state->kind != Kind::kEdit) state->events->OnContextMenu(state->ToScreen(at));
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
  WidgetState* state = Reach(name);
  if (state == nullptr) return;
  PressMouse(name);
  if (Alive(state) && state->Reachable()) Click(*state);
  if (Alive(state)) ReleaseMouse(name);
}

void Windowing::Choose(std::string_view name, int index) {
  WidgetState* state = Reach(name);
  if (state == nullptr) return;
  (void)state->items.at(static_cast<std::size_t>(index));  // throws when there is no such row
  MoveFocus(state);
  // Lists report also the row that is selected already.
  if (!Alive(state) || (state->index == index && state->kind != Kind::kList)) return;
  state->Select(index);
  state->events->OnChanged();
}

void Windowing::Tick(std::string_view name, int row) {
  WidgetState* state = Reach(name, Kind::kList);
  if (state == nullptr) return;
  const auto at = static_cast<std::size_t>(row);
  state->row_checks.at(at) = !state->row_checks.at(at);
  state->events->OnRowChecked(row);
}

void Windowing::Drag(std::string_view name, int position) {
  WidgetState* state = Reach(name, Kind::kTrackBar);
  if (state == nullptr) return;
  const int before = state->position;
  state->SetPosition(position);
  if (state->position != before) state->events->OnChanged();
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

void Windowing::ClickCloseBox(std::string_view window) {
  if (WidgetState* state = Reach(window, Kind::kTopWindow)) state->top_events->OnClose();
}

void Windowing::ChangeDpi(std::string_view window, int dpi, const Rect& bounds) {
  WidgetState& state = Find(window);
  state.dpi = dpi;
  state.top_events->OnDpiChanged(bounds);
}

void Windowing::Tell(void (TopWindowEvents::*report)()) {
  const std::vector<WidgetState*> widgets = Widgets();
  for (WidgetState* state : widgets) {
    if (Alive(state) && state->top_events != nullptr) (state->top_events->*report)();
  }
}

// What the keyboard does in windows and controls.

void Windowing::Type(std::string_view name, std::string_view text) {
  WidgetState* edit = Reach(name, Kind::kEdit);
  if (edit == nullptr) return;
  MoveFocus(edit);
  std::string rest = ValidUtf8(text);
  while (!rest.empty() && Alive(edit)) {
    const std::string letter = CutCharacters(rest, 1);
    rest.erase(0, letter.size());
    bool kept = false;
    for (const char16_t unit : ToUtf16(letter)) kept = edit->events->OnCharacter(unit) || kept;
    if (!kept && Alive(edit)) EnterLetter(*edit, letter);
  }
}

void Windowing::EnterLetter(WidgetState& edit, std::string_view letter) {
  if (edit.read_only) return;
  const std::string before = edit.text;
  if (edit.all_selected) edit.text.clear();
  edit.all_selected = false;
  const auto most = static_cast<std::size_t>(edit.max_length);
  if (most == 0 || CutCharacters(edit.text, most - 1) == edit.text) edit.text += letter;
  if (edit.text != before) edit.events->OnChanged();
}

void Windowing::PressKey(std::string_view name, Key key) {
  const WidgetState& found = Find(name);
  const bool painted = found.IsButton(ButtonKind::kPainted);
  const bool box = found.kind == Kind::kList && found.list == ListKind::kBox;
  WidgetState* state = painted || box ? Reach(name) : Reach(name, Kind::kEdit);
  if (state == nullptr) return;
  MoveFocus(state);
  if (key == Key::kEnter && state->Top().TakesDialogKeys()) {
    PressEnter(state->Top().name);
  } else {
    state->events->OnKey(key);
  }
}

void Windowing::Wheel(std::string_view name, int notches) {
  const WidgetState* edit = Reach(name, Kind::kEdit);
  if (edit != nullptr && edit->edit.kind != EditKind::kMemo) edit->events->OnWheel(notches);
}

WidgetState* Windowing::ReachDialog(std::string_view window) {
  WidgetState* top = Reach(window, Kind::kTopWindow);
  return top != nullptr && top->TakesDialogKeys() ? top : nullptr;
}

void Windowing::PressEnter(std::string_view window) {
  const WidgetState* top = ReachDialog(window);
  if (top == nullptr) return;
  WidgetState* focused = WithKeyboard();
  if (focused != nullptr && focused->kind == Kind::kEdit && focused->IsIn(*top)) {
    if (focused->events->OnKey(Key::kEnter) || !Alive(focused)) return;
    if (focused->edit.kind == EditKind::kMemo) {
      EnterLetter(*focused, "\n");
      return;
    }
  }
  Report(window, {DialogKey::Kind::kEnter});
}

bool Windowing::Report(std::string_view window, const DialogKey& key) {
  const WidgetState* top = ReachDialog(window);
  return top != nullptr && top->top_events->OnDialogKey(key);
}

void Windowing::PressArrow(std::string_view window, bool backwards) {
  WidgetState* focused = WithKeyboard();
  if (Report(window, {DialogKey::Kind::kArrow, backwards}) || !Alive(focused)) return;
  if (focused->kind == Kind::kEdit) focused->events->OnKey(backwards ? Key::kUp : Key::kDown);
}

}  // namespace platform::memory
