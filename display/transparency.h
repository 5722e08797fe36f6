// The two ways in which the meter lets through what is behind it: the whole window by its opacity,
// and the graph by leaving its background out of the window.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "display/graph/kxintermeter.h"
#include "display/main_menu.h"
#include "settings/store.h"
#include "toolkit/controls/panel.h"
#include "toolkit/forms/form.h"

namespace display {

class Transparency {
 public:
  // All arguments outlive the object. `line` is the panel with the numeric line, which always stays
  // whole.
  Transparency(toolkit::Form& window, settings::Store& store, MainMenu& menu, TKxInterMeter& meter,
               const toolkit::Panel& line);
  Transparency(const Transparency&) = delete;
  Transparency& operator=(const Transparency&) = delete;

  // Applies the stored options to the window and to the menu. A second call changes nothing.
  void ApplyStored();

  // Apply a changed option, "Win2kTransparentRatio" or "AutoTransparentONOFF", which the caller
  // stores next. The window shows it, unless the pointer keeps the window opaque.
  void ChangeRatio(std::int64_t ratio);
  void ChangeAutomatic(bool on);

  // Runs when the user has switched the opacity on or off in the menu or by its key.
  std::function<void()> OnToggled;

  // Toggles the opacity ("Transparent2k").
  void mnuTransparent2kClick();
  // Toggles the graph's background ("Transparent"). While the background is left out, the display
  // mode cannot be chosen.
  void mnuTransparentClick();

  // Sets the opacity of the window; 255 covers everything. A value beyond 0 to 255 counts as the
  // nearer end. Ends a fade. All other code sets the opacity through this function.
  void SetWindowAlpha(std::int64_t alpha);

  // Is called when the pointer came onto the window or one of its controls, or left it; the reports
  // of two neighbours may come in any order. Makes the window opaque while the pointer is on it,
  // and returns when that is done. With "TransparentFade", messages are delivered meanwhile.
  void PointerChanged();

  // Is called once a scan. It notices where the pointer is when nobody reported it, and ends a
  // fade that made no step since the last scan, because a menu or another window was opened from
  // within it.
  void Check();

  // Gives the window the shape of what the graph shows now.
  void ApplyShape();

 private:
  void SetTransparent(bool on);
  // Fades to `to` in steps of 1, the first of which is `from`. While a fade goes on, that fade
  // takes the new target instead.
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
  std::optional<int> fade_target_;  // nullopt: that loop is to end
  std::int64_t steps_ = 0;          // made by all fades so far
  std::int64_t steps_seen_ = 0;     // value of steps_ at the last check
};

}  // namespace display
