// Makes the program's windows.
#pragma once

#include <map>
#include <string>

#include "platform/windowing.h"
#include "platform/windows/application_window.h"
#include "platform/windows/drawing.h"

namespace platform::windows {

class Windowing final : public platform::Windowing {
 public:
  // `drawing` outlives this; this outlives every widget.
  explicit Windowing(Drawing& drawing) : drawing_(drawing) {}

  void SetApplicationTitle(std::string_view title) override;
  void HideTaskbarButton() override;
  [[nodiscard]] std::unique_ptr<platform::TopWindow> CreateTopWindow(
      const TopWindowParams& params, platform::TopWindow* owner, TopWindowEvents& events) override;
  [[nodiscard]] std::unique_ptr<Widget> CreateSurface(Widget& parent, std::string_view name,
                                                      WidgetEvents& events) override;
  [[nodiscard]] std::unique_ptr<Widget> CreateText(Widget& parent, std::string_view name,
                                                   WidgetEvents& events) override;

 private:
  Drawing& drawing_;
  WindowClass surface_class_{"TremoluxSurface"};
  std::map<std::string, WindowClass, std::less<>> form_classes_;  // by the form's name
  WindowClass application_class_{"TremoluxApplication"};
  ApplicationWindow application_{application_class_};
};

}  // namespace platform::windows
