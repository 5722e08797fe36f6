// Push buttons, check boxes, radio buttons and group boxes.
#pragma once

#include "platform/controls.h"
#include "platform/windows/widgets/native_control.h"

namespace platform::windows {

class ButtonWidget final : public WidgetOf<Button, NativeControl> {
 public:
  ButtonWidget(const NewWidget& widget, ButtonKind kind);

  void SetChecked(bool checked) override;
  [[nodiscard]] bool Checked() const override;
  void SetDefault(bool is_default) override;
  void Press() override { Send(BM_CLICK); }

  [[nodiscard]] ButtonKind Kind() const { return kind_; }

  std::optional<LRESULT> HandleNotification(const Message& message) override;

 protected:
  std::optional<LRESULT> Handle(const Message& message) override;
  void PaintContent(GdiCanvas& canvas) override;

 private:
  std::optional<LRESULT> HandleGroup(const Message& message);
  void Clicked();
  void DrawFace(const DRAWITEMSTRUCT& item);

  const ButtonKind kind_;
  bool chosen_ = false;  // a radio button was checked, but not by the code, and not reported yet
};

}  // namespace platform::windows
