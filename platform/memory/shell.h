// A shell that records which files were opened.
#pragma once

#include <string>
#include <vector>

#include "platform/memory/files.h"
#include "platform/shell.h"

namespace platform::memory {

class Shell final : public platform::Shell {
 public:
  explicit Shell(Files& files) : files_(files) {}

  bool Open(std::string_view path) override {
    if (!files_.Exists(path)) return false;
    opened.emplace_back(path);
    return true;
  }

  std::vector<std::string> opened;

 private:
  Files& files_;
};

}  // namespace platform::memory
