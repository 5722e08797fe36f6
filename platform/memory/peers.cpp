#include "platform/memory/peers.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace platform::memory {

Peer::Peer(Desktop& desktop, WidgetState::Kind kind, std::string_view name, WidgetState* parent,
           WidgetEvents& events)
    : desktop_(desktop) {
  if (!name.empty() && name == desktop.refused) throw std::runtime_error("refused");
  state_.kind = kind;
  state_.name = name;
  state_.parent = parent;
  state_.events = &events;
  desktop_.Add(state_);
}

void ListPeer::Replace(int first, int removed, std::span<const std::string> added) {
  const auto rows = state_.items.begin() + first;
  state_.items.insert(state_.items.erase(rows, rows + removed), added.begin(), added.end());
  const auto checks = state_.row_checks.begin() + first;
  state_.row_checks.insert(state_.row_checks.erase(checks, checks + removed), added.size(), false);
  state_.Select(-1);
}

void TreePeer::SetItems(std::span<const TreeItem> items) {
  state_.items.clear();
  state_.levels.clear();
  for (const TreeItem& item : items) {
    state_.items.push_back(item.text);
    state_.levels.push_back(item.level);
  }
  state_.index = -1;
}

void TabsPeer::SetItems(std::span<const std::string> captions) {
  state_.items.assign(captions.begin(), captions.end());
  state_.Select(state_.index);
  if (state_.index < 0) state_.Select(0);
}

Rect TabsPeer::PageArea() const {
  constexpr int kTabHeight = 20;
  constexpr int kEdge = 4;
  const Size size = ClientSize();
  return {kEdge, kTabHeight + kEdge, std::max(0, size.width - 2 * kEdge),
          std::max(0, size.height - kTabHeight - 2 * kEdge)};
}

TopWindowPeer::TopWindowPeer(Desktop& desktop, const TopWindowParams& params, WidgetState* owner,
                             TopWindowEvents& events)
    : PeerOf(desktop, WidgetState::Kind::kTopWindow, params.name, nullptr, events) {
  state_.text = params.caption;
  state_.params = params;
  state_.top_events = &events;
  state_.window = this;
  state_.owner = owner;
  state_.dpi = desktop.TheScreen().Monitors().front().dpi;
  if (params.frame == Frame::kHint) return;
  // One pixel around a bare window; a border and a small caption on the others.
  state_.client_origin = params.bare_popup ? Point{1, 1} : Point{3, 22};
  state_.frame = params.bare_popup ? Size{2, 2} : Size{6, 25};
}

void TopWindowPeer::SetBounds(const Rect& bounds) {
  Rect placed = bounds;
  if (state_.params.frame == Frame::kSizeableTool && state_.largest != Size{}) {
    placed.width = std::clamp(placed.width, state_.smallest.width, state_.largest.width);
    placed.height = std::clamp(placed.height, state_.smallest.height, state_.largest.height);
  }
  if (placed == Bounds()) return;
  PeerOf::SetBounds(placed);
  state_.top_events->OnPlaced();
}

void TopWindowPeer::SetVisible(bool visible) {
  if (!visible && HasFocus()) desktop_.MoveFocus(nullptr);
  PeerOf::SetVisible(visible);
}

void TopWindowPeer::Focus() {
  if (!Desktop::TakesDialogKeys(state_)) {
    PeerOf::Focus();
  } else if (!HasFocus()) {
    state_.top_events->OnFocusWanted();
  }
}

void TopWindowPeer::Show(Activation activation) {
  state_.shown_with = activation;
  if (!std::exchange(state_.visible, true) && activation == Activation::kActivate) Focus();
}

void TopWindowPeer::SetSizeLimits(Size smallest, Size largest) {
  state_.smallest = smallest;
  state_.largest = largest;
}

void TopWindowPeer::SetAlpha(std::uint8_t alpha) {
  if (!desktop_.layered_windows) return;
  state_.alpha = alpha;
  state_.alphas.push_back(alpha);
}

void TopWindowPeer::Shape(std::optional<std::vector<Rect>> shape) {
  if (state_.shape == shape) return;
  state_.shape = std::move(shape);
  ++state_.shape_changes;
}

void TopWindowPeer::SetScroll(const Scroll& scroll) {
  constexpr int kBar = 17;
  const auto bar = [](const Scroll& of) { return of.content > of.page ? kBar : 0; };
  state_.frame.width += bar(scroll) - bar(state_.scroll);
  state_.scroll = scroll;
}

void TopWindowPeer::SetClientSize(Size client) {
  SetBounds({state_.bounds.left, state_.bounds.top, client.width + state_.frame.width,
             client.height + state_.frame.height});
}

}  // namespace platform::memory
