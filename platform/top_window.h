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
  std::string name;  // the form's name; other programs find the window by it (its class)
  std::string caption;
  Frame frame = Frame::kDialog;
  // When true, the window has no caption bar: its pop-up style is set and its dialog frame cleared.
  // A sizeable window keeps a frame one pixel wide whose edges still size it.
  bool bare_popup = false;
};

// The scroll state of a window whose content is higher than the window, in pixels.
struct Scroll {
  int content = 0;   // the height of the content
  int page = 0;      // the height of the part that the window shows
  int position = 0;  // the height of the part above the window
  int line = 0;      // the height of a small step
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
  // The user drags the window, which is about to get these bounds. The handler may change them; the
  // next bounds follow the pointer again, whatever the last ones were changed to. When a window
  // manager moves the window itself, this report comes once, after the user has let go.
  virtual void OnMoving(Rect& /*bounds*/) {}
  // The user has let go after moving or sizing the window.
  virtual void OnDragEnded() {}
  // The user scrolls to this position, which may be beyond the ends of the content.
  virtual void OnScroll(int /*position*/) {}
  // The keyboard, or the code, brought the focus to a control that takes this area of the client
  // area.
  virtual void OnFocusMoved(const Rect& /*area*/) {}
  // The window came onto a monitor of another resolution, or the user changed the resolution.
  // `bounds` are the bounds at which the window keeps its look.
  virtual void OnDpiChanged(const Rect& /*bounds*/) {}
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

  // Puts the window above all windows that are not topmost, or ends that, without moving, sizing or
  // activating it.
  virtual void SetTopmost(bool topmost) = 0;
  // Returns whether the system has the window as topmost; a full-screen program may have taken that
  // away.
  [[nodiscard]] virtual bool Topmost() const = 0;

  // Sets the smallest and largest outer size of a sizeable window, for the user and for SetBounds
  // from the next call on. A largest size of zero lifts the limits.
  virtual void SetSizeLimits(Size smallest, Size largest) = 0;

  // Sizes the window so that its client area has this size, in pixels; its place stays.
  virtual void SetClientSize(Size client) = 0;

  // Shows a scroll bar, which takes some of the width, while the content is higher than the page.
  // The controls stay where they are.
  virtual void SetScroll(const Scroll& scroll) = 0;

  // Lets the user drag the window as if by its caption; call it while the left button is down.
  // Where the system drags in a loop of its own, it returns when the drag is over.
  virtual void BeginDrag() = 0;
  // Returns whether the user is moving or sizing the window just now.
  [[nodiscard]] virtual bool Dragging() const = 0;

  // Sets the opacity of the whole window, from 0 (not visible) to 255 (opaque)
  // (SetLayeredWindowAttributes). Does nothing on systems without layered windows.
  virtual void SetAlpha(std::uint8_t alpha) = 0;

  // Limits the window to these parts, for the eye and for the mouse (SetWindowRgn). They count from
  // the upper left corner of the window with its frame. Setting the present shape does nothing.
  virtual void SetShape(std::span<const Rect> parts) = 0;
  // Gives the window its whole shape back, as at first.
  virtual void ResetShape() = 0;

  // Returns whether the pointer is on the window or on one of its controls, with no other window in
  // between.
  [[nodiscard]] virtual bool UnderPointer() const = 0;

  // Shows from now on which letters are marked and what has the keyboard (WM_CHANGEUISTATE).
  virtual void ShowKeyMarks() = 0;

  // To the front and active; with a dialog of the system above it, that is active.
  virtual void Raise() = 0;

  [[nodiscard]] virtual int Dpi() const = 0;
};

}  // namespace platform
