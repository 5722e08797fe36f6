// The recording peers behind windows and controls.
#pragma once

#include "platform/controls.h"
#include "platform/memory/desktop.h"
#include "platform/memory/widget_state.h"

namespace platform::memory {

// What all kinds have in common.
class Peer {
 public:
  Peer(Desktop& desktop, WidgetState::Kind kind, std::string_view name, WidgetState* parent,
       WidgetEvents& events);
  virtual ~Peer() { desktop_.Remove(state_); }
  Peer(const Peer&) = delete;
  Peer& operator=(const Peer&) = delete;

  [[nodiscard]] WidgetState& State() { return state_; }
  // Of a widget that this folder made.
  [[nodiscard]] static WidgetState& StateOf(Widget& widget) {
    return dynamic_cast<Peer&>(widget).State();
  }

 protected:
  [[nodiscard]] bool KeyboardIsIn() const {
    return desktop_.Focused() != nullptr && desktop_.Focused()->IsIn(state_);
  }

  Desktop& desktop_;
  WidgetState state_;
};

// Implements `Interface`, which is Widget or extends it.
template <class Interface>
class PeerOf : public Interface, public Peer {
 public:
  using Peer::Peer;

  void SetText(std::string_view text) override { state_.SetText(text); }
  [[nodiscard]] std::string Text() const override { return state_.text; }
  void SetBounds(const Rect& bounds) override { state_.SetBounds(bounds); }
  [[nodiscard]] Rect Bounds() const override { return state_.bounds; }
  [[nodiscard]] Size ClientSize() const override { return state_.ClientSize(); }
  void SetVisible(bool visible) override { state_.visible = visible; }
  [[nodiscard]] bool Visible() const override { return state_.visible; }
  void SetEnabled(bool enabled) override { state_.enabled = enabled; }
  [[nodiscard]] bool Enabled() const override { return state_.enabled; }
  void SetFont(const FontStyle& font) override { state_.font = font; }
  void SetColours(Colour text, Colour background) override {
    state_.text_colour = text;
    state_.background = background;
  }
  void Focus() override {
    if (state_.Reachable()) desktop_.MoveFocus(&state_);
  }
  [[nodiscard]] bool HasFocus() const override { return KeyboardIsIn(); }
  void Invalidate() override {}
  [[nodiscard]] Point ToScreen(Point client) const override { return state_.ToScreen(client); }
};

// Surfaces and texts.
using WidgetPeer = PeerOf<Widget>;

class ButtonPeer final : public PeerOf<Button> {
 public:
  using PeerOf::PeerOf;
  void SetChecked(bool checked) override { state_.checked = checked; }
  [[nodiscard]] bool Checked() const override { return state_.checked; }
  void SetDefault(bool is_default) override { state_.is_default = is_default; }
  void Press() override { desktop_.Click(state_); }
};

class EditPeer final : public PeerOf<Edit> {
 public:
  using PeerOf::PeerOf;
  void SetText(std::string_view text) override {
    state_.all_selected = false;
    PeerOf::SetText(text);
  }
  void SetMaxLength(int characters) override { state_.max_length = characters; }
  void SetReadOnly(bool read_only) override { state_.read_only = read_only; }
  void SelectAll() override { state_.all_selected = true; }
};

// What has rows, of which one is chosen.
template <class Interface>
class ChoicePeer : public PeerOf<Interface> {
 public:
  using PeerOf<Interface>::PeerOf;
  void SetIndex(int index) override { this->state_.Select(index); }
  [[nodiscard]] int Index() const override { return this->state_.index; }
};

class ListPeer final : public ChoicePeer<ItemList> {
 public:
  using ChoicePeer::ChoicePeer;
  void Replace(int first, int removed, std::span<const std::string> added) override;
  [[nodiscard]] int Count() const override { return static_cast<int>(state_.items.size()); }
  void SetChecked(int row, bool checked) override {
    state_.row_checks.at(static_cast<std::size_t>(row)) = checked;
  }
  [[nodiscard]] bool Checked(int row) const override {
    return row >= 0 && row < Count() && state_.row_checks[static_cast<std::size_t>(row)];
  }
};

class TreePeer final : public ChoicePeer<Tree> {
 public:
  using ChoicePeer::ChoicePeer;
  void SetItems(std::span<const TreeItem> items) override;
  void ExpandAll() override {}
};

class TabsPeer final : public ChoicePeer<Tabs> {
 public:
  using ChoicePeer::ChoicePeer;
  void SetItems(std::span<const std::string> captions) override;
  [[nodiscard]] Rect PageArea() const override;
  [[nodiscard]] Colour PageColour() const override { return colour::kButtonFace; }
};

class TrackBarPeer final : public PeerOf<TrackBar> {
 public:
  using PeerOf::PeerOf;
  void SetRange(int lowest, int highest, int page) override {
    state_.page = page;
    state_.SetRange(lowest, highest);
    SetPosition(state_.position);
  }
  void SetPosition(int position) override { state_.SetPosition(position); }
  [[nodiscard]] int Position() const override { return state_.position; }
};

class ProgressBarPeer final : public PeerOf<ProgressBar> {
 public:
  using PeerOf::PeerOf;
  void SetRange(int lowest, int highest) override { state_.SetRange(lowest, highest); }
  void SetPosition(int position) override { state_.SetPosition(position); }
};

class TopWindowPeer final : public PeerOf<TopWindow> {
 public:
  TopWindowPeer(Desktop& desktop, const TopWindowParams& params, WidgetState* owner,
                TopWindowEvents& events);
  void SetBounds(const Rect& bounds) override;
  void SetVisible(bool visible) override;
  void Focus() override;
  void Show(Activation activation) override;
  void SetTopmost(bool topmost) override { state_.topmost = topmost; }
  [[nodiscard]] bool Topmost() const override { return state_.topmost; }
  void SetSizeLimits(Size smallest, Size largest) override;
  void SetClientSize(Size client) override;
  void SetScroll(const Scroll& scroll) override;
  void BeginDrag() override { ++state_.drags; }
  [[nodiscard]] bool Dragging() const override { return state_.dragging; }
  void SetAlpha(std::uint8_t alpha) override;
  void SetShape(std::span<const Rect> parts) override { Shape({{parts.begin(), parts.end()}}); }
  void ResetShape() override { Shape(std::nullopt); }
  [[nodiscard]] bool UnderPointer() const override { return desktop_.UnderPointer(state_); }
  void ShowKeyMarks() override {}
  void Raise() override { ++state_.raised; }
  [[nodiscard]] int Dpi() const override { return state_.dpi; }

 private:
  void Shape(std::optional<std::vector<Rect>> shape);
};

}  // namespace platform::memory
