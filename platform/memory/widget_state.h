// The state of a window or control in memory.
#pragma once

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/controls.h"
#include "platform/memory/canvas.h"
#include "platform/top_window.h"

namespace platform::memory {

// The state of a native control. Tests hold a reference to it, which is valid as long as the
// control lives.
struct WidgetState {
  virtual ~WidgetState() = default;

  enum class Kind {
    kTopWindow,
    kSurface,
    kText,
    kButton,
    kEdit,
    kList,
    kTree,
    kTabs,
    kTrackBar,
    kProgressBar,
  };

  Kind kind = Kind::kSurface;
  std::string name;
  std::string text;
  Rect bounds;
  Point client_origin;  // within the bounds: what frame and caption take at left and top
  Size frame;           // width and height that frame and caption take on all sides together
  bool visible = false;
  bool enabled = true;
  FontStyle font;
  Colour text_colour = colour::kWindowText;
  Colour background = colour::kButtonFace;
  WidgetEvents* events = nullptr;
  WidgetState* parent = nullptr;  // null for a top window
  int text_changes = 0;

  // Texts.
  TextStyle text_style;

  // Buttons.
  ButtonKind button = ButtonKind::kPush;
  bool checked = false;
  bool is_default = false;

  // Edits.
  EditStyle edit;
  int max_length = 0;  // characters; 0 for none
  bool read_only = false;
  bool all_selected = false;  // the next typed text replaces all of it

  // Lists, trees, tabs.
  ListKind list = ListKind::kBox;
  std::vector<std::string> items;
  std::vector<int> levels;       // of a tree, for each item
  std::vector<bool> row_checks;  // of a check list, for each item
  int index = -1;

  // Track bars and progress bars.
  int lowest = 0;
  int highest = 100;
  int page = 1;
  int position = 0;

  // Top windows only.
  TopWindowParams params;
  TopWindowEvents* top_events = nullptr;
  TopWindow* window = nullptr;
  bool topmost = false;
  Scroll scroll;
  Size smallest;
  Size largest;
  Activation shown_with = Activation::kActivate;
  int dpi = 96;
  int drags = 0;
  bool dragging = false;
  std::optional<std::uint8_t> alpha;       // nullopt: not a layered window
  std::vector<std::uint8_t> alphas;        // every alpha that was set
  std::optional<std::vector<Rect>> shape;  // nullopt: the whole window
  int shape_changes = 0;
  int raised = 0;

  [[nodiscard]] Size ClientSize() const {
    return {std::max(0, bounds.width - frame.width), std::max(0, bounds.height - frame.height)};
  }
  void SetText(std::string_view new_text) {
    if (text != new_text) ++text_changes;
    text = new_text;
  }
  void SetBounds(const Rect& to) {
    const Size before = ClientSize();
    bounds = to;
    if (ClientSize() != before) events->OnResize(ClientSize());
  }
  // Sets what a sunken frame takes on each side.
  void Sink(int width) {
    client_origin = {width, width};
    frame = {2 * width, 2 * width};
  }
  void SetRange(int low, int high) {
    lowest = low;
    highest = std::max(low, high);
  }
  void SetPosition(int at) { position = std::clamp(at, lowest, highest); }
  // Returns the place on the screen of a point of the client area.
  [[nodiscard]] Point ToScreen(Point client) const {
    const Point origin = parent == nullptr ? Point{} : parent->ToScreen({0, 0});
    return {origin.x + bounds.left + client_origin.x + client.x,
            origin.y + bounds.top + client_origin.y + client.y};
  }
  // Returns whether the widget and all its parents are visible.
  [[nodiscard]] bool OnScreen() const {
    return visible && (parent == nullptr || parent->OnScreen());
  }
  // Returns whether the user can use the widget: it and all its parents are visible and enabled.
  [[nodiscard]] bool Reachable() const {
    return visible && enabled && (parent == nullptr || parent->Reachable());
  }
  // Returns whether the widget is `other` or lies on it.
  [[nodiscard]] bool IsIn(const WidgetState& other) const {
    return this == &other || (parent != nullptr && parent->IsIn(other));
  }
  [[nodiscard]] const WidgetState& Top() const { return parent == nullptr ? *this : parent->Top(); }
  // Returns whether the window that it is has the keys of a dialog.
  [[nodiscard]] bool TakesDialogKeys() const {
    return params.frame != Frame::kHint && !params.bare_popup;
  }
  [[nodiscard]] bool IsButton(ButtonKind wanted) const {
    return kind == Kind::kButton && button == wanted;
  }
  [[nodiscard]] bool IsPush() const {
    return IsButton(ButtonKind::kPush) || IsButton(ButtonKind::kPainted);
  }
  [[nodiscard]] bool TakesKeyboard() const {
    return kind != Kind::kTopWindow && kind != Kind::kSurface && kind != Kind::kText &&
           kind != Kind::kProgressBar && !IsButton(ButtonKind::kGroup);
  }
  // The rows of a drop-down list are also its text.
  void Select(int row) {
    index = row >= 0 && row < static_cast<int>(items.size()) ? row : -1;
    const bool drops_down = list == ListKind::kCombo || list == ListKind::kFontCombo;
    if (kind != Kind::kList || !drops_down) return;
    text = index < 0 ? std::string() : items[static_cast<std::size_t>(index)];
  }
  // Returns the client area as the user sees it, without the children. Of the system's own controls
  // it shows only the background.
  [[nodiscard]] std::unique_ptr<Raster> Paint(Screen& screen) const {
    auto picture = std::make_unique<Raster>(ClientSize(), screen);
    picture->Fill(picture->Area(), background);
    if (kind == Kind::kText) {
      picture->Text(picture->Area(), text, font, text_colour, text_style.align);
    } else if (kind == Kind::kTopWindow || kind == Kind::kSurface ||
               IsButton(ButtonKind::kPainted)) {
      events->OnPaint(*picture);
    }
    return picture;
  }
};

}  // namespace platform::memory
