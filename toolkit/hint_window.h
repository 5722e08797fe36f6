// The small window that tells what the control under the pointer is for.
#pragma once

#include <memory>
#include <string>

#include "platform/colour.h"
#include "platform/geometry.h"
#include "platform/timers.h"

namespace toolkit {

class Application;
class Control;

class HintWindow {
 public:
  explicit HintWindow(Application& app);
  ~HintWindow();
  HintWindow(const HintWindow&) = delete;
  HintWindow& operator=(const HintWindow&) = delete;

  // How long the pointer must rest before the hint comes, and how long it stays, both in ms; with a
  // stay of 0 it never shows.
  int Pause = 500;
  int HidePause = 2500;
  platform::Colour Colour = platform::colour::System(24);  // tool tips

  // Reports of the controls.
  void PointerOn(Control& control);
  void TextChanged(const Control& control);
  // The pointer has left the control, or the control goes.
  void Forget(const Control& control);

  // Shows `text` beside `area` (screen pixels) without a control, under the same pauses; an empty
  // text takes it away. The side where a submenu of `area` opens stays free.
  void ShowBeside(std::string_view text, const platform::Rect& area, int dpi,
                  bool opens_submenu = false);

  [[nodiscard]] bool Showing() const;

 private:
  class Window;

  void Begin();
  void Appear();
  void Disappear();

  Application& app_;
  const Control* control_ = nullptr;  // under the pointer; not owned
  std::string text_;
  platform::Rect beside_;  // on the screen; empty: at the pointer
  bool opens_submenu_ = false;
  int dpi_ = 96;
  std::unique_ptr<platform::Timer> timer_;
  std::unique_ptr<Window> window_;
};

}  // namespace toolkit
