// A clipboard that another program can hold.
#pragma once

#include <string>

#include "platform/clipboard.h"
#include "platform/memory/notebook.h"

namespace platform::memory {

class Clipboard : public platform::Clipboard {
 public:
  explicit Clipboard(Notebook& notebook) : notebook_(notebook) {}

  bool SetText(std::string_view new_text) override {
    if (notebook_.Fails()) return false;
    text = new_text.substr(0, new_text.find('\0'));
    ++changes;
    return true;
  }

  std::string text;
  int changes = 0;

 private:
  Notebook& notebook_;
};

}  // namespace platform::memory
