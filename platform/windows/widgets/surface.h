// An area that the program paints.
#pragma once

#include "platform/windows/widgets/widget_window.h"

namespace platform::windows {

class Surface final : public WidgetOf<Widget> {
 public:
  Surface(const WindowClass& window_class, HWND parent, std::string_view name, Drawing& drawing,
          WidgetEvents& events);

 protected:
  std::optional<LRESULT> Handle(const Message& message) override;
};

}  // namespace platform::windows
