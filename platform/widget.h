// What every native control has, and what it reports.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/canvas.h"
#include "platform/geometry.h"

namespace platform {

enum class MouseButton { kNone, kLeft, kRight, kMiddle };

// The keys that are reported: by an edit those up to kEnter, by a painted button the arrows, kHome
// and kEnd, by a list box kDelete.
enum class Key { kUp, kDown, kPageUp, kPageDown, kEnter, kLeft, kRight, kHome, kEnd, kDelete };

struct MouseEvent {
  Point at;                                 // client pixels of the widget
  MouseButton button = MouseButton::kNone;  // which one went down or up; none for a move
  bool left_down = false;                   // the left button is held
};

// Reports of a widget, on the thread of the user interface. A report is made because the user or
// the system did something; what the code sets itself comes back as a report only where the comment
// says so. A report may destroy the widget that made it.
class WidgetEvents {
 public:
  virtual ~WidgetEvents() = default;

  // The whole client area is to be painted; the canvas is a back buffer that the platform shows in
  // one piece afterwards. Surfaces, top windows and painted buttons only.
  virtual void OnPaint(Canvas&) {}
  virtual void OnMouseMove(const MouseEvent&) {}
  virtual void OnMouseDown(const MouseEvent&) {}
  virtual void OnMouseUp(const MouseEvent&) {}
  virtual void OnDoubleClick(const MouseEvent&) {}
  // The pointer came onto the widget itself or left it; moving to a child leaves the parent.
  virtual void OnMouseEnter() {}
  virtual void OnMouseLeave() {}
  // A context menu is wanted at this place of the screen (right click, menu key).
  virtual void OnContextMenu(Point) {}
  // The client area has this size now, whoever changed it.
  virtual void OnResize(Size) {}

  // Controls, only for what the user does:
  // a button was pressed, a box ticked; a text or a surface was clicked, which is the left button
  // pressed and released on it;
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

  // The keyboard left an edit, whoever moved it.
  virtual void OnFocusLost() {}
  // It came to a push button or left it.
  virtual void OnFocusChanged() {}
};

// A native control. Destroying it removes it from the screen. Calls after the window system took it
// away do nothing.
class Widget {
 public:
  virtual ~Widget() = default;

  // The text that the window system, and so a screen reader, knows it by.
  virtual void SetText(std::string_view text) = 0;
  [[nodiscard]] virtual std::string Text() const = 0;

  // Pixels; relative to the parent's client area, for a top window on the screen.
  virtual void SetBounds(const Rect& bounds) = 0;
  [[nodiscard]] virtual Rect Bounds() const = 0;
  [[nodiscard]] virtual Size ClientSize() const = 0;

  virtual void SetVisible(bool visible) = 0;
  // Its own flag, whatever its parents are.
  [[nodiscard]] virtual bool Visible() const = 0;
  virtual void SetEnabled(bool enabled) = 0;
  [[nodiscard]] virtual bool Enabled() const = 0;

  virtual void SetFont(const FontSpec& font) = 0;
  // A disabled one shows its text in the system's grey. Lists in columns, trees, tabs and progress
  // bars keep the system's colours; so do push buttons, but for what shows around them.
  virtual void SetColours(Colour text, Colour background) = 0;

  // Puts the keyboard into it; nothing happens while it, or something that it lies on, is hidden or
  // disabled.
  virtual void Focus() = 0;
  // Whether the keyboard is in it or in something that lies on it.
  [[nodiscard]] virtual bool HasFocus() const = 0;
  // Asks for a repaint of the whole client area soon.
  virtual void Invalidate() = 0;
  // The place of a client point on the screen.
  [[nodiscard]] virtual Point ToScreen(Point client) const = 0;
};

}  // namespace platform
