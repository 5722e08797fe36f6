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
namespace {

// Returns the hidden page for which a widget on `parent` has to wait, or null when it need not
// wait.
Surface* HiddenPage(Widget& parent) {
  Widget* made = &parent;
  if (const auto* late = dynamic_cast<LateWidget*>(&parent)) {
    made = late->Made();
    if (made == nullptr) return late->Page();
  }
  auto* surface = dynamic_cast<Surface*>(made);
  const bool waits =
      surface != nullptr && surface->Kind() == SurfaceKind::kPage && !surface->Visible();
  return waits ? surface : nullptr;
}

}  // namespace

Windowing::Windowing(Drawing& drawing, platform::Timers& timers)
    : drawing_(drawing), late_(timers) {
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

template <class Late, class Interface>
std::unique_ptr<Interface> Windowing::Make(Widget& parent,
                                           std::function<std::unique_ptr<Interface>(HWND)> make) {
  Surface* page = HiddenPage(parent);
  if (page == nullptr) return make(WidgetWindow::Of(parent));
  return std::make_unique<Late>(
      late_, *page, [&parent, make = std::move(make)] { return make(WidgetWindow::Of(parent)); });
}

std::unique_ptr<Widget> Windowing::CreateSurface(Widget& parent, std::string_view name,
                                                 SurfaceKind kind, WidgetEvents& events) {
  return Make<LateOf<Widget>, Widget>(
      parent, [this, name = std::string(name), kind, &events](HWND on) {
        return std::make_unique<Surface>(surface_class_, on, name, kind, drawing_, events, late_);
      });
}

std::unique_ptr<Widget> Windowing::CreateText(Widget& parent, std::string_view name,
                                              const TextStyle& style, WidgetEvents& events) {
  return Make<LateOf<Widget>, Widget>(
      parent, [this, name = std::string(name), style, &events](HWND on) {
        return std::make_unique<TextWidget>(on, name, style, drawing_, events);
      });
}

std::unique_ptr<Button> Windowing::CreateButton(Widget& parent, std::string_view name,
                                                ButtonKind kind, WidgetEvents& events) {
  return Make<LateButton, Button>(parent, [this, name = std::string(name), kind, &events](HWND on) {
    return std::make_unique<ButtonWidget>(on, name, kind, drawing_, events);
  });
}

std::unique_ptr<Edit> Windowing::CreateEdit(Widget& parent, std::string_view name,
                                            const EditStyle& style, WidgetEvents& events) {
  return Make<LateEdit, Edit>(parent, [this, name = std::string(name), style, &events](HWND on) {
    return std::make_unique<EditWidget>(on, name, style, drawing_, events);
  });
}

std::unique_ptr<ItemList> Windowing::CreateList(Widget& parent, std::string_view name,
                                                ListKind kind, WidgetEvents& events) {
  return Make<LateList, ItemList>(
      parent,
      [this, name = std::string(name), kind, &events](HWND on) -> std::unique_ptr<ItemList> {
        switch (kind) {
          case ListKind::kBox:
            return std::make_unique<ListBoxWidget>(on, name, drawing_, events);
          case ListKind::kCheckBox:
            return std::make_unique<CheckListWidget>(on, name, drawing_, events);
          default:
            return std::make_unique<ComboWidget>(on, name, kind, drawing_, events);
        }
      });
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
  return Make<LateTrackBar, TrackBar>(parent, [this, name = std::string(name), &events](HWND on) {
    return std::make_unique<TrackBarWidget>(on, name, drawing_, events);
  });
}

std::unique_ptr<ProgressBar> Windowing::CreateProgressBar(Widget& parent, std::string_view name,
                                                          WidgetEvents& events) {
  return Make<LateProgressBar, ProgressBar>(
      parent, [this, name = std::string(name), &events](HWND on) {
        return std::make_unique<ProgressBarWidget>(on, name, drawing_, events);
      });
}

}  // namespace platform::windows
