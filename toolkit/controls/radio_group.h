// A group box with one radio button for each of its items.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <vector>

#include "toolkit/controls/group_box.h"
#include "toolkit/controls/radio_button.h"

namespace toolkit {

// OnClick runs when another item is chosen. The buttons have the group's hint, and the name of the
// button of item n is the group's name followed by n.
class RadioGroup : public GroupBox {
 public:
  RadioGroup(Control& parent, std::string_view name) : GroupBox(parent, name) {}

  // Replaces the items. The chosen item keeps its number, if there still is such an item.
  void SetItems(std::span<const std::string> captions);
  [[nodiscard]] int Count() const { return static_cast<int>(buttons_.size()); }
  // The number of the chosen item, or -1 for none.
  [[nodiscard]] int ItemIndex() const;
  void SetItemIndex(int index);

 protected:
  void Resized() override { Arrange(); }
  void HintChanged() override;

 private:
  void Arrange();

  std::vector<std::unique_ptr<RadioButton>> buttons_;
};

}  // namespace toolkit
