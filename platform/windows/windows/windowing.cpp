#include "platform/windows/windows/windowing.h"

#include "platform/windows/wide_text.h"
#include "platform/windows/widgets/bar_widgets.h"
#include "platform/windows/widgets/button_widget.h"
#include "platform/windows/widgets/edit_widget.h"
#include "platform/windows/widgets/list_widgets.h"
#include "platform/windows/widgets/painted_widgets.h"
#include "platform/windows/widgets/tabs_widget.h"
#include "platform/windows/win32.h"
#include "platform/windows/windows/top_window.h"

namespace platform::windows {

std::optional<LRESULT> ApplicationWindow::Handle(const Message& message) {
  // Closing this window would destroy every window of the program without a question. A program
  // that wants this one to end also asks its main window.
  if (message.id == WM_CLOSE) return 0;
  return std::nullopt;
}

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

NewWidget Windowing::On(Widget& parent, std::string_view name, WidgetEvents& events) {
  return {WidgetWindow::Of(parent), name, drawing_, events};
}

std::unique_ptr<Widget> Windowing::CreateSurface(Widget& parent, std::string_view name,
                                                 WidgetEvents& events) {
  return std::make_unique<Surface>(surface_class_, On(parent, name, events));
}

std::unique_ptr<Widget> Windowing::CreateText(Widget& parent, std::string_view name,
                                              const TextStyle& style, WidgetEvents& events) {
  return std::make_unique<TextWidget>(On(parent, name, events), style);
}

std::unique_ptr<Button> Windowing::CreateButton(Widget& parent, std::string_view name,
                                                ButtonKind kind, WidgetEvents& events) {
  return std::make_unique<ButtonWidget>(On(parent, name, events), kind);
}

std::unique_ptr<Edit> Windowing::CreateEdit(Widget& parent, std::string_view name,
                                            const EditStyle& style, WidgetEvents& events) {
  return std::make_unique<EditWidget>(On(parent, name, events), style);
}

std::unique_ptr<ItemList> Windowing::CreateList(Widget& parent, std::string_view name,
                                                ListKind kind, WidgetEvents& events) {
  const NewWidget widget = On(parent, name, events);
  switch (kind) {
    case ListKind::kBox:
      return std::make_unique<ListBoxWidget>(widget);
    case ListKind::kCheckBox:
      return std::make_unique<CheckListWidget>(widget);
    default:
      return std::make_unique<ComboWidget>(widget, kind);
  }
}

std::unique_ptr<Tree> Windowing::CreateTree(Widget& parent, std::string_view name,
                                            WidgetEvents& events) {
  return std::make_unique<TreeWidget>(On(parent, name, events));
}

std::unique_ptr<Tabs> Windowing::CreateTabs(Widget& parent, std::string_view name,
                                            WidgetEvents& events) {
  return std::make_unique<TabsWidget>(On(parent, name, events));
}

std::unique_ptr<TrackBar> Windowing::CreateTrackBar(Widget& parent, std::string_view name,
                                                    WidgetEvents& events) {
  return std::make_unique<TrackBarWidget>(On(parent, name, events));
}

std::unique_ptr<ProgressBar> Windowing::CreateProgressBar(Widget& parent, std::string_view name,
                                                          WidgetEvents& events) {
  return std::make_unique<ProgressBarWidget>(On(parent, name, events));
}

}  // namespace platform::windows
