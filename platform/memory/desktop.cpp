#include "platform/memory/desktop.h"

#include <algorithm>

namespace platform::memory {

void Desktop::Remove(WidgetState& state) {
  std::erase(widgets_, &state);
  if (focused_ == &state) focused_ = nullptr;
  if (pointed_at_ == &state) pointed_at_ = nullptr;
}

bool Desktop::UnderPointer(const WidgetState& state) const {
  return pointed_at_ != nullptr && pointed_at_->IsIn(state) && state.OnScreen();
}

bool Desktop::Alive(const WidgetState* state) const {
  return std::find(widgets_.begin(), widgets_.end(), state) != widgets_.end();
}

void Desktop::MoveFocus(WidgetState* to) {
  WidgetState* from = std::exchange(focused_, to);
  if (from == to) return;
  if (to != nullptr) {
    to->focused = true;
    const WidgetState& top = TopOf(*to);
    const Point at = to->ToScreen({0, 0});
    const Point origin = top.ToScreen({0, 0});
    top.top_events->OnFocusMoved(
        {at.x - origin.x, at.y - origin.y, to->bounds.width, to->bounds.height});
  }
  if (from == nullptr) return;
  from->focused = false;
  from->all_selected = false;
  if (from->kind == WidgetState::Kind::kEdit) from->events->OnFocusLost();
}

void Desktop::FocusFirst(const WidgetState& top) {
  const std::vector<WidgetState*> stops = StopsIn(top);
  MoveFocus(stops.empty() ? nullptr : stops.front());
}

void Desktop::PassFocusOn(const WidgetState& leaving) {
  if (focused_ == nullptr || !focused_->IsIn(leaving)) return;
  if (leaving.kind == WidgetState::Kind::kTopWindow) {
    MoveFocus(nullptr);
    return;
  }
  const WidgetState& top = TopOf(leaving);
  if (!TakesDialogKeys(top)) return;
  std::vector<WidgetState*> following = ReachableIn(top);
  const auto begin = std::find(following.begin(), following.end(), &leaving);
  std::rotate(following.begin(), begin, following.end());
  for (WidgetState* next : following) {
    if (next->IsIn(leaving) || !IsStop(*next)) continue;
    MoveFocus(next);
    return;
  }
}

std::vector<WidgetState*> Desktop::ReachableIn(const WidgetState& top) const {
  std::vector<WidgetState*> found;
  if (top.Reachable()) Collect(top, found);
  return found;
}

void Desktop::Collect(const WidgetState& parent, std::vector<WidgetState*>& found) const {
  for (WidgetState* state : widgets_) {
    if (state->parent != &parent || !state->visible || !state->enabled) continue;
    found.push_back(state);
    Collect(*state, found);
  }
}

std::vector<WidgetState*> Desktop::StopsIn(const WidgetState& top) const {
  std::vector<WidgetState*> stops = ReachableIn(top);
  std::erase_if(stops, [this](const WidgetState* state) { return !IsStop(*state); });
  return stops;
}

std::vector<WidgetState*> Desktop::GroupOf(const WidgetState& radio) const {
  std::vector<WidgetState*> group;
  bool holds_it = false;
  for (WidgetState* state : widgets_) {
    if (state->parent != radio.parent) continue;
    if (state->IsButton(ButtonKind::kRadio)) {
      group.push_back(state);
      holds_it = holds_it || state == &radio;
    } else if (holds_it) {
      break;
    } else {
      group.clear();
    }
  }
  return group;
}

bool Desktop::IsStop(const WidgetState& state) const {
  switch (state.kind) {
    case WidgetState::Kind::kTopWindow:
    case WidgetState::Kind::kSurface:
    case WidgetState::Kind::kText:
    case WidgetState::Kind::kProgressBar:
      return false;
    case WidgetState::Kind::kButton:
      if (state.button == ButtonKind::kGroup) return false;
      return state.button != ButtonKind::kRadio || StopOfGroup(state) == &state;
    default:
      return true;
  }
}

// The one with the keyboard, else the checked one, else the first, of those that can be reached.
const WidgetState* Desktop::StopOfGroup(const WidgetState& radio) const {
  const WidgetState* first = nullptr;
  const WidgetState* checked = nullptr;
  for (const WidgetState* each : GroupOf(radio)) {
    if (!each->Reachable()) continue;
    if (each->focused) return each;
    if (first == nullptr) first = each;
    if (checked == nullptr && each->checked) checked = each;
  }
  return checked != nullptr ? checked : first;
}

bool Desktop::TakesDialogKeys(const WidgetState& top) {
  return top.params.frame != Frame::kHint && !top.params.bare_popup;
}

const WidgetState& Desktop::TopOf(const WidgetState& state) {
  return state.parent == nullptr ? state : TopOf(*state.parent);
}

}  // namespace platform::memory
