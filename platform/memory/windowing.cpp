#include "platform/memory/windowing.h"

#include <algorithm>
#include <stdexcept>

#include "platform/memory/peers.h"

namespace platform::memory {

std::unique_ptr<TopWindow> Windowing::CreateTopWindow(const TopWindowParams& params,
                                                      TopWindow* owner, TopWindowEvents& events) {
  return std::make_unique<TopWindowPeer>(desktop_, params, owner ? &Peer::StateOf(*owner) : nullptr,
                                         events);
}

std::unique_ptr<Widget> Windowing::CreateSurface(Widget& parent, std::string_view name,
                                                 WidgetEvents& events) {
  return std::make_unique<WidgetPeer>(desktop_, WidgetState::Kind::kSurface, name,
                                      &Peer::StateOf(parent), events);
}

std::unique_ptr<Widget> Windowing::CreateText(Widget& parent, std::string_view name,
                                              const TextStyle& style, WidgetEvents& events) {
  return std::make_unique<TextPeer>(desktop_, name, style, Peer::StateOf(parent), events);
}

std::unique_ptr<Button> Windowing::CreateButton(Widget& parent, std::string_view name,
                                                ButtonKind kind, WidgetEvents& events) {
  return std::make_unique<ButtonPeer>(desktop_, name, kind, Peer::StateOf(parent), events);
}

std::unique_ptr<Edit> Windowing::CreateEdit(Widget& parent, std::string_view name,
                                            const EditStyle& style, WidgetEvents& events) {
  return std::make_unique<EditPeer>(desktop_, name, style, Peer::StateOf(parent), events);
}

std::unique_ptr<ItemList> Windowing::CreateList(Widget& parent, std::string_view name,
                                                ListKind kind, WidgetEvents& events) {
  return std::make_unique<ListPeer>(desktop_, name, kind, Peer::StateOf(parent), events);
}

std::unique_ptr<Tree> Windowing::CreateTree(Widget& parent, std::string_view name,
                                            WidgetEvents& events) {
  return std::make_unique<TreePeer>(desktop_, name, Peer::StateOf(parent), events);
}

std::unique_ptr<Tabs> Windowing::CreateTabs(Widget& parent, std::string_view name,
                                            WidgetEvents& events) {
  return std::make_unique<TabsPeer>(desktop_, name, Peer::StateOf(parent), events);
}

std::unique_ptr<TrackBar> Windowing::CreateTrackBar(Widget& parent, std::string_view name,
                                                    WidgetEvents& events) {
  return std::make_unique<TrackBarPeer>(desktop_, name, Peer::StateOf(parent), events);
}

std::unique_ptr<ProgressBar> Windowing::CreateProgressBar(Widget& parent, std::string_view name,
                                                          WidgetEvents& events) {
  return std::make_unique<ProgressBarPeer>(desktop_, name, Peer::StateOf(parent), events);
}

WidgetState& Windowing::Find(std::string_view name) {
  for (WidgetState* state : desktop_.Widgets()) {
    if (state->name == name) return *state;
  }
  throw std::out_of_range("no control is named " + std::string(name));
}

bool Windowing::Exists(std::string_view name) const {
  const std::vector<WidgetState*>& widgets = desktop_.Widgets();
  return std::any_of(widgets.begin(), widgets.end(),
                     [name](const WidgetState* state) { return state->name == name; });
}

std::vector<const WidgetState*> Windowing::TopWindows() const {
  std::vector<const WidgetState*> top;
  for (const WidgetState* state : desktop_.Widgets()) {
    if (state->kind == WidgetState::Kind::kTopWindow) top.push_back(state);
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
