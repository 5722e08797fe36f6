// Popup menus.
#pragma once

#include <string>
#include <vector>

#include "platform/canvas.h"
#include "platform/geometry.h"
#include "platform/hot_keys.h"
#include "platform/top_window.h"

namespace platform {

// An entry of a menu. The entries are made anew each time the menu opens.
struct MenuEntry {
  int id = 0;            // above 0, unique in the menu; returned when the entry is chosen
  std::string text;      // "&" marks the key, "&&" is an ampersand
  std::string shortcut;  // shown at the right, such as "Ctrl+Alt+F"; empty for none
  KeyCombination keys;   // choose the entry while the menu is open, at any depth; key 0 for none
  std::string hint;      // for the painter, which may show it while the entry is highlighted
  bool separator = false;
  bool enabled = true;
  bool checked = false;
  bool radio = false;  // the check is a dot
  int image = -1;      // index for the painter
  std::vector<MenuEntry> children;
};

struct MenuEntryState {
  bool highlighted = false;
  int dpi = 96;
};

// Draws the entries and is told which one is highlighted. Screen readers get the text of the entry
// itself.
class MenuPainter {
 public:
  virtual ~MenuPainter() = default;
  // Returns the size of an entry in pixels at `dpi`. `canvas` serves to measure text.
  [[nodiscard]] virtual Size Measure(const MenuEntry& entry, Canvas& canvas, int dpi) = 0;
  virtual void Paint(const MenuEntry& entry, const MenuEntryState& state, Canvas& canvas,
                     const Rect& area) = 0;
  // The highlight moved onto `entry`, or off every entry (null). `area` is on the screen.
  virtual void Highlighted(const MenuEntry* entry, const Rect& area) = 0;
};

class Menus {
 public:
  virtual ~Menus() = default;

  // Shows the menu with a corner at `at` (screen pixels) and waits until it closes
  // (TrackPopupMenuEx); timers go on meanwhile. The menu also closes when the user clicks elsewhere
  // or presses Esc. Returns the chosen entry's id, or 0 when none was chosen.
  [[nodiscard]] virtual int Popup(Point at, const std::vector<MenuEntry>& entries,
                                  MenuPainter& painter) = 0;

  // Closes the open menu as if the user had pressed Esc. Does nothing when none is open.
  virtual void Cancel() = 0;
};

}  // namespace platform
