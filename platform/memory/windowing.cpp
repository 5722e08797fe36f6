#include "platform/memory/windowing.h"

#include <algorithm>
#include <stdexcept>

namespace platform::memory {

WidgetState& Windowing::Find(std::string_view name) {
  for (WidgetState* state : desktop_.Widgets()) {
    if (state->name == name) return *state;
  }
  throw std::out_of_range("no control is named " + std::string(name));
}

bool Windowing::Exists(std::string_view name) const {
  return std::ranges::count(desktop_.Widgets(), name, &WidgetState::name) > 0;
}

std::vector<const WidgetState*> Windowing::TopWindows() const {
  std::vector<const WidgetState*> top;
  for (const WidgetState* state : desktop_.Widgets()) {
    if (state->kind == Kind::kTopWindow) top.push_back(state);
  }
  return top;
}

WidgetState* Windowing::OwnTopWindow(WindowId id) {
  for (WidgetState* state : desktop_.Widgets()) {
    if (reinterpret_cast<WindowId>(state) == id) return state;
  }
  return nullptr;
}

std::string Windowing::Focused() const {
  return desktop_.Focused() != nullptr ? desktop_.Focused()->name : std::string();
}

std::vector<std::string> Windowing::TabOrder(std::string_view window) {
  WidgetState* before = desktop_.Focused();
  desktop_.MoveFocus(nullptr);
  std::vector<std::string> names;
  for (PressTab(window); !Focused().empty(); PressTab(window)) {
    if (!names.empty() && names.front() == Focused()) break;
    names.push_back(Focused());
  }
  desktop_.MoveFocus(before);
  return names;
}

}  // namespace platform::memory
