// What is a button to the system: push buttons, boxes, the frames around groups, and buttons that
// the program paints.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <vector>

#include "platform/controls.h"
#include "toolkit/controls/control.h"
#include "toolkit/forms/modal_stack.h"

namespace toolkit {

// What buttons of every kind have in common.
class ButtonControl : public ControlOf<platform::Button> {
 public:
  [[nodiscard]] KeyRole Role() const override { return KeyRole::kPush; }
  // Returns false for a painted button, whose caption only screen readers say.
  [[nodiscard]] bool MarksKey() const override { return kind_ != platform::ButtonKind::kPainted; }

 protected:
  ButtonControl(Control& parent, std::string_view name, platform::ButtonKind kind);
  void PressByKey() override { Peer()->Press(); }

 private:
  const platform::ButtonKind kind_;
};

// A push button.
class Button : public ButtonControl {
 public:
  Button(Control& parent, std::string_view name)
      : ButtonControl(parent, name, platform::ButtonKind::kPush) {}

  // Makes it the button that Enter presses anywhere in the form, unless another push button has the
  // keyboard. A form has one default button at most.
  void SetDefault(bool is_default);
  [[nodiscard]] bool IsDefault() const { return default_; }
  // Gives it the look of the button that Enter presses.
  void ShowAsDefault(bool shown);
  // What a click does.
  void Click() { Clicked(); }

  // A click ends the modal form that the button is on with this result, before OnClick runs. kNone
  // leaves the form open.
  toolkit::ModalResult ModalResult = toolkit::ModalResult::kNone;

 protected:
  void Clicked() override;
  void Realised() override;

 private:
  bool default_ = false;
};

// A button that shows a colour, its background colour, on a sunken face. Its caption is not shown,
// but screen readers say it, so that the user knows what the colour is for.
class ColourPanel : public ButtonControl {
 public:
  ColourPanel(Control& parent, std::string_view name)
      : ButtonControl(parent, name, platform::ButtonKind::kPainted) {}

 protected:
  void Paint(platform::Canvas& canvas) override;
};

// A button that has a mark or not.
class MarkedButton : public ButtonControl {
 public:
  [[nodiscard]] bool Checked() const { return checked_; }

 protected:
  using ButtonControl::ButtonControl;
  // Sets the mark; no handler runs.
  void Mark(bool checked);
  void Realised() override { Peer()->SetChecked(checked_); }

  bool checked_ = false;
};

// A check box; OnClick is its change handler.
class CheckBox : public MarkedButton {
 public:
  CheckBox(Control& parent, std::string_view name)
      : MarkedButton(parent, name, platform::ButtonKind::kCheck) {}
  [[nodiscard]] KeyRole Role() const override { return KeyRole::kStop; }
  void SetChecked(bool checked);

 protected:
  void Clicked() override;
};

// A radio button; OnClick runs when it becomes the chosen one. The radio buttons of one parent that
// were made one after the other exclude each other.
class RadioButton : public MarkedButton {
 public:
  RadioButton(Control& parent, std::string_view name)
      : MarkedButton(parent, name, platform::ButtonKind::kRadio) {}
  [[nodiscard]] KeyRole Role() const override { return KeyRole::kRadio; }
  // Returns those that exclude each other, this one too.
  [[nodiscard]] std::vector<RadioButton*> Group() const;
  // Checking one takes the mark from the others, which are not told.
  void SetChecked(bool checked);

 protected:
  void Clicked() override;

 private:
  void Choose();
};

// A frame with a title around other controls, which have it as their parent.
class GroupBox : public ButtonControl {
 public:
  GroupBox(Control& parent, std::string_view name)
      : ButtonControl(parent, name, platform::ButtonKind::kGroup) {}
  [[nodiscard]] KeyRole Role() const override { return KeyRole::kNone; }

  // Design pixels that the title takes at the top.
  static constexpr int kTitleHeight = 15;
};

// A group box with one radio button for each of its items. OnClick runs when another item is
// chosen. The buttons have the group's hint, and the name of the button of item n is the group's
// name followed by n.
class RadioGroup : public GroupBox {
 public:
  using GroupBox::GroupBox;

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
