// Push buttons, check boxes, radio buttons and group boxes.
#pragma once

#include "platform/controls.h"
#include "platform/windows/widgets/native_control.h"

namespace platform::windows {

class ButtonWidget final : public WidgetOf<Button, NativeControl> {
 public:
  ButtonWidget(HWND parent, std::string_view name, ButtonKind kind, Drawing& drawing,
               WidgetEvents& events);

  void SetChecked(bool checked) override;
  [[nodiscard]] bool Checked() const override;
  void SetDefault(bool is_default) override;

  // For the keys of a dialog.
  [[nodiscard]] KeyRole Role() const override;
  [[nodiscard]] bool MarksKey() const override { return kind_ != ButtonKind::kPainted; }
  [[nodiscard]] bool IsDefault() const { return default_; }
  void Press() { events().OnClicked(); }
  // The look of the button that Enter presses; of push buttons that the system paints.
  void ShowThickFrame(bool thick);

  std::optional<LRESULT> HandleNotification(const Message& message) override;

 protected:
  std::optional<LRESULT> Handle(const Message& message) override;
  void PaintContent(GdiCanvas& canvas) override;

 private:
  std::optional<LRESULT> HandleGroup(const Message& message);
  void Clicked();
  void DrawFace(const DRAWITEMSTRUCT& item);

  const ButtonKind kind_;
  bool default_ = false;
  bool chosen_ = false;  // a radio button was checked, but not by the code, and not reported yet
};

}  // namespace platform::windows
