#include "toolkit/controls/button.h"

#include <utility>

#include "toolkit/application.h"
#include "toolkit/forms/form.h"

namespace toolkit {

Button::Button(Control& parent, std::string_view name) : Control(parent.App(), &parent, name) {
  auto button = App().Platform().windowing.CreateButton(PeerOf(parent), name,
                                                        platform::ButtonKind::kPush, *this);
  button_ = button.get();
  Attach(std::move(button));
}

void Button::Clicked() {
  if (ModalResult != toolkit::ModalResult::kNone) ParentForm().EndModal(ModalResult);
  Fire(OnClick);
}

}  // namespace toolkit
