// Sliders and progress bars.
#pragma once

#include "platform/controls.h"
#include "platform/windows/widgets/native_control.h"

namespace platform::windows {

class TrackBarWidget final : public WidgetOf<TrackBar, NativeControl> {
 public:
  explicit TrackBarWidget(const NewWidget& widget);

  void SetRange(int lowest, int highest, int page) override;
  void SetPosition(int position) override;
  [[nodiscard]] int Position() const override;

  std::optional<LRESULT> HandleNotification(const Message& message) override;

 private:
  int reported_ = 0;
};

class ProgressBarWidget final : public WidgetOf<ProgressBar, NativeControl> {
 public:
  explicit ProgressBarWidget(const NewWidget& widget);

  void SetRange(int lowest, int highest) override;
  void SetPosition(int position) override;
};

}  // namespace platform::windows
