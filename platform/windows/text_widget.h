// One line of text.
#pragma once

#include "platform/windows/widget_window.h"

namespace platform::windows {

// The system's static control, so that screen readers know what it is and read its text. It is
// painted here: the control's own painting flickers.
class TextWidget final : public WidgetOf<Widget> {
 public:
  TextWidget(HWND parent, std::string_view name, Drawing& drawing, WidgetEvents& events);

 protected:
  std::optional<LRESULT> Handle(const Message& message) override;
  void PaintContent(Canvas& canvas) override;

 private:
  // Lets the system do its part without the control, which would paint at once.
  LRESULT WithoutControl(const Message& message);
};

}  // namespace platform::windows
