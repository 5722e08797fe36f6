#include "toolkit/controls/buttons.h"

#include <algorithm>

#include "toolkit/application.h"
#include "toolkit/controls/panel.h"
#include "toolkit/forms/form.h"

namespace toolkit {

ButtonControl::ButtonControl(Control& parent, std::string_view name, platform::ButtonKind kind)
    : ControlOf(parent, name), kind_(kind) {
  Attach([this](platform::Windowing& windowing, platform::Widget& on) {
    return windowing.CreateButton(on, Name(), kind_, *this);
  });
}

void Button::SetDefault(bool is_default) {
  default_ = is_default;
  ShowAsDefault(is_default);
  ParentForm().Keys().ShowWhatEnterPresses();
}

void Button::ShowAsDefault(bool shown) {
  if (Peer() != nullptr) Peer()->SetDefault(shown);
}

void Button::Realised() {
  if (default_) SetDefault(true);
}

void Button::Clicked() {
  if (ModalResult != toolkit::ModalResult::kNone) ParentForm().EndModal(ModalResult);
  Fire(OnClick);
}

std::string ColourName(platform::Colour colour) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string text = "#";
  for (const int shift : {4, 0, 12, 8, 20, 16}) text += kDigits[colour >> shift & 15U];
  return text;
}

platform::Spoken ColourPanel::Describe() const {
  platform::Spoken spoken = ButtonControl::Describe();
  spoken.value = ColourName(App().Platform().screen.Resolve(Colour()));
  return spoken;
}

void ColourPanel::Paint(platform::Canvas& canvas) {
  canvas.Fill(DrawFrame(canvas, canvas.Area()),
              Enabled() ? Colour() : platform::colour::kButtonFace);
}

void MarkedButton::Mark(bool checked) {
  checked_ = checked;
  if (Peer() != nullptr) Peer()->SetChecked(checked);
}

void CheckBox::SetChecked(bool checked) {
  if (checked == checked_) return;
  Mark(checked);
  Fire(OnClick);
}

void CheckBox::Clicked() {
  if (Assign(checked_, Peer()->Checked())) Fire(OnClick);
}

std::vector<RadioButton*> RadioButton::Group() const {
  std::vector<RadioButton*> group;
  for (Control* sibling : Parent()->Children()) {
    if (auto* radio = dynamic_cast<RadioButton*>(sibling)) {
      group.push_back(radio);
    } else if (std::find(group.begin(), group.end(), this) != group.end()) {
      break;
    } else {
      group.clear();
    }
  }
  return group;
}

void RadioButton::Choose() {
  for (RadioButton* radio : Group()) {
    if (radio->checked_ != (radio == this)) radio->Mark(radio == this);
  }
  Fire(OnClick);
}

void RadioButton::SetChecked(bool checked) {
  if (checked == checked_) return;
  if (checked) {
    Choose();
  } else {
    Mark(false);
  }
}

void RadioButton::Clicked() {
  if (!checked_ && Peer()->Checked()) Choose();
}

void RadioGroup::SetItems(std::span<const std::string> captions) {
  while (buttons_.size() > captions.size()) buttons_.pop_back();
  while (buttons_.size() < captions.size()) {
    buttons_.push_back(
        std::make_unique<RadioButton>(*this, Name() + std::to_string(buttons_.size())));
    buttons_.back()->OnClick = [this] { Fire(OnClick); };
    buttons_.back()->SetHint(Hint());
  }
  for (std::size_t i = 0; i < captions.size(); ++i) buttons_[i]->SetCaption(captions[i]);
  Arrange();
}

int RadioGroup::ItemIndex() const {
  const auto chosen = std::find_if(buttons_.begin(), buttons_.end(),
                                   [](const auto& button) { return button->Checked(); });
  return chosen != buttons_.end() ? static_cast<int>(chosen - buttons_.begin()) : -1;
}

void RadioGroup::SetItemIndex(int index) {
  if (index == ItemIndex()) return;
  if (index >= 0 && index < Count()) {
    buttons_[static_cast<std::size_t>(index)]->SetChecked(true);
    return;
  }
  for (const auto& button : buttons_) button->SetChecked(false);
  Fire(OnClick);
}

void RadioGroup::HintChanged() {
  for (const auto& button : buttons_) button->SetHint(Hint());
}

void RadioGroup::Arrange() {
  constexpr int kMargin = 8;
  constexpr int kBottom = 5;
  if (buttons_.empty()) return;
  const int height = (Bounds().height - kTitleHeight - kBottom) / Count();
  int top = kTitleHeight;
  for (const auto& button : buttons_) {
    button->SetBounds({kMargin, top, Bounds().width - 2 * kMargin, height});
    top += height;
  }
}

}  // namespace toolkit
