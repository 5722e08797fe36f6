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

  // As Widget says.
  void SetText(std::string_view text);
  [[nodiscard]] std::string Text() const { return state_.text; }
  void SetBounds(const Rect& bounds);
  [[nodiscard]] Rect Bounds() const { return state_.bounds; }
  [[nodiscard]] Size ClientSize() const { return state_.ClientSize(); }
  void SetVisible(bool visible);
  [[nodiscard]] bool Visible() const { return state_.visible; }
  void SetEnabled(bool enabled);
  [[nodiscard]] bool Enabled() const { return state_.enabled; }
  void SetFont(const FontStyle& font) { state_.font = font; }
  void SetColours(Colour text, Colour background);
  void Focus();
  [[nodiscard]] bool HasFocus() const;
  void Invalidate() { ++state_.invalidated; }
  [[nodiscard]] Point ToScreen(Point client) const { return state_.ToScreen(client); }

  [[nodiscard]] WidgetState& State() { return state_; }
  // Of a widget that this folder made.
  [[nodiscard]] static WidgetState& StateOf(Widget& widget) {
    return dynamic_cast<Peer&>(widget).State();
  }

 protected:
  Desktop& desktop_;
  WidgetState state_;
};

// Implements `Interface`, which is Widget or extends it, over a Peer.
template <class Interface>
class PeerOf : public Interface, public Peer {
 public:
  void SetText(std::string_view text) override { Peer::SetText(text); }
  [[nodiscard]] std::string Text() const override { return Peer::Text(); }
  void SetBounds(const Rect& bounds) override { Peer::SetBounds(bounds); }
  [[nodiscard]] Rect Bounds() const override { return Peer::Bounds(); }
  [[nodiscard]] Size ClientSize() const override { return Peer::ClientSize(); }
  void SetVisible(bool visible) override { Peer::SetVisible(visible); }
  [[nodiscard]] bool Visible() const override { return Peer::Visible(); }
  void SetEnabled(bool enabled) override { Peer::SetEnabled(enabled); }
  [[nodiscard]] bool Enabled() const override { return Peer::Enabled(); }
  void SetFont(const FontStyle& font) override { Peer::SetFont(font); }
  void SetColours(Colour text, Colour background) override { Peer::SetColours(text, background); }
  void Focus() override { Peer::Focus(); }
  [[nodiscard]] bool HasFocus() const override { return Peer::HasFocus(); }
  void Invalidate() override { Peer::Invalidate(); }
  [[nodiscard]] Point ToScreen(Point client) const override { return Peer::ToScreen(client); }

  using Peer::Peer;
};

// Surfaces.
using WidgetPeer = PeerOf<Widget>;

class TextPeer final : public PeerOf<Widget> {
 public:
  TextPeer(Desktop& desktop, std::string_view name, const TextStyle& style, WidgetState& parent,
           WidgetEvents& events);
};

class ButtonPeer final : public PeerOf<Button> {
 public:
  ButtonPeer(Desktop& desktop, std::string_view name, ButtonKind kind, WidgetState& parent,
             WidgetEvents& events);
  void SetChecked(bool checked) override { state_.checked = checked; }
  [[nodiscard]] bool Checked() const override { return state_.checked; }
  void SetDefault(bool is_default) override { state_.is_default = is_default; }
  void Press() override { desktop_.Click(state_); }
};

class EditPeer final : public PeerOf<Edit> {
 public:
  EditPeer(Desktop& desktop, std::string_view name, const EditStyle& style, WidgetState& parent,
           WidgetEvents& events);
  void SetText(std::string_view text) override;
  void SetMaxLength(int characters) override { state_.max_length = characters; }
  void SetReadOnly(bool read_only) override { state_.read_only = read_only; }
  void SelectAll() override { state_.all_selected = true; }
};

class ListPeer final : public PeerOf<ItemList> {
 public:
  ListPeer(Desktop& desktop, std::string_view name, ListKind kind, WidgetState& parent,
           WidgetEvents& events);
  void Replace(int first, int removed, std::span<const std::string> added) override;
  [[nodiscard]] int Count() const override { return static_cast<int>(state_.items.size()); }
  void SetIndex(int index) override { state_.Select(index); }
  [[nodiscard]] int Index() const override { return state_.index; }
  void SetChecked(int row, bool checked) override;
  [[nodiscard]] bool Checked(int row) const override;
};

class TreePeer final : public PeerOf<Tree> {
 public:
  TreePeer(Desktop& desktop, std::string_view name, WidgetState& parent, WidgetEvents& events)
      : PeerOf(desktop, WidgetState::Kind::kTree, name, &parent, events) {}
  void SetItems(std::span<const TreeItem> items) override;
  void SetIndex(int index) override { state_.Select(index); }
  [[nodiscard]] int Index() const override { return state_.index; }
  void ExpandAll() override {}
};

class TabsPeer final : public PeerOf<Tabs> {
 public:
  TabsPeer(Desktop& desktop, std::string_view name, WidgetState& parent, WidgetEvents& events)
      : PeerOf(desktop, WidgetState::Kind::kTabs, name, &parent, events) {}
  void SetItems(std::span<const std::string> captions) override;
  void SetIndex(int index) override { state_.Select(index); }
  [[nodiscard]] int Index() const override { return state_.index; }
  [[nodiscard]] Rect PageArea() const override;
  [[nodiscard]] Colour PageColour() const override { return colour::kButtonFace; }
};

class TrackBarPeer final : public PeerOf<TrackBar> {
 public:
  TrackBarPeer(Desktop& desktop, std::string_view name, WidgetState& parent, WidgetEvents& events)
      : PeerOf(desktop, WidgetState::Kind::kTrackBar, name, &parent, events) {}
  void SetRange(int lowest, int highest, int page) override;
  void SetPosition(int position) override;
  [[nodiscard]] int Position() const override { return state_.position; }
};

class ProgressBarPeer final : public PeerOf<ProgressBar> {
 public:
  ProgressBarPeer(Desktop& desktop, std::string_view name, WidgetState& parent,
                  WidgetEvents& events)
      : PeerOf(desktop, WidgetState::Kind::kProgressBar, name, &parent, events) {}
  void SetRange(int lowest, int highest) override;
  void SetPosition(int position) override;
};

class TopWindowPeer final : public PeerOf<TopWindow> {
 public:
  TopWindowPeer(Desktop& desktop, const TopWindowParams& params, WidgetState* owner,
                TopWindowEvents& events);
  void SetBounds(const Rect& bounds) override;
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
  void SetShape(std::span<const Rect> parts) override;
  void ResetShape() override;
  [[nodiscard]] bool UnderPointer() const override { return desktop_.UnderPointer(state_); }
  void ShowKeyMarks() override {}
  void Raise() override { ++state_.raised; }
  [[nodiscard]] int Dpi() const override { return state_.dpi; }
};

}  // namespace platform::memory
