#include "platform/windows/windowing.h"

#include "platform/windows/surface.h"
#include "platform/windows/text_widget.h"
#include "platform/windows/top_window.h"
#include "platform/windows/wide.h"

namespace platform::windows {

void Windowing::SetApplicationTitle(std::string_view title) {
  ::SetWindowTextW(application_.hwnd(), ToWide(title).c_str());
}

void Windowing::HideTaskbarButton() {
  const LONG_PTR style = ::GetWindowLongPtrW(application_.hwnd(), GWL_EXSTYLE);
  ::SetWindowLongPtrW(application_.hwnd(), GWL_EXSTYLE, style | WS_EX_TOOLWINDOW);
}

std::unique_ptr<platform::TopWindow> Windowing::CreateTopWindow(const TopWindowParams& params,
                                                                platform::TopWindow* owner,
                                                                TopWindowEvents& events) {
  const auto form = form_classes_.try_emplace(params.name, params.name).first;
  const HWND owning = owner != nullptr ? WidgetWindow::Of(*owner) : application_.hwnd();
  return std::make_unique<TopWindow>(form->second, params, owning, drawing_, events);
}

std::unique_ptr<Widget> Windowing::CreateSurface(Widget& parent, std::string_view name,
                                                 WidgetEvents& events) {
  return std::make_unique<Surface>(surface_class_, WidgetWindow::Of(parent), name, drawing_,
                                   events);
}

std::unique_ptr<Widget> Windowing::CreateText(Widget& parent, std::string_view name,
                                              WidgetEvents& events) {
  return std::make_unique<TextWidget>(WidgetWindow::Of(parent), name, drawing_, events);
}

}  // namespace platform::windows
