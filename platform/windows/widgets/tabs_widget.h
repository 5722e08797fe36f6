// A row of tabs.
#pragma once

#include "platform/controls.h"
#include "platform/windows/widgets/native_control.h"

namespace platform::windows {

class TabsWidget final : public WidgetOf<Tabs, NativeControl> {
 public:
  explicit TabsWidget(const NewWidget& widget);

  void SetItems(std::span<const std::string> captions) override;
  void SetIndex(int index) override;
  void SetFont(const FontStyle& font) override;
  [[nodiscard]] int Index() const override;
  [[nodiscard]] Rect PageArea() const override;
  [[nodiscard]] Colour PageColour() const override;

  std::optional<LRESULT> HandleNotification(const Message& message) override;

 private:
  [[nodiscard]] int Count() const;
};

}  // namespace platform::windows
