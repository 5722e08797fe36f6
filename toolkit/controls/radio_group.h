// A group box with one radio button for each of its items.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <vector>

#include "toolkit/controls/group_box.h"
#include "toolkit/controls/radio_button.h"

namespace toolkit {

// OnClick is fired when another item is chosen. Its hint is also that of its buttons, and
// the button of item n bears the group's name and n.
class RadioGroup : public GroupBox {
 public:
  RadioGroup(Control& parent, std::string_view name) : GroupBox(parent, name) {}

  // Names the items; the chosen one stays, if there still is one of its number.
  void SetItems(std::span<const std::string> captions);
  [[nodiscard]] int Count() const { return static_cast<int>(buttons_.size()); }
  // -1 for none.
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
