#include "platform/windows/widgets/surface.h"

#include "platform/windows/windows/bare_frame.h"

namespace platform::windows {

Surface::Surface(const WindowClass& window_class, HWND parent, std::string_view name,
                 Drawing& drawing, WidgetEvents& events)
    : WidgetOf(drawing, events) {
  Create(window_class, {WS_CHILD | WS_CLIPSIBLINGS | WS_CLIPCHILDREN, 0}, parent, {});
  PublishName(name);
  StartReporting();
}

std::optional<LRESULT> Surface::Handle(const Message& message) {
  if (message.id == WM_NCHITTEST && OnSizingEdge(hwnd(), message.l)) return HTTRANSPARENT;
  return WidgetOf::Handle(message);
}

}  // namespace platform::windows
