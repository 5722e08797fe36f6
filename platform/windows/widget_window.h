// The window behind a widget: what all kinds of widgets have in common.
#pragma once

#include <string>
#include <string_view>

#include "platform/widget.h"
#include "platform/windows/drawing.h"
#include "platform/windows/mouse.h"
#include "platform/windows/native_window.h"

namespace platform::windows {

class WidgetWindow : public NativeWindow {
 public:
  // Of a widget that this folder made; the system's own window behind it.
  [[nodiscard]] static HWND Of(Widget& widget);

  // As Widget says.
  void SetText(std::string_view text);
  [[nodiscard]] std::string Text() const;
  void SetBounds(const Rect& bounds);
  [[nodiscard]] Rect Bounds() const;
  [[nodiscard]] Size ClientSize() const;
  void SetVisible(bool visible);
  [[nodiscard]] bool Visible() const;
  void SetEnabled(bool enabled);
  [[nodiscard]] bool Enabled() const;
  void SetFont(const FontSpec& font);
  void SetColours(Colour text, Colour background);
  void Focus();
  void Invalidate();
  [[nodiscard]] Point ToScreen(Point client) const;

 protected:
  // `drawing` and `events` outlive this.
  WidgetWindow(Drawing& drawing, WidgetEvents& events) : drawing_(drawing), events_(events) {}
  ~WidgetWindow() override { ForgetName(); }

  std::optional<LRESULT> Handle(const Message& message) override;

  // Paints the client area; the canvas has the background already.
  virtual void PaintContent(Canvas& canvas) { events_.OnPaint(canvas); }

  // Reports are made from here on, so that nothing is heard of a widget that its maker does not
  // hold yet.
  void StartReporting();
  [[nodiscard]] bool Reporting() const { return reporting_; }

  // Lets another process find the window by the widget's name: GetProp with it is not null.
  void PublishName(std::string_view name);

  [[nodiscard]] Drawing& drawing() const { return drawing_; }
  [[nodiscard]] Colour text_colour() const { return text_colour_; }
  [[nodiscard]] const FontSpec& font() const { return font_; }

 private:
  [[nodiscard]] std::optional<LRESULT> HandleReports(const Message& message);
  void Paint();
  void PaintOn(HDC target, const RECT& shown);
  void ReportSize();
  void ForgetName();

  Drawing& drawing_;
  WidgetEvents& events_;
  bool reporting_ = false;
  Mouse mouse_;
  Size reported_size_;
  std::wstring published_name_;
  FontSpec font_;
  SharedFont native_font_;  // the control goes on using it
  Colour text_colour_ = colour::kWindowText;
  Colour background_ = colour::kButtonFace;
};

// Implements `Interface`, which is Widget or extends it, over a WidgetWindow.
template <class Interface>
class WidgetOf : public Interface, public WidgetWindow {
 public:
  void SetText(std::string_view text) override { WidgetWindow::SetText(text); }
  [[nodiscard]] std::string Text() const override { return WidgetWindow::Text(); }
  void SetBounds(const Rect& bounds) override { WidgetWindow::SetBounds(bounds); }
  [[nodiscard]] Rect Bounds() const override { return WidgetWindow::Bounds(); }
  [[nodiscard]] Size ClientSize() const override { return WidgetWindow::ClientSize(); }
  void SetVisible(bool visible) override { WidgetWindow::SetVisible(visible); }
  [[nodiscard]] bool Visible() const override { return WidgetWindow::Visible(); }
  void SetEnabled(bool enabled) override { WidgetWindow::SetEnabled(enabled); }
  [[nodiscard]] bool Enabled() const override { return WidgetWindow::Enabled(); }
  void SetFont(const FontSpec& font) override { WidgetWindow::SetFont(font); }
  void SetColours(Colour text, Colour background) override {
    WidgetWindow::SetColours(text, background);
  }
  void Focus() override { WidgetWindow::Focus(); }
  void Invalidate() override { WidgetWindow::Invalidate(); }
  [[nodiscard]] Point ToScreen(Point client) const override {
    return WidgetWindow::ToScreen(client);
  }

 protected:
  using WidgetWindow::WidgetWindow;
};

}  // namespace platform::windows
