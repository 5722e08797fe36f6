// The calls that every native control has, and its reports.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/canvas.h"
#include "platform/geometry.h"

namespace platform {

enum class MouseButton { kNone, kLeft, kRight, kMiddle };

// The keys that are reported. An edit reports those up to kEnter, a painted button the arrows,
// kHome and kEnd, a list box kDelete.
enum class Key { kUp, kDown, kPageUp, kPageDown, kEnter, kLeft, kRight, kHome, kEnd, kDelete };

struct MouseEvent {
  Point at;                                 // client pixels of the widget
  MouseButton button = MouseButton::kNone;  // the button that went down or up; kNone for a move
  bool left_down = false;                   // the left button is held
};

// The reports of a widget, made on the thread of the user interface. A report says that the user or
// the system did something; a change by the code is reported only where the comment says so. The
// handler of a report may destroy the widget that made it.
class WidgetEvents {
 public:
  virtual ~WidgetEvents() = default;

  // The whole client area must be painted; the canvas is a back buffer that the platform shows in
  // one piece afterwards. Only surfaces, top windows and painted buttons report it.
  virtual void OnPaint(Canvas&) {}
  virtual void OnMouseMove(const MouseEvent&) {}
  virtual void OnMouseDown(const MouseEvent&) {}
  virtual void OnMouseUp(const MouseEvent&) {}
  virtual void OnDoubleClick(const MouseEvent&) {}
  // The pointer came onto the widget itself or left it; a move onto a child leaves the parent.
  virtual void OnMouseEnter() {}
  virtual void OnMouseLeave() {}
  // The user asks for a context menu at this place of the screen (right click, menu key).
  virtual void OnContextMenu(Point) {}
  // The client area has this size now, whether the user, the system or the code changed it.
  virtual void OnResize(Size) {}

  // The reports from here to OnWheel come from controls and only for what the user does: a button
  // was pressed or a box ticked; or a text or a surface was clicked, with the left button pressed
  // and released on it;
  virtual void OnClicked() {}
  // the text, the selection or the position changed;
  virtual void OnChanged() {}
  // a row of a check list was ticked or unticked;
  virtual void OnRowChecked(int /*row*/) {}
  // a key went down in an edit, a painted button or a list box; true keeps it from the control, and
  // Enter from the window;
  virtual bool OnKey(Key) { return false; }
  // a letter (a UTF-16 unit, no control character) is typed into an edit; true keeps it out;
  virtual bool OnCharacter(char16_t) { return false; }
  // the wheel turned over an edit of one line, in notches away from the user.
  virtual void OnWheel(int /*notches*/) {}

  // An edit lost the focus, whether the user or the code moved it.
  virtual void OnFocusLost() {}
  // It came to a push button or left it.
  virtual void OnFocusChanged() {}
};

// A native control. Destroying it removes it from the screen. After the window system has destroyed
// the control, its calls do nothing.
class Widget {
 public:
  virtual ~Widget() = default;

  // The text by which the window system, and so a screen reader, knows the control.
  virtual void SetText(std::string_view text) = 0;
  [[nodiscard]] virtual std::string Text() const = 0;

  // The bounds in pixels, relative to the parent's client area; for a top window relative to the
  // screen.
  virtual void SetBounds(const Rect& bounds) = 0;
  [[nodiscard]] virtual Rect Bounds() const = 0;
  [[nodiscard]] virtual Size ClientSize() const = 0;

  virtual void SetVisible(bool visible) = 0;
  // Returns the control's own flag, whether or not its parents are visible.
  [[nodiscard]] virtual bool Visible() const = 0;
  virtual void SetEnabled(bool enabled) = 0;
  [[nodiscard]] virtual bool Enabled() const = 0;

  virtual void SetFont(const FontStyle& font) = 0;
  // A disabled control shows its text in the system's grey. Lists in columns, trees, tabs and
  // progress bars keep the system's colours; so do push buttons, except for the background around
  // their face.
  virtual void SetColours(Colour text, Colour background) = 0;

  // Gives the control the focus. Does nothing while the control, or one that it lies on, is hidden
  // or disabled.
  virtual void Focus() = 0;
  // Returns whether the focus is in the control or in one that lies on it.
  [[nodiscard]] virtual bool HasFocus() const = 0;
  // Asks for a repaint of the whole client area soon.
  virtual void Invalidate() = 0;
  // Returns the place of a client point on the screen.
  [[nodiscard]] virtual Point ToScreen(Point client) const = 0;
};

}  // namespace platform
