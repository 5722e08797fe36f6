// List boxes, which are always open, and combo boxes, which drop down.
#pragma once

#include "toolkit/controls/list_control.h"

namespace toolkit {

class ListBox : public ListControl {
 public:
  ListBox(Control& parent, std::string_view name)
      : ListControl(parent, name, platform::ListKind::kBox) {}

  // Runs when the user presses Del.
  std::function<void()> OnDelete;

 protected:
  bool OnKey(platform::Key key) override {
    if (key != platform::Key::kDelete) return false;
    Fire(OnDelete);
    return true;
  }
};

class ComboBox : public ListControl {
 public:
  ComboBox(Control& parent, std::string_view name)
      : ListControl(parent, name, platform::ListKind::kCombo) {}
};

// A combo box that shows each row in the font that the row names.
class FontComboBox : public ListControl {
 public:
  FontComboBox(Control& parent, std::string_view name)
      : ListControl(parent, name, platform::ListKind::kFontCombo) {}
};

}  // namespace toolkit
