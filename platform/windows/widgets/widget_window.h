// The window behind a widget: what all kinds of widgets have in common.
#pragma once

#include <string>
#include <string_view>

#include "platform/widget.h"
#include "platform/windows/drawing/drawing.h"
#include "platform/windows/windows/mouse.h"
#include "platform/windows/windows/native_window.h"

namespace platform::windows {

// What a widget is made with.
struct NewWidget {
  HWND parent;
  std::string_view name;  // may be empty
  Drawing& drawing;       // this and the events outlive the widget
  WidgetEvents& events;
};

// Who gets a key that was pressed in a window.
enum class KeyTaker { kDialog, kWindow, kNobody };

class WidgetWindow : public NativeWindow {
 public:
  ~WidgetWindow() override { ForgetName(); }

  // Returns the system's window behind a widget that this folder made.
  [[nodiscard]] static HWND Of(Widget& widget);
  // Returns the object behind a window, or null when it is none of this program's widgets.
  [[nodiscard]] static WidgetWindow* Of(HWND hwnd) {
    return dynamic_cast<WidgetWindow*>(NativeWindow::Of(hwnd));
  }

  // These functions do what Widget says.
  void SetText(std::string_view text);
  [[nodiscard]] std::string Text() const;
  void SetBounds(const Rect& bounds);
  [[nodiscard]] Rect Bounds() const;
  [[nodiscard]] Size ClientSize() const;
  void SetVisible(bool visible);
  [[nodiscard]] bool Visible() const;
  void SetEnabled(bool enabled);
  [[nodiscard]] bool Enabled() const;
  void SetFont(const FontStyle& font);
  void SetColours(Colour text, Colour background);
  void Focus();
  [[nodiscard]] bool HasFocus() const;
  void Invalidate();
  [[nodiscard]] Point ToScreen(Point client) const;

  // Returns what the widget is to a screen reader: nothing before its maker holds it.
  [[nodiscard]] Spoken Describe() const { return reporting_ ? events_.Describe() : Spoken{}; }
  // Returns who gets Enter or Esc; it is asked before anything else happens with them
  // (dialog_keys.h).
  [[nodiscard]] virtual KeyTaker TakerOf(WPARAM /*key*/) { return KeyTaker::kDialog; }
  // Is called when a mouse message came to the window or to one inside it.
  virtual void HearMouse(HWND /*hwnd*/, const Message& /*message*/) {}

 protected:
  // `drawing` and `events` outlive this.
  WidgetWindow(Drawing& drawing, WidgetEvents& events, Capture capture = Capture::kHere)
      : drawing_(drawing), events_(events), mouse_(capture) {}

  std::optional<LRESULT> Handle(const Message& message) override;

  // Paints the client area; the canvas has the background already.
  virtual void PaintContent(GdiCanvas& canvas) { events_.OnPaint(canvas); }
  // Paints the part `shown` of the window on `target`.
  void PaintOn(HDC target, const RECT& shown);

  // Hands what the system tells the parent of a control to the control.
  [[nodiscard]] std::optional<LRESULT> ToControl(const Message& message);

  // Returns the text in the system's form.
  [[nodiscard]] std::wstring WideText() const;
  // Starts the reports: until then nothing is heard of a widget that its maker does not hold yet.
  void StartReporting();
  [[nodiscard]] bool Reporting() const { return reporting_; }

  // Makes the widget as a control of the system and starts reporting.
  void MakeControl(const wchar_t* control, const WindowStyle& style, const NewWidget& widget);
  // Lets another process find the window by the widget's name: GetProp with it is not null.
  void PublishName(std::string_view name);
  void ForgetName();
  void ReportSize();
  void ReportMouse(const Message& message);

  [[nodiscard]] Drawing& drawing() const { return drawing_; }
  [[nodiscard]] WidgetEvents& events() const { return events_; }
  [[nodiscard]] Colour text_colour() const { return text_colour_; }
  [[nodiscard]] Colour background() const { return background_; }
  [[nodiscard]] const FontStyle& font() const { return font_; }

 private:
  [[nodiscard]] std::optional<LRESULT> HandleReports(const Message& message);
  void Paint();

  Drawing& drawing_;
  WidgetEvents& events_;
  bool reporting_ = false;
  Mouse mouse_;
  Size reported_size_;
  std::wstring published_name_;
  FontStyle font_;
  SharedFont native_font_;  // the control goes on using it
  Colour text_colour_ = colour::kWindowText;
  Colour background_ = colour::kButtonFace;
};

// Implements `Interface`, which is Widget or extends it, over `Window`, which is WidgetWindow or
// extends it.
template <class Interface, class Window = WidgetWindow>
class WidgetOf : public Interface, public Window {
 public:
  void SetText(std::string_view text) override { Window::SetText(text); }
  [[nodiscard]] std::string Text() const override { return Window::Text(); }
  void SetBounds(const Rect& bounds) override { Window::SetBounds(bounds); }
  [[nodiscard]] Rect Bounds() const override { return Window::Bounds(); }
  [[nodiscard]] Size ClientSize() const override { return Window::ClientSize(); }
  void SetVisible(bool visible) override { Window::SetVisible(visible); }
  [[nodiscard]] bool Visible() const override { return Window::Visible(); }
  void SetEnabled(bool enabled) override { Window::SetEnabled(enabled); }
  [[nodiscard]] bool Enabled() const override { return Window::Enabled(); }
  void SetFont(const FontStyle& font) override { Window::SetFont(font); }
  void SetColours(Colour text, Colour background) override { Window::SetColours(text, background); }
  void Focus() override { Window::Focus(); }
  [[nodiscard]] bool HasFocus() const override { return Window::HasFocus(); }
  void Invalidate() override { Window::Invalidate(); }
  [[nodiscard]] Point ToScreen(Point client) const override { return Window::ToScreen(client); }

 protected:
  using Window::Window;
};

}  // namespace platform::windows
