#include "toolkit/controls/edit.h"

#include <utility>

#include "toolkit/application.h"

namespace toolkit {

Edit::Edit(Control& parent, std::string_view name, const platform::EditStyle& style)
    : Control(parent.App(), &parent, name) {
  auto edit = App().Platform().windowing.CreateEdit(PeerOf(parent), name, style, *this);
  edit_ = edit.get();
  Attach(std::move(edit));
  SetColour(platform::colour::kWindow);
}

void Edit::SetText(std::string_view text) {
  if (text == text_) return;
  text_ = text;
  edit_->SetText(text_);
  Fire(OnChange);
}

void Edit::OnChanged() {
  std::string text = edit_->Text();
  if (text == text_) return;
  text_ = std::move(text);
  App().Guard([this] { TextEntered(); });
}

}  // namespace toolkit
