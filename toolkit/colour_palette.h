// A field of colours, one of which is chosen with the mouse or the arrow keys.
#pragma once

#include <functional>
#include <optional>

#include "platform/colour.h"
#include "toolkit/controls/control.h"

namespace toolkit {

// Its caption is the chosen colour as "#RRGGBB", so that screen readers say it.
class ColourPalette : public Control {
 public:
  static constexpr int kColumns = 8;
  static constexpr int kRows = 6;

  ColourPalette(Control& parent, std::string_view name);

  // Nothing for a colour that is not in the field.
  [[nodiscard]] std::optional<platform::Colour> Chosen() const;
  // Chooses the cell of a colour, or none.
  void Choose(platform::Colour colour);

  // The user has chosen another cell.
  std::function<void()> OnChange;
  // The user wants the chosen colour: a double click, or Enter or the space bar.
  std::function<void()> OnConfirm;

  [[nodiscard]] KeyRole Role() const override { return KeyRole::kPush; }

 protected:
  void Paint(platform::Canvas& canvas) override;
  void OnMouseDown(const platform::MouseEvent& event) override;
  void OnMouseUp(const platform::MouseEvent& event) override;
  void OnDoubleClick(const platform::MouseEvent& event) override;
  bool OnKey(platform::Key key) override;
  void Clicked() override;

 private:
  // The cell at a point, in real pixels; -1 beside all.
  [[nodiscard]] int CellAt(platform::Point at) const;
  [[nodiscard]] platform::Rect CellArea(int cell) const;
  void Move(int to);
  void Show(int cell);

  int cell_ = -1;
  bool by_mouse_ = false;  // the click that comes is of the mouse, which has chosen already
};

}  // namespace toolkit
