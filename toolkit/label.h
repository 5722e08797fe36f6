// One line of text, centred.
#pragma once

#include "toolkit/control.h"

namespace toolkit {

class Label : public Control {
 public:
  Label(Control& parent, std::string_view name);
};

}  // namespace toolkit
