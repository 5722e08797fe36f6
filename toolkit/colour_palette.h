// A field of colours, one of which is chosen with the mouse or the arrow keys.
#pragma once

#include <functional>
#include <optional>

#include "platform/colour.h"
#include "toolkit/controls/buttons.h"

namespace toolkit {

// The palette's caption is the chosen colour as "#RRGGBB", so that screen readers say it.
class ColourPalette : public ButtonControl {
 public:
  static constexpr int kColumns = 8;
  static constexpr int kRows = 6;

  ColourPalette(Control& parent, std::string_view name);

  // Returns the chosen colour, or nullopt when no cell is chosen.
  [[nodiscard]] std::optional<platform::Colour> Chosen() const;
  // Chooses the cell of a colour, or no cell when the field does not have the colour.
  void Choose(platform::Colour colour);

  // Runs when the user has chosen another cell.
  std::function<void()> OnChange;
  // Runs when the user confirms the chosen colour with a double click, Enter or the space bar.
  std::function<void()> OnConfirm;

 protected:
  void Paint(platform::Canvas& canvas) override;
  void OnMouseDown(const platform::MouseEvent& event) override;
  void OnMouseUp(const platform::MouseEvent& event) override;
  void OnDoubleClick(const platform::MouseEvent& event) override;
  bool OnKey(platform::Key key) override;
  void Clicked() override;

 private:
  // Returns the cell at a point in real pixels, or -1 when the point is outside all cells.
  [[nodiscard]] int CellAt(platform::Point at) const;
  [[nodiscard]] platform::Rect CellArea(int cell) const;
  void Move(int to);
  void Show(int cell);

  int cell_ = -1;
  bool by_mouse_ = false;  // the next click comes from the mouse, which has chosen the cell already
};

}  // namespace toolkit
