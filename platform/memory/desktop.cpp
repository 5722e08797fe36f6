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
    const WidgetState& top = TopOf(*to);
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

void Desktop::Click(WidgetState& state) const {
  if (state.IsButton(ButtonKind::kGroup)) return;
  if (state.IsButton(ButtonKind::kCheck)) state.checked = !state.checked;
  if (state.IsButton(ButtonKind::kRadio)) {
    if (state.checked) return;
    for (WidgetState* other : GroupOf(state)) other->checked = other == &state;
  }
  state.events->OnClicked();
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

bool Desktop::TakesDialogKeys(const WidgetState& top) {
  return top.params.frame != Frame::kHint && !top.params.bare_popup;
}

const WidgetState& Desktop::TopOf(const WidgetState& state) {
  return state.parent == nullptr ? state : TopOf(*state.parent);
}

}  // namespace platform::memory
