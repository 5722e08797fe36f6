#include "platform/windows/windows/windowing.h"

#include "platform/windows/wide.h"
#include "platform/windows/widgets/bar_widgets.h"
#include "platform/windows/widgets/button_widget.h"
#include "platform/windows/widgets/common_controls.h"
#include "platform/windows/widgets/edit_widget.h"
#include "platform/windows/widgets/list_widgets.h"
#include "platform/windows/widgets/surface.h"
#include "platform/windows/widgets/tabs_widget.h"
#include "platform/windows/widgets/text_widget.h"
#include "platform/windows/widgets/tree_widget.h"
#include "platform/windows/windows/top_window.h"

namespace platform::windows {

Windowing::Windowing(Drawing& drawing) : drawing_(drawing) {
  INITCOMMONCONTROLSEX classes{};
  classes.dwSize = sizeof(classes);
  classes.dwICC = ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES;
  ::InitCommonControlsEx(&classes);
}

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
                                              const TextStyle& style, WidgetEvents& events) {
  return std::make_unique<TextWidget>(WidgetWindow::Of(parent), name, style, drawing_, events);
}

std::unique_ptr<Button> Windowing::CreateButton(Widget& parent, std::string_view name,
                                                ButtonKind kind, WidgetEvents& events) {
  return std::make_unique<ButtonWidget>(WidgetWindow::Of(parent), name, kind, drawing_, events);
}

std::unique_ptr<Edit> Windowing::CreateEdit(Widget& parent, std::string_view name,
                                            const EditStyle& style, WidgetEvents& events) {
  return std::make_unique<EditWidget>(WidgetWindow::Of(parent), name, style, drawing_, events);
}

std::unique_ptr<ItemList> Windowing::CreateList(Widget& parent, std::string_view name,
                                                ListKind kind, WidgetEvents& events) {
  const HWND on = WidgetWindow::Of(parent);
  switch (kind) {
    case ListKind::kBox:
      return std::make_unique<ListBoxWidget>(on, name, drawing_, events);
    case ListKind::kCheckBox:
      return std::make_unique<CheckListWidget>(on, name, drawing_, events);
    default:
      return std::make_unique<ComboWidget>(on, name, kind, drawing_, events);
  }
}

std::unique_ptr<Tree> Windowing::CreateTree(Widget& parent, std::string_view name,
                                            WidgetEvents& events) {
  return std::make_unique<TreeWidget>(WidgetWindow::Of(parent), name, drawing_, events);
}

std::unique_ptr<Tabs> Windowing::CreateTabs(Widget& parent, std::string_view name,
                                            WidgetEvents& events) {
  return std::make_unique<TabsWidget>(WidgetWindow::Of(parent), name, drawing_, events);
}

std::unique_ptr<TrackBar> Windowing::CreateTrackBar(Widget& parent, std::string_view name,
                                                    WidgetEvents& events) {
  return std::make_unique<TrackBarWidget>(WidgetWindow::Of(parent), name, drawing_, events);
}

std::unique_ptr<ProgressBar> Windowing::CreateProgressBar(Widget& parent, std::string_view name,
                                                          WidgetEvents& events) {
  return std::make_unique<ProgressBarWidget>(WidgetWindow::Of(parent), name, drawing_, events);
}

}  // namespace platform::windows
