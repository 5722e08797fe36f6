// Lists of rows: in a box, dropping down, with check boxes.
#pragma once

#include "platform/controls.h"
#include "platform/windows/widgets/native_control.h"

namespace platform::windows {

class ListBoxWidget final : public WidgetOf<ItemList, NativeControl> {
 public:
  ListBoxWidget(HWND parent, std::string_view name, Drawing& drawing, WidgetEvents& events);

  void SetItems(std::span<const std::string> items) override;
  [[nodiscard]] int Count() const override;
  void SetIndex(int index) override;
  [[nodiscard]] int Index() const override;
  void SetChecked(int /*row*/, bool /*checked*/) override {}
  [[nodiscard]] bool Checked(int /*row*/) const override { return false; }

  std::optional<LRESULT> HandleNotification(const Message& message) override;

 protected:
  std::optional<LRESULT> Handle(const Message& message) override;
};

class ComboWidget final : public WidgetOf<ItemList, NativeControl> {
 public:
  ComboWidget(HWND parent, std::string_view name, ListKind kind, Drawing& drawing,
              WidgetEvents& events);

  void SetBounds(const Rect& bounds) override;
  void SetFont(const FontSpec& font) override;
  void SetItems(std::span<const std::string> items) override;
  [[nodiscard]] int Count() const override;
  void SetIndex(int index) override;
  [[nodiscard]] int Index() const override;
  void SetChecked(int /*row*/, bool /*checked*/) override {}
  [[nodiscard]] bool Checked(int /*row*/) const override { return false; }

  // An open list is closed by them.
  [[nodiscard]] KeyTaker TakerOf(WPARAM key) override;

  std::optional<LRESULT> HandleNotification(const Message& message) override;

 private:
  // The height of the closed one is that of its selected row; that of the window is the open one's.
  void FitHeight();
  // A row in the font that it names.
  void DrawRow(const DRAWITEMSTRUCT& item);

  const ListKind kind_;
  Rect bounds_;
};

class CheckListWidget final : public WidgetOf<ItemList, NativeControl> {
 public:
  CheckListWidget(HWND parent, std::string_view name, Drawing& drawing, WidgetEvents& events);

  void SetItems(std::span<const std::string> items) override;
  [[nodiscard]] int Count() const override;
  void SetIndex(int index) override;
  [[nodiscard]] int Index() const override;
  void SetChecked(int row, bool checked) override;
  [[nodiscard]] bool Checked(int row) const override;

  std::optional<LRESULT> HandleNotification(const Message& message) override;

 protected:
  std::optional<LRESULT> Handle(const Message& message) override;

 private:
  void RowChanged(const NMHDR& notification);
  void ReportIndex();

  int reported_index_ = -1;
};

}  // namespace platform::windows
