#include "toolkit/controls/label.h"

#include "toolkit/application.h"

namespace toolkit {

Label::Label(Control& parent, std::string_view name, const platform::TextStyle& style)
    : Control(parent.App(), &parent, name), marks_key_(style.mnemonic) {
  Attach([this, style](platform::Windowing& windowing, platform::Widget& on) {
    return windowing.CreateText(on, Name(), style, *this);
  });
}

}  // namespace toolkit
