// The recording peers behind windows and controls.
#pragma once

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "platform/controls.h"
#include "platform/memory/desktop.h"
#include "platform/memory/widget_state.h"

namespace platform::memory {

// What all kinds have in common; surfaces and texts have no more. `Interface` is Widget or extends
// it.
template <class Interface>
class PeerOf : public Interface, public WidgetState {
 public:
  PeerOf(Desktop& its_desktop, Kind its_kind, std::string_view its_name, WidgetState* on,
         WidgetEvents& reports)
      : desktop(its_desktop) {
    if (!its_name.empty() && its_name == desktop.refused) throw std::runtime_error("refused");
    kind = its_kind;
    name = its_name;
    parent = on;
    events = &reports;
    desktop.Add(*this);
  }
  ~PeerOf() override { desktop.Remove(*this); }
  PeerOf(const PeerOf&) = delete;
  PeerOf& operator=(const PeerOf&) = delete;

  void SetText(std::string_view new_text) override { WidgetState::SetText(new_text); }
  std::string Text() const override { return text; }
  void SetBounds(const Rect& to) override { WidgetState::SetBounds(to); }
  Rect Bounds() const override { return bounds; }
  Size ClientSize() const override { return WidgetState::ClientSize(); }
  void SetVisible(bool shown) override { visible = shown; }
  bool Visible() const override { return visible; }
  void SetEnabled(bool usable) override { enabled = usable; }
  bool Enabled() const override { return enabled; }
  void SetFont(const FontStyle& style) override { font = style; }
  void SetColours(Colour of_text, Colour behind) override {
    text_colour = of_text;
    background = behind;
  }
  void Focus() override {
    if (Reachable()) desktop.MoveFocus(this);
  }
  bool HasFocus() const override {
    return desktop.WithKeyboard() != nullptr && desktop.WithKeyboard()->IsIn(*this);
  }
  void Invalidate() override {}
  Point ToScreen(Point client) const override { return WidgetState::ToScreen(client); }

 protected:
  Desktop& desktop;
};

class ButtonPeer final : public PeerOf<Button> {
 public:
  using PeerOf::PeerOf;
  void SetChecked(bool ticked) override { checked = ticked; }
  bool Checked() const override { return checked; }
  void SetDefault(bool of_form) override { is_default = of_form; }
  void Press() override { desktop.Click(*this); }
};

class EditPeer final : public PeerOf<Edit> {
 public:
  using PeerOf::PeerOf;
  void SetText(std::string_view new_text) override {
    all_selected = false;
    PeerOf::SetText(new_text);
  }
  void SetMaxLength(int characters) override { max_length = characters; }
  void SetReadOnly(bool fixed) override { read_only = fixed; }
  void SelectAll() override { all_selected = true; }
};

class ListPeer final : public PeerOf<ItemList> {
 public:
  using PeerOf::PeerOf;
  void Replace(int first, int removed, std::span<const std::string> added) override {
    const auto rows = items.begin() + first;
    items.insert(items.erase(rows, rows + removed), added.begin(), added.end());
    const auto checks = row_checks.begin() + first;
    row_checks.insert(row_checks.erase(checks, checks + removed), added.size(), false);
    Select(-1);
  }
  void SetIndex(int row) override { Select(row); }
  int Index() const override { return index; }
  void SetChecked(int row, bool ticked) override {
    row_checks.at(static_cast<std::size_t>(row)) = ticked;
  }
  bool Checked(int row) const override { return row_checks.at(static_cast<std::size_t>(row)); }
};

class TreePeer final : public PeerOf<Tree> {
 public:
  using PeerOf::PeerOf;
  void SetItems(std::span<const TreeItem> rows) override {
    items.clear();
    levels.clear();
    for (const TreeItem& row : rows) {
      items.push_back(row.text);
      levels.push_back(row.level);
    }
    Select(-1);
  }
  void SetIndex(int row) override { Select(row); }
  int Index() const override { return index; }
  void ExpandAll() override {}
};

class TabsPeer final : public PeerOf<Tabs> {
 public:
  using PeerOf::PeerOf;
  void SetItems(std::span<const std::string> captions) override {
    items.assign(captions.begin(), captions.end());
    Select(index);
    if (index < 0) Select(0);
  }
  void SetIndex(int tab) override { Select(tab); }
  int Index() const override { return index; }
  Rect PageArea() const override {
    constexpr int kTabHeight = 20;
    constexpr int kEdge = 4;
    const Size size = ClientSize();
    return {kEdge, kTabHeight + kEdge, std::max(0, size.width - 2 * kEdge),
            std::max(0, size.height - kTabHeight - 2 * kEdge)};
  }
  Colour PageColour() const override { return colour::kButtonFace; }
};

class TrackBarPeer final : public PeerOf<TrackBar> {
 public:
  using PeerOf::PeerOf;
  void SetRange(int low, int high, int step) override {
    page = step;
    WidgetState::SetRange(low, high);
    SetPosition(position);
  }
  void SetPosition(int at) override { WidgetState::SetPosition(at); }
  int Position() const override { return position; }
};

class ProgressBarPeer final : public PeerOf<ProgressBar> {
 public:
  using PeerOf::PeerOf;
  void SetRange(int low, int high) override { WidgetState::SetRange(low, high); }
  void SetPosition(int at) override { WidgetState::SetPosition(at); }
};

class TopWindowPeer final : public PeerOf<TopWindow> {
 public:
  TopWindowPeer(Desktop& its_desktop, const TopWindowParams& how, TopWindowEvents& reports)
      : PeerOf(its_desktop, Kind::kTopWindow, how.name, nullptr, reports) {
    text = how.caption;
    params = how;
    top_events = &reports;
    window = this;
    dpi = desktop.TheScreen().Monitors().front().dpi;
    if (params.frame == Frame::kHint) return;
    // One pixel around a bare window; a border and a small caption on the others.
    client_origin = params.bare_popup ? Point{1, 1} : Point{3, 22};
    frame = params.bare_popup ? Size{2, 2} : Size{6, 25};
  }

  void SetBounds(const Rect& to) override {
    Rect placed = to;
    if (params.frame == Frame::kSizeableTool && largest != Size{}) {
      placed.width = std::clamp(placed.width, smallest.width, largest.width);
      placed.height = std::clamp(placed.height, smallest.height, largest.height);
    }
    if (placed == bounds) return;
    PeerOf::SetBounds(placed);
    top_events->OnPlaced();
  }
  void SetVisible(bool shown) override {
    if (!shown && HasFocus()) desktop.MoveFocus(nullptr);
    PeerOf::SetVisible(shown);
  }
  void Focus() override {
    if (!TakesDialogKeys()) {
      PeerOf::Focus();
    } else if (!HasFocus()) {
      top_events->OnFocusWanted();
    }
  }
  void Show(Activation activation) override {
    shown_with = activation;
    if (!std::exchange(visible, true) && activation == Activation::kActivate) Focus();
  }
  void SetTopmost(bool above) override { topmost = above; }
  bool Topmost() const override { return topmost; }
  void SetSizeLimits(Size least, Size most) override {
    smallest = least;
    largest = most;
  }
  void SetClientSize(Size client) override {
    SetBounds({bounds.left, bounds.top, client.width + frame.width, client.height + frame.height});
  }
  void SetScroll(const Scroll& to) override {
    constexpr int kBar = 17;
    const auto bar = [](const Scroll& of) { return of.content > of.page ? kBar : 0; };
    frame.width += bar(to) - bar(scroll);
    scroll = to;
  }
  void BeginDrag() override { ++drags; }
  bool Dragging() const override { return dragging; }
  void SetAlpha(std::uint8_t opacity) override {
    if (!desktop.layered_windows) return;
    alpha = opacity;
    alphas.push_back(opacity);
  }
  void SetShape(std::span<const Rect> parts) override { Cut({{parts.begin(), parts.end()}}); }
  void ResetShape() override { Cut(std::nullopt); }
  bool UnderPointer() const override { return desktop.UnderPointer(*this); }
  void ShowKeyMarks() override {}
  void Raise() override { ++raised; }
  int Dpi() const override { return dpi; }

 private:
  void Cut(std::optional<std::vector<Rect>> to) {
    if (shape == to) return;
    shape = std::move(to);
    ++shape_changes;
  }
};

}  // namespace platform::memory
