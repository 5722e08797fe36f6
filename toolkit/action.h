// A named thing that the program can do.
#pragma once

#include <functional>
#include <string>
#include <utility>

namespace toolkit {

class Action {
 public:
  explicit Action(std::string caption) : Caption(std::move(caption)) {}

  std::string Caption;
  std::string Category = "Others";
  std::function<void()> OnExecute;

  // Runs the handler; without one nothing happens.
  void Execute() const {
    if (OnExecute) OnExecute();
  }
};

}  // namespace toolkit
