// A window of its own on the desktop.
#pragma once

#include <span>
#include <string>

#include "platform/widget.h"

namespace platform {

enum class Frame {
  kSizeableTool,  // small caption, sizing border, no taskbar button
  kTool,          // small caption, fixed size, no taskbar button
  kDialog,        // caption with close box, fixed size
  kHint,          // bare, above everything, never active, lets the mouse through
};

struct TopWindowParams {
  std::string name;  // of the form; how other programs find the window (its class)
  std::string caption;
  Frame frame = Frame::kDialog;
  // Without a caption bar: the pop-up style set, the dialog frame cleared. What remains of a
  // sizeable window is a frame one pixel wide whose edges still size it.
  bool bare_popup = false;
};

// An inside that is higher than its window; pixels.
struct Scroll {
  int content = 0;   // the height of the inside
  int page = 0;      // what of it the window shows
  int position = 0;  // what it has above the window
  int line = 0;      // a small step
  bool operator==(const Scroll&) const = default;
};

// A key that moves about in a window or ends it.
struct DialogKey {
  enum class Kind {
    kTab,
    kControlTab,
    kEnter,
    kEscape,
    kArrow,
    kLetter,  // with Alt, or where the control with the keyboard takes no letters
  };
  Kind kind = Kind::kTab;
  bool backwards = false;  // Tab with Shift; an arrow to the left or upwards
  std::string letter = {};
  bool operator==(const DialogKey&) const = default;
};

class TopWindowEvents : public WidgetEvents {
 public:
  // The user or the system asks to close the window; nothing has happened yet.
  virtual void OnClose() {}
  // The window was moved or sized, whoever did it.
  virtual void OnPlaced() {}
  // The user drags the window, which is to get these bounds now; they follow the pointer whatever
  // the last ones were changed to, and the handler may change them. Where a window manager moves
  // the window by itself, this comes once, when the user has let go.
  virtual void OnMoving(Rect& /*bounds*/) {}
  // The user has let go after moving or sizing the window.
  virtual void OnDragEnded() {}
  // The user wants to see the inside from here on, which may be beyond its ends.
  virtual void OnScroll(int /*position*/) {}
  // The keyboard, or the code, brought the focus to a control that takes this of the client area.
  virtual void OnFocusMoved(const Rect& /*area*/) {}
  // It became or ceased to be the active window.
  virtual void OnActivate(bool /*active*/) {}
  // It came onto a monitor of another resolution, or the user changed it; `bounds` is the size that
  // keeps its look.
  virtual void OnDpiChanged(int /*dpi*/, const Rect& /*bounds*/) {}
  // The resolution or arrangement of the monitors changed.
  virtual void OnDisplayChange() {}
  // The machine came back from sleep.
  virtual void OnResume() {}
  // The Windows session ends now; the process may be gone when this returns.
  virtual void OnEndSession() {}
  // A key was pressed in a window with a caption, and the control with the keyboard did not keep
  // it: a list that is dropped down keeps Enter and Esc, a memo Enter, an edit whatever OnKey says.
  // True when it is done with; the window may be gone then. Otherwise the control gets it.
  virtual bool OnDialogKey(const DialogKey&) { return false; }
  // A window with a caption became active, and no control had the keyboard when it last was.
  virtual void OnFocusWanted() {}
  // A system colour or setting changed.
  virtual void OnSettingChange() {}
};

enum class Activation { kActivate, kLeaveFocus };

class TopWindow : public Widget {
 public:
  // Shows it; kLeaveFocus never takes the keyboard from the program that the user works in. A
  // dialog that was hidden and is activated wants the keyboard in a control; hidden again, it
  // gives the keyboard back to the window that had it.
  virtual void Show(Activation activation) = 0;

  // Above all windows that are not topmost, without moving, sizing or activating it.
  virtual void SetTopmost(bool topmost) = 0;
  // What the system says; a program that ran on the full screen may have taken it away.
  [[nodiscard]] virtual bool Topmost() const = 0;

  // The smallest and largest outer size, from the next SetBounds on as well as for the user; a
  // largest size of zero lifts the limits. Sizeable windows only.
  virtual void SetSizeLimits(Size smallest, Size largest) = 0;

  // Sizes it so that its client area has this size, in pixels; its place stays.
  virtual void SetClientSize(Size client) = 0;

  // With a scroll bar, which takes some of the width, while the inside is higher than the page. The
  // controls stay where they are.
  virtual void SetScroll(const Scroll& scroll) = 0;

  // While the left button is down: lets the user drag the window as if by its caption. Returns when
  // the drag is over, on systems where that is a loop of its own.
  virtual void BeginDrag() = 0;
  // Whether the user is moving or sizing the window just now.
  [[nodiscard]] virtual bool Dragging() const = 0;

  // How much the whole window covers what is behind it: 0 not at all, 255 fully. Nothing happens on
  // systems that have no layered windows (SetLayeredWindowAttributes).
  virtual void SetAlpha(std::uint8_t alpha) = 0;

  // Only these parts of the window exist, for the eye and for the mouse; counted from its upper
  // left corner, the frame included (SetWindowRgn). Setting the shape that it has does nothing.
  virtual void SetShape(std::span<const Rect> parts) = 0;
  // All of the window exists, as at first.
  virtual void ResetShape() = 0;

  // Whether the pointer is on the window or on a control of it, and no other window is between.
  [[nodiscard]] virtual bool UnderPointer() const = 0;

  // Shows from now on which letters are marked and what has the keyboard (WM_CHANGEUISTATE).
  virtual void ShowKeyMarks() = 0;

  // To the front and active; with a dialog of the system above it, that is active.
  virtual void Raise() = 0;

  [[nodiscard]] virtual int Dpi() const = 0;
};

}  // namespace platform
