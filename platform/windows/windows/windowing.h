// Makes the program's windows.
#pragma once

#include <map>
#include <memory>
#include <string>

#include "platform/windowing.h"
#include "platform/windows/drawing/drawing.h"
#include "platform/windows/widgets/widget_window.h"

namespace platform::windows {

// The hidden window that owns all top windows of the program.
class ApplicationWindow final : public NativeWindow {
 public:
  explicit ApplicationWindow(const WindowClass& window_class) {
    Create(window_class, {WS_POPUP, 0}, nullptr, {});
  }

 protected:
  std::optional<LRESULT> Handle(const Message& message) override;
};

class Windowing final : public platform::Windowing {
 public:
  // `drawing` outlives this; this outlives every widget.
  explicit Windowing(Drawing& drawing);

  void SetApplicationTitle(std::string_view title) override;
  void HideTaskbarButton() override;
  [[nodiscard]] std::unique_ptr<platform::TopWindow> CreateTopWindow(
      const TopWindowParams& params, platform::TopWindow* owner, TopWindowEvents& events) override;
  [[nodiscard]] std::unique_ptr<Widget> CreateSurface(Widget& parent, std::string_view name,
                                                      WidgetEvents& events) override;
  [[nodiscard]] std::unique_ptr<Widget> CreateText(Widget& parent, std::string_view name,
                                                   const TextStyle& style,
                                                   WidgetEvents& events) override;
  [[nodiscard]] std::unique_ptr<Button> CreateButton(Widget& parent, std::string_view name,
                                                     ButtonKind kind,
                                                     WidgetEvents& events) override;
  [[nodiscard]] std::unique_ptr<Edit> CreateEdit(Widget& parent, std::string_view name,
                                                 const EditStyle& style,
                                                 WidgetEvents& events) override;
  [[nodiscard]] std::unique_ptr<ItemList> CreateList(Widget& parent, std::string_view name,
                                                     ListKind kind, WidgetEvents& events) override;
  [[nodiscard]] std::unique_ptr<Tree> CreateTree(Widget& parent, std::string_view name,
                                                 WidgetEvents& events) override;
  [[nodiscard]] std::unique_ptr<Tabs> CreateTabs(Widget& parent, std::string_view name,
                                                 WidgetEvents& events) override;
  [[nodiscard]] std::unique_ptr<TrackBar> CreateTrackBar(Widget& parent, std::string_view name,
                                                         WidgetEvents& events) override;
  [[nodiscard]] std::unique_ptr<ProgressBar> CreateProgressBar(Widget& parent,
                                                               std::string_view name,
                                                               WidgetEvents& events) override;

 private:
  [[nodiscard]] NewWidget On(Widget& parent, std::string_view name, WidgetEvents& events);

  Drawing& drawing_;
  WindowClass surface_class_{"TremoluxSurface"};
  std::map<std::string, WindowClass, std::less<>> form_classes_;  // by the form's name
  WindowClass application_class_{"TremoluxApplication"};
  ApplicationWindow application_{application_class_};
};

}  // namespace platform::windows
