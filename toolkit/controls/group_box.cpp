#include "toolkit/controls/group_box.h"

#include "toolkit/application.h"

namespace toolkit {

GroupBox::GroupBox(Control& parent, std::string_view name) : Control(parent.App(), &parent, name) {
  Attach(App().Platform().windowing.CreateButton(PeerOf(parent), name, platform::ButtonKind::kGroup,
                                                 *this));
}

}  // namespace toolkit
