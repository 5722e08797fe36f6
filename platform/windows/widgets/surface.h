// An area that the program paints.
#pragma once

#include "platform/windowing.h"
#include "platform/windows/widgets/late_widgets.h"
#include "platform/windows/widgets/widget_window.h"

namespace platform::windows {

class Surface final : public WidgetOf<Widget> {
 public:
  // `late` outlives this.
  Surface(const WindowClass& window_class, HWND parent, std::string_view name, SurfaceKind kind,
          Drawing& drawing, WidgetEvents& events, LateWidgets& late);
  ~Surface() override { late_.Forget(*this); }

  [[nodiscard]] SurfaceKind Kind() const { return kind_; }
  // What waits for it is made before it is seen.
  void SetVisible(bool visible) override;

 protected:
  std::optional<LRESULT> Handle(const Message& message) override;

 private:
  const SurfaceKind kind_;
  LateWidgets& late_;
};

}  // namespace platform::windows
