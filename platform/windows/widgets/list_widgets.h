// Lists of rows (in a box, dropping down, with check boxes), and trees.
#pragma once

#include <vector>

#include "platform/controls.h"
#include "platform/windows/widgets/native_control.h"
#include "platform/windows/win32.h"

namespace platform::windows {

// The messages that a list box and a combo box have under names of their own.
struct ListMessages {
  UINT reset;
  UINT insert;
  UINT remove;
  UINT count;
  UINT select;
  UINT selected;
  WORD chosen;  // what is told when the user selects a row
};

// What list boxes and combo boxes have in common.
class PlainListWidget : public WidgetOf<ItemList, NativeControl> {
 public:
  void Replace(int first, int removed, std::span<const std::string> added) override;
  void SetIndex(int index) override;
  [[nodiscard]] int Index() const override { return static_cast<int>(Send(messages_.selected)); }
  void SetChecked(int /*row*/, bool /*checked*/) override {}
  [[nodiscard]] bool Checked(int /*row*/) const override { return false; }
  std::optional<LRESULT> HandleNotification(const Message& message) override;

 protected:
  PlainListWidget(const NewWidget& widget, const ListMessages& messages)
      : WidgetOf(widget), messages_(messages) {}

 private:
  [[nodiscard]] int Count() const { return static_cast<int>(Send(messages_.count)); }

  const ListMessages& messages_;
};

class ListBoxWidget final : public PlainListWidget {
 public:
  explicit ListBoxWidget(const NewWidget& widget);

 protected:
  std::optional<LRESULT> Handle(const Message& message) override;
};

class ComboWidget final : public PlainListWidget {
 public:
  ComboWidget(const NewWidget& widget, ListKind kind);

  void SetBounds(const Rect& bounds) override;
  void SetFont(const FontStyle& font) override;
  // The keys of dialogs close an open list.
  [[nodiscard]] KeyTaker TakerOf(WPARAM key) override;
  std::optional<LRESULT> HandleNotification(const Message& message) override;

 private:
  // Gives the rows their height and the closed list its own, which is that of its selected row; the
  // height of the window is that of the open list.
  void FitHeight();
  // Draws a row, of fonts in the font that it names.
  void DrawRow(const DRAWITEMSTRUCT& item);

  const ListKind kind_;
  Rect bounds_;
};

class CheckListWidget final : public WidgetOf<ItemList, NativeControl> {
 public:
  explicit CheckListWidget(const NewWidget& widget);

  void Replace(int first, int removed, std::span<const std::string> added) override;
  void SetIndex(int index) override;
  [[nodiscard]] int Index() const override;
  void SetChecked(int row, bool checked) override;
  [[nodiscard]] bool Checked(int row) const override;

  std::optional<LRESULT> HandleNotification(const Message& message) override;

 protected:
  std::optional<LRESULT> Handle(const Message& message) override;

 private:
  [[nodiscard]] int Count() const;
  void RowChanged(const NMHDR& notification);
  void ReportIndex();

  int reported_index_ = -1;
};

class TreeWidget final : public WidgetOf<Tree, NativeControl> {
 public:
  explicit TreeWidget(const NewWidget& widget);

  void SetItems(std::span<const TreeItem> items) override;
  void SetIndex(int index) override;
  [[nodiscard]] int Index() const override;
  void ExpandAll() override;
  void SetFont(const FontStyle& font) override;

  std::optional<LRESULT> HandleNotification(const Message& message) override;

 private:
  std::vector<HTREEITEM> items_;
};

}  // namespace platform::windows
