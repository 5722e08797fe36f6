// Makes the native windows and controls.
#pragma once

#include <memory>
#include <string_view>

#include "platform/top_window.h"
#include "platform/widget.h"

namespace platform {

// Every `events` must outlive its widget. Widgets are made hidden with bounds of zero; a failure of
// the system throws std::runtime_error.
class Windowing {
 public:
  virtual ~Windowing() = default;

  // The hidden window of the application, which owns all top windows, gets this title.
  virtual void SetApplicationTitle(std::string_view title) = 0;
  // Gives the application's window the tool-window style, so that the taskbar shows no button.
  virtual void HideTaskbarButton() = 0;

  // A hidden top window. `owner` (null: the application) stays below it.
  [[nodiscard]] virtual std::unique_ptr<TopWindow> CreateTopWindow(const TopWindowParams& params,
                                                                   TopWindow* owner,
                                                                   TopWindowEvents& events) = 0;

  // An area that the program paints (OnPaint) and that may hold other widgets. `name` is for tests.
  [[nodiscard]] virtual std::unique_ptr<Widget> CreateSurface(Widget& parent, std::string_view name,
                                                              WidgetEvents& events) = 0;

  // One line of text, centred both ways; "&" has no meaning in it. Reports the mouse.
  [[nodiscard]] virtual std::unique_ptr<Widget> CreateText(Widget& parent, std::string_view name,
                                                           WidgetEvents& events) = 0;
};

}  // namespace platform
