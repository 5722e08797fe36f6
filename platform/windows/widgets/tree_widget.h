// A tree.
#pragma once

#include <vector>

#include "platform/controls.h"
#include "platform/windows/widgets/common_controls.h"
#include "platform/windows/widgets/native_control.h"

namespace platform::windows {

class TreeWidget final : public WidgetOf<Tree, NativeControl> {
 public:
  TreeWidget(HWND parent, std::string_view name, Drawing& drawing, WidgetEvents& events);

  void SetItems(std::span<const TreeItem> items) override;
  void SetIndex(int index) override;
  [[nodiscard]] int Index() const override;
  void ExpandAll() override;

  std::optional<LRESULT> HandleNotification(const Message& message) override;

 private:
  std::vector<HTREEITEM> items_;
};

}  // namespace platform::windows
