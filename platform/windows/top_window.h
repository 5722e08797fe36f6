// Windows of their own on the desktop.
#pragma once

#include "platform/top_window.h"
#include "platform/windows/bare_frame.h"
#include "platform/windows/widget_window.h"

namespace platform::windows {

class TopWindow final : public WidgetOf<platform::TopWindow> {
 public:
  // `owner` stays below it; never null.
  TopWindow(const WindowClass& window_class, const TopWindowParams& params, HWND owner,
            Drawing& drawing, TopWindowEvents& events);

  void SetVisible(bool visible) override;
  void Show(Activation activation) override;
  void SetTopmost(bool topmost) override;
  [[nodiscard]] bool Topmost() const override;
  void SetSizeLimits(Size smallest, Size largest) override;
  void BeginDrag() override;
  void Raise() override;
  [[nodiscard]] int Dpi() const override;

 protected:
  std::optional<LRESULT> Handle(const Message& message) override;

 private:
  // Each gives nothing for a message of another kind.
  [[nodiscard]] std::optional<LRESULT> HandleKind(const Message& message);
  [[nodiscard]] std::optional<LRESULT> HandleWindow(const Message& message);
  [[nodiscard]] std::optional<LRESULT> HandleSystem(const Message& message);
  LRESULT HandlePlaced(const Message& message);
  LRESULT HandleDpi(const Message& message);
  // Once after it was shown without taking the focus.
  [[nodiscard]] bool DeclinesFocus();
  void LimitSize(MINMAXINFO& info) const;

  TopWindowEvents& events_;
  const Frame frame_;
  const bool bare_frame_;  // sizeable and without a caption: draws its own frame
  SizeLimits limits_;
  Rect reported_bounds_;
  ULONGLONG declines_focus_until_ = 0;  // in ticks of the system
  bool dragging_ = false;               // inside BeginDrag
};

}  // namespace platform::windows
