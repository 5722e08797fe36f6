// The desktop that the contract tests of windows and drawing run against, with a user who does what
// a test says. The build chooses the body.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "platform/platform.h"

namespace contract {

class Desk {
 public:
  virtual ~Desk() = default;

  [[nodiscard]] virtual platform::Platform& Platform() = 0;

  // The user's doings. `name` is a widget's name or, of a top window, the form's; `at` is in client
  // pixels.
  virtual void MoveMouse(std::string_view name, platform::Point at, bool left_down) = 0;
  virtual void DoubleClick(std::string_view name, platform::Point at) = 0;
  virtual void RightClick(std::string_view name, platform::Point at) = 0;
  virtual void ClickCloseBox(std::string_view name) = 0;
  // Moves and sizes a top window.
  virtual void Place(std::string_view name, const platform::Rect& bounds) = 0;
  // Chooses the entry with this text from the menu that opens next; "" presses Esc.
  virtual void WillChoose(std::string_view text) = 0;

  // Clicks the program's icon in the notification area, or asks for its menu at a place of the
  // screen.
  virtual void ClickTray() = 0;
  virtual void RightClickTray(platform::Point at) = 0;

  // Puts the pointer onto a visible widget, or away from all.
  virtual void PointAt(std::string_view name) = 0;
  virtual void PointAway() = 0;
  // Drags a top window by so many pixels, and lets go.
  virtual void Drag(std::string_view name, platform::Point by) = 0;
  virtual void PressKeys(const platform::KeyCombination& keys) = 0;

  // The doings of another program. It opens a window, hangs or answers again, and takes keys.
  virtual platform::WindowId OpenOther(std::string_view title) = 0;
  virtual void LetOtherHang(bool hang) = 0;
  virtual void LetOtherTake(const platform::KeyCombination& keys) = 0;

  // With controls. One that is hidden or disabled, also through what it lies on, does not hear it.
  virtual void Press(std::string_view name) = 0;
  virtual void Type(std::string_view name, std::string_view text) = 0;
  virtual void PressKey(std::string_view name, platform::Key key) = 0;
  virtual void Wheel(std::string_view name, int notches) = 0;
  virtual void Choose(std::string_view name, int index) = 0;
  virtual void Tick(std::string_view name, int row) = 0;
  virtual void Drag(std::string_view name, int position) = 0;

  // Keys in a top window, wherever the keyboard is in it.
  virtual void PressEnter(std::string_view window) = 0;
  virtual void PressEsc(std::string_view window) = 0;
  virtual void PressTab(std::string_view window, bool backwards) = 0;
  virtual void PressCtrlTab(std::string_view window, bool backwards) = 0;
  virtual void PressAlt(std::string_view window, char letter) = 0;
  virtual void PressArrow(std::string_view window, bool backwards) = 0;

  // Whether a dialog of the system is open and hears the user.
  [[nodiscard]] virtual bool DialogListens() = 0;
  // Answers it: for a file, for the colour that is shown, or not.
  virtual void ChooseFile(std::string_view path) = 0;
  virtual void ConfirmColour() = 0;
  virtual void CancelDialog() = 0;

  // Runs `step` once, from the message loop that runs next or goes on.
  virtual void Later(std::function<void()> step) = 0;
  // Lets time pass and messages be delivered until `condition` is true; false when it does not come
  // true in a time that is ample for it.
  [[nodiscard]] virtual bool LetHappen(const std::function<bool()>& condition) = 0;
};

[[nodiscard]] std::unique_ptr<Desk> MakeDesk();

}  // namespace contract
