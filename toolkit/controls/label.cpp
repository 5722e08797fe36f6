#include "toolkit/controls/label.h"

#include "toolkit/application.h"

namespace toolkit {

Label::Label(Control& parent, std::string_view name, const platform::TextStyle& style)
    : Control(parent.App(), &parent, name) {
  Attach(App().Platform().windowing.CreateText(PeerOf(parent), name, style, *this));
}

}  // namespace toolkit
