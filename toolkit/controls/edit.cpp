#include "toolkit/controls/edit.h"

#include "toolkit/application.h"

namespace toolkit {

Edit::Edit(Control& parent, std::string_view name, const platform::EditStyle& style)
    : ControlOf(parent, name), kind_(style.kind) {
  Attach([this, style](platform::Windowing& windowing, platform::Widget& on) {
    return windowing.CreateEdit(on, Name(), style, *this);
  });
  SetColour(platform::colour::kWindow);
}

void Edit::Realised() {
  Peer()->SetText(text_);
  if (max_length_ > 0) Peer()->SetMaxLength(max_length_);
  if (read_only_) Peer()->SetReadOnly(true);
}

void Edit::SetMaxLength(int characters) {
  max_length_ = characters;
  if (Peer() != nullptr) Peer()->SetMaxLength(characters);
}

void Edit::SetReadOnly(bool read_only) {
  read_only_ = read_only;
  if (Peer() != nullptr) Peer()->SetReadOnly(read_only);
}

void Edit::ReachedByTab() {
  if (kind_ != platform::EditKind::kMemo) SelectAll();
}

void Edit::SelectAll() {
  if (Peer() != nullptr) Peer()->SelectAll();
}

void Edit::SetText(std::string_view text) {
  if (!Assign(text_, text)) return;
  if (Peer() != nullptr) Peer()->SetText(text_);
  Fire(OnChange);
}

void Edit::OnChanged() {
  if (Assign(text_, Peer()->Text())) App().Guard([this] { TextEntered(); });
}

}  // namespace toolkit
