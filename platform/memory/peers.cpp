#include "platform/memory/peers.h"

#include <algorithm>
#include <utility>

namespace platform::memory {
namespace {

// What a sunken frame takes on each side.
void Sink(WidgetState& state, int width) {
  state.client_origin = {width, width};
  state.frame = {2 * width, 2 * width};
}

// One pixel around a bare window; a border and a small caption on the others.
void SetFrame(WidgetState& state) {
  if (state.params.frame == Frame::kHint) return;
  if (state.params.bare_popup) {
    Sink(state, 1);
  } else {
    state.client_origin = {3, 22};
    state.frame = {6, 25};
  }
}

}  // namespace

Peer::Peer(Desktop& desktop, WidgetState::Kind kind, std::string_view name, WidgetState* parent,
           WidgetEvents& events)
    : desktop_(desktop) {
  state_.kind = kind;
  state_.name = name;
  state_.parent = parent;
  state_.events = &events;
  desktop_.Add(state_);
}

void Peer::SetText(std::string_view text) {
  if (state_.text == text) return;
  state_.text = text;
  ++state_.text_changes;
}

void Peer::SetBounds(const Rect& bounds) {
  const Size before = ClientSize();
  state_.bounds = bounds;
  if (ClientSize() != before) state_.events->OnResize(ClientSize());
}

void Peer::SetVisible(bool visible) {
  if (!visible && state_.kind == WidgetState::Kind::kTopWindow && HasFocus()) {
    desktop_.MoveFocus(nullptr);
  }
  state_.visible = visible;
}

void Peer::SetEnabled(bool enabled) { state_.enabled = enabled; }

void Peer::SetColours(Colour text, Colour background) {
  state_.text_colour = text;
  state_.background = background;
}

void Peer::Focus() {
  if (state_.Reachable()) desktop_.MoveFocus(&state_);
}

bool Peer::HasFocus() const {
  return desktop_.Focused() != nullptr && desktop_.Focused()->IsIn(state_);
}

TextPeer::TextPeer(Desktop& desktop, std::string_view name, const TextStyle& style,
                   WidgetState& parent, WidgetEvents& events)
    : PeerOf(desktop, WidgetState::Kind::kText, name, &parent, events) {
  state_.text_style = style;
  if (style.border == Border::kSunken) Sink(state_, 1);
}

ButtonPeer::ButtonPeer(Desktop& desktop, std::string_view name, ButtonKind kind,
                       WidgetState& parent, WidgetEvents& events)
    : PeerOf(desktop, WidgetState::Kind::kButton, name, &parent, events) {
  state_.button = kind;
}

EditPeer::EditPeer(Desktop& desktop, std::string_view name, const EditStyle& style,
                   WidgetState& parent, WidgetEvents& events)
    : PeerOf(desktop, WidgetState::Kind::kEdit, name, &parent, events) {
  state_.edit = style;
  if (style.border == Border::kSunken) Sink(state_, 2);
}

void EditPeer::SetText(std::string_view text) {
  state_.all_selected = false;
  PeerOf::SetText(text);
}

ListPeer::ListPeer(Desktop& desktop, std::string_view name, ListKind kind, WidgetState& parent,
                   WidgetEvents& events)
    : PeerOf(desktop, WidgetState::Kind::kList, name, &parent, events) {
  state_.list = kind;
}

void ListPeer::Replace(int first, int removed, std::span<const std::string> added) {
  const auto rows = state_.items.begin() + first;
  state_.items.insert(state_.items.erase(rows, rows + removed), added.begin(), added.end());
  const auto checks = state_.row_checks.begin() + first;
  state_.row_checks.insert(state_.row_checks.erase(checks, checks + removed), added.size(), false);
  state_.Select(-1);
}

void ListPeer::SetChecked(int row, bool checked) {
  state_.row_checks.at(static_cast<std::size_t>(row)) = checked;
}

bool ListPeer::Checked(int row) const {
  const auto at = static_cast<std::size_t>(row);
  return row >= 0 && at < state_.row_checks.size() && state_.row_checks[at];
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

void TrackBarPeer::SetRange(int lowest, int highest, int page) {
  state_.lowest = lowest;
  state_.highest = std::max(lowest, highest);
  state_.page = page;
  SetPosition(state_.position);
}

void TrackBarPeer::SetPosition(int position) {
  state_.position = std::clamp(position, state_.lowest, state_.highest);
}

void ProgressBarPeer::SetRange(int lowest, int highest) {
  state_.lowest = lowest;
  state_.highest = std::max(lowest, highest);
}

void ProgressBarPeer::SetPosition(int position) {
  state_.position = std::clamp(position, state_.lowest, state_.highest);
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
  SetFrame(state_);
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

void TopWindowPeer::Focus() {
  if (Desktop::TakesDialogKeys(state_)) {
    if (!HasFocus()) state_.top_events->OnFocusWanted();
  } else {
    PeerOf::Focus();
  }
}

void TopWindowPeer::Show(Activation activation) {
  const bool appears = !state_.visible;
  state_.shown_with = activation;
  state_.visible = true;
  if (appears && activation == Activation::kActivate) Focus();
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

void TopWindowPeer::SetShape(std::span<const Rect> parts) {
  std::vector<Rect> shape(parts.begin(), parts.end());
  if (state_.shape == shape) return;
  state_.shape = std::move(shape);
  ++state_.shape_changes;
}

void TopWindowPeer::ResetShape() {
  if (!state_.shape) return;
  state_.shape.reset();
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
