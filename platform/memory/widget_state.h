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
  bool focused = false;  // has the keyboard
  FontStyle font;
  Colour text_colour = colour::kWindowText;
  Colour background = colour::kButtonFace;
  WidgetEvents* events = nullptr;
  WidgetState* parent = nullptr;  // null for a top window
  // How often a repaint was asked for, and how often the text changed, since a test last reset the
  // counts.
  int invalidated = 0;
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
  WidgetState* owner = nullptr;  // null for the application
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
  // Returns the place on the screen of a point of the client area.
  [[nodiscard]] Point ToScreen(Point client) const;
  // Returns whether the widget and all its parents are visible.
  [[nodiscard]] bool OnScreen() const;
  // Returns whether the user can use the widget: it and all its parents are visible and enabled.
  [[nodiscard]] bool Reachable() const;
  // Returns whether the widget is `other` or lies on it.
  [[nodiscard]] bool IsIn(const WidgetState& other) const;
  [[nodiscard]] bool IsButton(ButtonKind wanted) const {
    return kind == Kind::kButton && button == wanted;
  }
  [[nodiscard]] bool IsPush() const {
    return IsButton(ButtonKind::kPush) || IsButton(ButtonKind::kPainted);
  }
  [[nodiscard]] bool TakesKeyboard() const;
  // The rows of a drop-down list are also its text.
  void Select(int row);
  // Returns the client area as the user sees it, without the children. Of the system's own controls
  // it shows only the background.
  [[nodiscard]] std::unique_ptr<Raster> Paint(Screen& screen) const;
};

}  // namespace platform::memory
