// A window on the real desktop, and the user in front of it: the hands of the desktop tests.
#pragma once

#include <memory>
#include <utility>

#include "platform/windows/widgets/widget_window.h"
#include "tests/contract/world.h"
#include "tests/desktop/driver/input.h"
#include "tests/desktop/driver/windows_of.h"

namespace contract {

using platform::windows::WidgetWindow;

class DeskTest : public ContractTest {
 protected:
  DeskTest() { desktop::MoveMouse({0, 0}); }

  platform::Windowing& Windowing() { return Platform().windowing; }

  // A window at a place that the user sees, not shown yet.
  std::unique_ptr<platform::TopWindow> Window(const char* name, platform::Frame frame,
                                              platform::TopWindowEvents& events,
                                              platform::Rect bounds = {100, 100, 274, 135}) {
    auto window = Windowing().CreateTopWindow(
        {name, name, frame, frame == platform::Frame::kSizeableTool}, nullptr, events);
    window->SetBounds(bounds);
    return window;
  }
  // Gives what lies in a window its place.
  template <class Control>
  static std::unique_ptr<Control> Placed(std::unique_ptr<Control> control, platform::Rect bounds) {
    control->SetBounds(bounds);
    control->SetVisible(true);
    return control;
  }

  // The user's doings; each is delivered when the call returns.
  void Deliver() { (void)Platform().message_loop.ProcessPending(); }
  void Click(platform::Widget& widget) {
    desktop::Click(desktop::MiddleOf(desktop::AreaOf(WidgetWindow::Of(widget))));
    Deliver();
  }
  void Press(std::initializer_list<int> keys) {
    desktop::PressKeys(keys);
    Deliver();
  }
  void Type(std::string_view text) {
    desktop::Type(text);
    Deliver();
  }
};

}  // namespace contract
