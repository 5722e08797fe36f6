#include "platform/memory/windowing.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace platform::memory {
namespace {

WidgetState& StateOf(Widget& widget);

}  // namespace

// The parts that a plain control and a top window have in common.
class WidgetPeer : public Widget {
 public:
  WidgetPeer(Windowing& windowing, WidgetState::Kind kind, std::string_view name,
             WidgetState* parent, WidgetEvents& events)
      : windowing_(windowing) {
    state_.kind = kind;
    state_.name = name;
    state_.parent = parent;
    state_.events = &events;
    windowing_.widgets_.push_back(&state_);
  }
  ~WidgetPeer() override {
    std::erase(windowing_.widgets_, &state_);
    if (windowing_.pointed_at_ == &state_) windowing_.pointed_at_ = nullptr;
  }
  WidgetPeer(const WidgetPeer&) = delete;
  WidgetPeer& operator=(const WidgetPeer&) = delete;

  void SetText(std::string_view text) override {
    if (state_.text == text) return;
    state_.text = text;
    ++state_.text_changes;
  }
  [[nodiscard]] std::string Text() const override { return state_.text; }
  void SetBounds(const Rect& bounds) override {
    const Size before = ClientSize();
    state_.bounds = bounds;
    if (ClientSize() != before) state_.events->OnResize(ClientSize());
  }
  [[nodiscard]] Rect Bounds() const override { return state_.bounds; }
  [[nodiscard]] Size ClientSize() const override { return state_.ClientSize(); }
  void SetVisible(bool visible) override { state_.visible = visible; }
  [[nodiscard]] bool Visible() const override { return state_.visible; }
  void SetEnabled(bool enabled) override { state_.enabled = enabled; }
  [[nodiscard]] bool Enabled() const override { return state_.enabled; }
  void SetFont(const FontSpec& font) override { state_.font = font; }
  void SetColours(Colour text, Colour background) override {
    state_.text_colour = text;
    state_.background = background;
  }
  void Focus() override {
    for (WidgetState* other : windowing_.widgets_) other->focused = false;
    state_.focused = true;
  }
  void Invalidate() override { ++state_.invalidated; }
  [[nodiscard]] Point ToScreen(Point client) const override { return state_.ToScreen(client); }

  [[nodiscard]] bool LayeredWindows() const { return windowing_.layered_windows; }
  // Whether the pointer is on it or on a child of it.
  [[nodiscard]] bool UnderPointer() const {
    const WidgetState* at = windowing_.pointed_at_;
    while (at != nullptr && at != &state_) at = at->parent;
    return at != nullptr && state_.OnScreen();
  }

  [[nodiscard]] WidgetState& State() { return state_; }
  [[nodiscard]] const WidgetState& State() const { return state_; }

 protected:
  Windowing& windowing_;
  WidgetState state_;
};

class TopWindowPeer final : public TopWindow {
 public:
  TopWindowPeer(Windowing& windowing, const TopWindowParams& params, WidgetState* owner,
                TopWindowEvents& events)
      : peer_(windowing, WidgetState::Kind::kTopWindow, params.name, nullptr, events) {
    WidgetState& state = peer_.State();
    state.text = params.caption;
    state.params = params;
    state.top_events = &events;
    state.window = this;
    state.owner = owner;
    state.dpi = windowing.screen_.Monitors().front().dpi;
    SetFrame(state);
  }

  void SetText(std::string_view text) override { peer_.SetText(text); }
  [[nodiscard]] std::string Text() const override { return peer_.Text(); }
  void SetBounds(const Rect& bounds) override {
    if (bounds == peer_.Bounds()) return;
    peer_.SetBounds(bounds);
    peer_.State().top_events->OnPlaced();
  }
  [[nodiscard]] Rect Bounds() const override { return peer_.Bounds(); }
  [[nodiscard]] Size ClientSize() const override { return peer_.ClientSize(); }
  void SetVisible(bool visible) override { peer_.SetVisible(visible); }
  [[nodiscard]] bool Visible() const override { return peer_.Visible(); }
  void SetEnabled(bool enabled) override { peer_.SetEnabled(enabled); }
  [[nodiscard]] bool Enabled() const override { return peer_.Enabled(); }
  void SetFont(const FontSpec& font) override { peer_.SetFont(font); }
  void SetColours(Colour text, Colour background) override { peer_.SetColours(text, background); }
  void Focus() override { peer_.Focus(); }
  void Invalidate() override { peer_.Invalidate(); }
  [[nodiscard]] Point ToScreen(Point client) const override { return peer_.ToScreen(client); }

  void Show(Activation activation) override {
    peer_.State().shown_with = activation;
    peer_.State().visible = true;
  }
  void SetTopmost(bool topmost) override { peer_.State().topmost = topmost; }
  [[nodiscard]] bool Topmost() const override { return peer_.State().topmost; }
  void SetSizeLimits(Size smallest, Size largest) override {
    peer_.State().smallest = smallest;
    peer_.State().largest = largest;
  }
  void BeginDrag() override { ++peer_.State().drags; }
  [[nodiscard]] bool Dragging() const override { return peer_.State().dragging; }
  void SetAlpha(std::uint8_t alpha) override {
    if (!peer_.LayeredWindows()) return;
    peer_.State().alpha = alpha;
    peer_.State().alphas.push_back(alpha);
  }
  void SetShape(std::span<const Rect> parts) override {
    std::vector<Rect> shape(parts.begin(), parts.end());
    if (peer_.State().shape == shape) return;
    peer_.State().shape = std::move(shape);
    ++peer_.State().shape_changes;
  }
  void ResetShape() override {
    if (!peer_.State().shape) return;
    peer_.State().shape.reset();
    ++peer_.State().shape_changes;
  }
  [[nodiscard]] bool UnderPointer() const override { return peer_.UnderPointer(); }
  void Raise() override { ++peer_.State().raised; }
  [[nodiscard]] int Dpi() const override { return peer_.State().dpi; }

  [[nodiscard]] WidgetState& State() { return peer_.State(); }

 private:
  // One pixel around a bare window; a border and a small caption on the others.
  static void SetFrame(WidgetState& state) {
    if (state.params.frame == Frame::kHint) return;
    if (state.params.bare_popup) {
      state.client_origin = {1, 1};
      state.frame = {2, 2};
    } else {
      state.client_origin = {3, 22};
      state.frame = {6, 25};
    }
  }

  WidgetPeer peer_;
};

namespace {

WidgetState& StateOf(Widget& widget) {
  if (auto* top = dynamic_cast<TopWindowPeer*>(&widget)) return top->State();
  return dynamic_cast<WidgetPeer&>(widget).State();
}

}  // namespace

Point WidgetState::ToScreen(Point client) const {
  Point at = client;
  for (const WidgetState* state = this; state != nullptr; state = state->parent) {
    at.x += state->bounds.left + state->client_origin.x;
    at.y += state->bounds.top + state->client_origin.y;
  }
  return at;
}

bool WidgetState::OnScreen() const { return visible && (parent == nullptr || parent->OnScreen()); }

std::unique_ptr<Raster> WidgetState::Paint(Screen& screen) const {
  const Size size = ClientSize();
  auto picture = std::make_unique<Raster>(size, screen);
  const Rect all{0, 0, size.width, size.height};
  picture->Fill(all, background);
  if (kind == Kind::kText) {
    picture->Text(all, text, font, text_colour, TextAlign::kCentre);
  } else {
    events->OnPaint(*picture);
  }
  return picture;
}

std::unique_ptr<TopWindow> Windowing::CreateTopWindow(const TopWindowParams& params,
                                                      TopWindow* owner, TopWindowEvents& events) {
  return std::make_unique<TopWindowPeer>(*this, params, owner ? &StateOf(*owner) : nullptr, events);
}

std::unique_ptr<Widget> Windowing::CreateSurface(Widget& parent, std::string_view name,
                                                 WidgetEvents& events) {
  return std::make_unique<WidgetPeer>(*this, WidgetState::Kind::kSurface, name, &StateOf(parent),
                                      events);
}

std::unique_ptr<Widget> Windowing::CreateText(Widget& parent, std::string_view name,
                                              WidgetEvents& events) {
  return std::make_unique<WidgetPeer>(*this, WidgetState::Kind::kText, name, &StateOf(parent),
                                      events);
}

WidgetState& Windowing::Find(std::string_view name) {
  for (WidgetState* state : widgets_) {
    if (state->name == name) return *state;
  }
  throw std::out_of_range("no control is named " + std::string(name));
}

bool Windowing::Exists(std::string_view name) const {
  return std::any_of(widgets_.begin(), widgets_.end(),
                     [name](const WidgetState* state) { return state->name == name; });
}

bool Windowing::Reachable(const WidgetState& state) const {
  for (const WidgetState* each = &state; each != nullptr; each = each->parent) {
    if (!each->visible || !each->enabled) return false;
  }
  return true;
}

void Windowing::MoveMouse(std::string_view name, Point at, bool left_down) {
  const WidgetState& state = Find(name);
  if (Reachable(state)) state.events->OnMouseMove({at, MouseButton::kNone, left_down});
}

void Windowing::PointAt(std::string_view name) {
  WidgetState& onto = Find(name);
  WidgetState* const left = std::exchange(pointed_at_, &onto);
  if (left == &onto) return;
  if (Reachable(onto)) onto.events->OnMouseEnter();
  if (left != nullptr) left->events->OnMouseLeave();
}

void Windowing::PointAway() {
  WidgetState* const left = std::exchange(pointed_at_, nullptr);
  if (left != nullptr) left->events->OnMouseLeave();
}

void Windowing::Drag(std::string_view name, Point to) {
  WidgetState& state = Find(name);
  state.dragging = true;
  Rect bounds{to.x, to.y, state.bounds.width, state.bounds.height};
  state.top_events->OnMoving(bounds);
  state.window->SetBounds(bounds);
  state.dragging = false;
  state.top_events->OnDragEnded();
}

std::vector<const WidgetState*> Windowing::TopWindows() const {
  std::vector<const WidgetState*> top;
  for (const WidgetState* state : widgets_) {
    if (state->kind == WidgetState::Kind::kTopWindow) top.push_back(state);
  }
  return top;
}

WidgetState* Windowing::OwnTopWindow(WindowId id) {
  for (WidgetState* state : widgets_) {
    if (reinterpret_cast<WindowId>(state) == id) return state;
  }
  return nullptr;
}

void Windowing::DoubleClick(std::string_view name, Point at) {
  const WidgetState& state = Find(name);
  if (Reachable(state)) state.events->OnDoubleClick({at, MouseButton::kLeft, true});
}

void Windowing::RightClick(std::string_view name, Point at) {
  const WidgetState& state = Find(name);
  if (!Reachable(state)) return;
  state.events->OnContextMenu(state.ToScreen(at));
}

void Windowing::Place(std::string_view name, const Rect& bounds) {
  const WidgetState& state = Find(name);
  Rect placed = bounds;
  if (state.largest.width > 0) {
    placed.width = std::clamp(placed.width, state.smallest.width, state.largest.width);
    placed.height = std::clamp(placed.height, state.smallest.height, state.largest.height);
  }
  state.window->SetBounds(placed);
}

void Windowing::ClickCloseBox(std::string_view name) {
  const WidgetState& state = Find(name);
  if (Reachable(state)) state.top_events->OnClose();
}

}  // namespace platform::memory
