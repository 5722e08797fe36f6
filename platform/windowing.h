// Makes the native windows and controls.
#pragma once

#include <memory>
#include <string_view>

#include "platform/controls.h"
#include "platform/top_window.h"
#include "platform/widget.h"

namespace platform {

// Every `events` must outlive its widget. Widgets are made hidden with bounds of zero; a failure of
// the system throws std::runtime_error. `name` lets tests and screen readers of other programs find
// the widget; it may be empty.
class Windowing {
 public:
  virtual ~Windowing() = default;

  // Sets the title of the application's hidden window, which owns all top windows.
  virtual void SetApplicationTitle(std::string_view title) = 0;
  // Gives the application's window the tool-window style, so that the taskbar shows no button.
  virtual void HideTaskbarButton() = 0;

  // Makes a hidden top window. `owner` (null for the application) stays below it.
  [[nodiscard]] virtual std::unique_ptr<TopWindow> CreateTopWindow(const TopWindowParams& params,
                                                                   TopWindow* owner,
                                                                   TopWindowEvents& events) = 0;

  // Makes an area that the program paints (OnPaint) and that may hold other widgets. It never has
  // the focus itself.
  [[nodiscard]] virtual std::unique_ptr<Widget> CreateSurface(Widget& parent, std::string_view name,
                                                              WidgetEvents& events) = 0;

  // Makes a text, which reports the mouse and never has the focus.
  [[nodiscard]] virtual std::unique_ptr<Widget> CreateText(Widget& parent, std::string_view name,
                                                           const TextStyle& style,
                                                           WidgetEvents& events) = 0;

  // The functions that follow make the system's controls.
  [[nodiscard]] virtual std::unique_ptr<Button> CreateButton(Widget& parent, std::string_view name,
                                                             ButtonKind kind,
                                                             WidgetEvents& events) = 0;
  [[nodiscard]] virtual std::unique_ptr<Edit> CreateEdit(Widget& parent, std::string_view name,
                                                         const EditStyle& style,
                                                         WidgetEvents& events) = 0;
  [[nodiscard]] virtual std::unique_ptr<ItemList> CreateList(Widget& parent, std::string_view name,
                                                             ListKind kind,
                                                             WidgetEvents& events) = 0;
  [[nodiscard]] virtual std::unique_ptr<Tree> CreateTree(Widget& parent, std::string_view name,
                                                         WidgetEvents& events) = 0;
  [[nodiscard]] virtual std::unique_ptr<Tabs> CreateTabs(Widget& parent, std::string_view name,
                                                         WidgetEvents& events) = 0;
  [[nodiscard]] virtual std::unique_ptr<TrackBar> CreateTrackBar(Widget& parent,
                                                                 std::string_view name,
                                                                 WidgetEvents& events) = 0;
  [[nodiscard]] virtual std::unique_ptr<ProgressBar> CreateProgressBar(Widget& parent,
                                                                       std::string_view name,
                                                                       WidgetEvents& events) = 0;
};

}  // namespace platform
