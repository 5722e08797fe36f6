// Widgets that are painted here and not by the system.
#pragma once

#include "platform/controls.h"
#include "platform/windows/widgets/widget_window.h"

namespace platform::windows {

// An area that the program paints.
class Surface final : public WidgetOf<Widget> {
 public:
  Surface(const WindowClass& window_class, const NewWidget& widget);

 protected:
  std::optional<LRESULT> Handle(const Message& message) override;
};

// A text: the system's static control, so that screen readers know what it is and read its text. It
// is painted here: the control's own painting flickers.
class TextWidget final : public WidgetOf<Widget> {
 public:
  TextWidget(const NewWidget& widget, const TextStyle& style);

 protected:
  std::optional<LRESULT> Handle(const Message& message) override;
  void PaintContent(GdiCanvas& canvas) override;

 private:
  void PaintFrame();
  // Lets the system do its part without the control, which would paint at once.
  LRESULT WithoutControl(const Message& message);

  const TextStyle style_;
};

}  // namespace platform::windows
