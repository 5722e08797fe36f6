// The two ways in which the meter lets through what is behind it: the whole window by its opacity,
// and the graph by leaving its background out of the window.
#pragma once

#include <cstdint>
#include <optional>

#include "display/graph/kxintermeter.h"
#include "display/main_menu.h"
#include "settings/store.h"
#include "toolkit/controls/panel.h"
#include "toolkit/forms/form.h"

namespace display {

class Transparency {
 public:
  // All outlive this; `line` is the panel with the numeric line, which always stays whole.
  Transparency(toolkit::Form& window, settings::Store& store, MainMenu& menu, TKxInterMeter& meter,
               const toolkit::Panel& line);
  Transparency(const Transparency&) = delete;
  Transparency& operator=(const Transparency&) = delete;

  // Takes over what is stored, and the menu shows it. Done again it changes nothing that is so.
  void ApplyStored();

  // Other options, which are stored next: "Win2kTransparentRatio" and "AutoTransparentONOFF". The
  // window shows them, unless the pointer keeps it opaque.
  void ChangeRatio(std::int64_t ratio);
  void ChangeAutomatic(bool on);

  // Toggles the opacity ("Transparent2k").
  void mnuTransparent2kClick();
  // Toggles the graph's background ("Transparent"). Without it, the display mode cannot be chosen.
  void mnuTransparentClick();

  // The one routine that sets the opacity of the window: 255 covers everything; what is stored
  // beyond 0 to 255 counts as the nearest of them. Ends a fade.
  void SetWindowAlpha(std::int64_t alpha);

  // The pointer came onto the window or one of its controls, or left it; the reports of two
  // neighbours may come in any order. Makes the window opaque while the pointer is on it, and
  // returns when that is done: with "TransparentFade" messages are delivered meanwhile.
  void PointerChanged();

  // Once a scan: sees a leave that nobody reported, and ends a fade that did not get on since the
  // last scan, because a menu or another window was opened from within it.
  void Check();

  // Gives the window the shape of what the graph shows now.
  void ApplyShape();

 private:
  void SetTransparent(bool on);
  // Towards `to` in steps of 1, the first of which is `from`. While a fade goes on, that one turns.
  void Fade(int from, int to);
  bool LetMessagesThrough(std::int64_t due);
  void ShowAlpha(int alpha);

  toolkit::Form& window_;
  settings::Store& store_;
  MainMenu& menu_;
  TKxInterMeter& meter_;
  const toolkit::Panel& line_;

  bool hovered_ = false;  // the pointer is on the window
  int alpha_ = 255;
  bool fading_ = false;             // the loop of a fade is under way
  std::optional<int> fade_target_;  // nothing: that loop is to end
  std::int64_t steps_ = 0;          // of all fades so far
  std::int64_t steps_seen_ = 0;     // of them, at the last check
};

}  // namespace display
