#include "platform/windows/widgets/surface.h"

#include "platform/windows/windows/bare_frame.h"

namespace platform::windows {

Surface::Surface(const WindowClass& window_class, HWND parent, std::string_view name,
                 SurfaceKind kind, Drawing& drawing, WidgetEvents& events, LateWidgets& late)
    : WidgetOf(drawing, events), kind_(kind), late_(late) {
  Create(window_class, {WS_CHILD | WS_CLIPSIBLINGS | WS_CLIPCHILDREN, 0}, parent, {});
  PublishName(name);
  StartReporting();
}

void Surface::SetVisible(bool visible) {
  if (visible) late_.MakeAllOf(*this);
  WidgetOf::SetVisible(visible);
}

std::optional<LRESULT> Surface::Handle(const Message& message) {
  if (message.id == WM_NCHITTEST && OnSizingEdge(hwnd(), message.l)) return HTTRANSPARENT;
  return WidgetOf::Handle(message);
}

}  // namespace platform::windows
