#include "toolkit/label.h"

#include "toolkit/application.h"

namespace toolkit {

Label::Label(Control& parent, std::string_view name) : Control(parent.App(), &parent, name) {
  Attach(App().Platform().windowing.CreateText(PeerOf(parent), name, {platform::TextAlign::kCentre}, *this));
}

}  // namespace toolkit
