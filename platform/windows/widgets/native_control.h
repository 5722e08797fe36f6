// A control of the system's, which paints itself and handles its own mouse and keys.
#pragma once

#include "platform/windows/widgets/widget_window.h"

namespace platform::windows {

class NativeControl : public WidgetWindow {
 public:
  // Answers a message about the control that the system sent to its parent. This version answers
  // those that ask for its colours.
  virtual std::optional<LRESULT> HandleNotification(const Message& message);

 protected:
  explicit NativeControl(const NewWidget& widget)
      : WidgetWindow(widget.drawing, widget.events, Capture::kByControl) {}

  std::optional<LRESULT> Handle(const Message& message) override;

  [[nodiscard]] virtual Colour Background() const { return background(); }

  // While a Quiet exists, the code works on the control, and what the control tells is not
  // reported.
  class Quiet {
   public:
    explicit Quiet(NativeControl& control) : control_(control) { ++control_.quiet_; }
    ~Quiet() { --control_.quiet_; }
    Quiet(const Quiet&) = delete;
    Quiet& operator=(const Quiet&) = delete;

   private:
    NativeControl& control_;
  };
  [[nodiscard]] bool IsQuiet() const { return quiet_ > 0; }

  LRESULT Send(UINT id, WPARAM w = 0, LPARAM l = 0) const {
    return ::SendMessageW(hwnd(), id, w, l);
  }

  // The common part of the styles of controls.
  static constexpr DWORD kChild = WS_CHILD | WS_CLIPSIBLINGS;
  // The styles of a control that the keyboard stops at. Each begins a group of its own, so that the
  // radio buttons before it end there.
  static constexpr DWORD kStopChild = kChild | WS_TABSTOP | WS_GROUP;

 private:
  [[nodiscard]] std::optional<LRESULT> HandleControl(const Message& message);
  // Reports a mouse message before the control gets it, or behind it.
  std::optional<LRESULT> ReportBefore(const Message& message);
  LRESULT ReportBehind(const Message& message);

  int quiet_ = 0;
};

}  // namespace platform::windows
