// A text.
#pragma once

#include "platform/controls.h"
#include "platform/windows/widgets/widget_window.h"

namespace platform::windows {

// The system's static control, so that screen readers know what it is and read its text. It is
// painted here: the control's own painting flickers.
class TextWidget final : public WidgetOf<Widget> {
 public:
  TextWidget(HWND parent, std::string_view name, const TextStyle& style, Drawing& drawing,
             WidgetEvents& events);

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
