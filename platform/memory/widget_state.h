// What a window or control in memory knows of itself.
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

// The state of a native control. Tests hold it through a reference that is good as long as the
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
  Point client_origin;  // within the bounds: what the frame and caption take at left and top
  Size frame;           // what they take in all
  bool visible = false;
  bool enabled = true;
  bool focused = false;  // has the keyboard
  FontSpec font;
  Colour text_colour = colour::kWindowText;
  Colour background = colour::kButtonFace;
  WidgetEvents* events = nullptr;
  WidgetState* parent = nullptr;  // null for a top window
  // How often each was asked for or changed since the test last looked.
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
  bool all_selected = false;  // what is typed next replaces the text

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
  std::optional<std::uint8_t> alpha;       // nothing: not a layered window
  std::vector<std::uint8_t> alphas;        // every one that was set
  std::optional<std::vector<Rect>> shape;  // nothing: the whole window
  int shape_changes = 0;
  int raised = 0;

  [[nodiscard]] Size ClientSize() const {
    return {std::max(0, bounds.width - frame.width), std::max(0, bounds.height - frame.height)};
  }
  // The place on the screen of a point of its client area.
  [[nodiscard]] Point ToScreen(Point client) const;
  // Whether it and all its parents are visible.
  [[nodiscard]] bool OnScreen() const;
  // Whether the user can do something with it: it and all its parents are visible and enabled.
  [[nodiscard]] bool Reachable() const;
  // Whether it is `other` or lies on it.
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
  // Its client area as the user sees it, children not included; of the system's own controls only
  // the background.
  [[nodiscard]] std::unique_ptr<Raster> Paint(Screen& screen) const;
};

}  // namespace platform::memory
