#include "toolkit/controls/radio_group.h"

namespace toolkit {

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
  for (std::size_t i = 0; i < buttons_.size(); ++i) {
    if (buttons_[i]->Checked()) return static_cast<int>(i);
  }
  return -1;
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
