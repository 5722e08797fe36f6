#include "toolkit/controls/group_box.h"

#include "toolkit/application.h"

namespace toolkit {

GroupBox::GroupBox(Control& parent, std::string_view name) : Control(parent.App(), &parent, name) {
  Attach([this](platform::Windowing& windowing, platform::Widget& on) {
    return windowing.CreateButton(on, Name(), platform::ButtonKind::kGroup, *this);
  });
}

}  // namespace toolkit
