#include "toolkit/controls/edit.h"

#include <utility>

#include "toolkit/application.h"

namespace toolkit {

Edit::Edit(Control& parent, std::string_view name, const platform::EditStyle& style)
    : Control(parent.App(), &parent, name), kind_(style.kind) {
  Attach([this, style](platform::Windowing& windowing, platform::Widget& on) {
    return Remember(windowing.CreateEdit(on, Name(), style, *this), edit_);
  });
  SetColour(platform::colour::kWindow);
}

void Edit::Realised() {
  edit_->SetText(text_);
  if (max_length_ > 0) edit_->SetMaxLength(max_length_);
  if (read_only_) edit_->SetReadOnly(true);
}

void Edit::SetMaxLength(int characters) {
  max_length_ = characters;
  if (edit_ != nullptr) edit_->SetMaxLength(characters);
}

void Edit::SetReadOnly(bool read_only) {
  read_only_ = read_only;
  if (edit_ != nullptr) edit_->SetReadOnly(read_only);
}

void Edit::ReachedByTab() {
  if (kind_ != platform::EditKind::kMemo) SelectAll();
}

void Edit::SelectAll() {
  if (edit_ != nullptr) edit_->SelectAll();
}

void Edit::SetText(std::string_view text) {
  if (text == text_) return;
  text_ = text;
  if (edit_ != nullptr) edit_->SetText(text_);
  Fire(OnChange);
}

void Edit::OnChanged() {
  std::string text = edit_->Text();
  if (text == text_) return;
  text_ = std::move(text);
  App().Guard([this] { TextEntered(); });
}

}  // namespace toolkit
