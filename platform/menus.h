// Popup menus.
#pragma once

#include <string>
#include <vector>

#include "platform/canvas.h"
#include "platform/geometry.h"
#include "platform/hot_keys.h"
#include "platform/top_window.h"

namespace platform {

// A menu as it stands while it is open; made anew for each opening.
struct MenuEntry {
  int id = 0;            // above 0, unique in the menu; returned when it is chosen
  std::string text;      // "&" marks the key, "&&" is an ampersand
  std::string shortcut;  // shown at the right, such as "Ctrl+Alt+F"; empty for none
  KeyCombination keys;   // choose it while the menu is open, at any depth; key 0 for none
  std::string hint;      // for whoever shows it while the entry is highlighted
  bool separator = false;
  bool enabled = true;
  bool checked = false;
  bool radio = false;  // the check is a dot
  int image = -1;      // index for whoever draws the entry
  std::vector<MenuEntry> children;
};

struct MenuEntryState {
  bool highlighted = false;
  int dpi = 96;
};

// Draws the entries and hears which one the user is on. The entry keeps its text for screen
// readers.
class MenuPainter {
 public:
  virtual ~MenuPainter() = default;
  // Pixels at `dpi`. `canvas` serves to measure text.
  [[nodiscard]] virtual Size Measure(const MenuEntry& entry, Canvas& canvas, int dpi) = 0;
  virtual void Paint(const MenuEntry& entry, const MenuEntryState& state, Canvas& canvas,
                     const Rect& area) = 0;
  // The highlight moved onto `entry`, or off every entry (null). `area` is on the screen.
  virtual void Highlighted(const MenuEntry* entry, const Rect& area) = 0;
};

class Menus {
 public:
  virtual ~Menus() = default;

  // Shows the menu with a corner at `at` (screen pixels) and waits; timers go on meanwhile
  // (TrackPopupMenuEx). It closes when the user clicks elsewhere or presses Esc.
  // Returns the chosen entry's id, 0 when none was.
  [[nodiscard]] virtual int Popup(TopWindow& owner, Point at, const std::vector<MenuEntry>& entries,
                                  MenuPainter& painter) = 0;

  // Closes an open menu as if the user had pressed Esc; nothing when none is open.
  virtual void Cancel() = 0;
};

}  // namespace platform
