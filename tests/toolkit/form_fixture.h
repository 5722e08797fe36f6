// A form over a machine in memory.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "tests/world.h"
#include "toolkit/forms/form.h"

namespace toolkit {

using Names = std::vector<std::string>;

class FormTest : public testing::Test, protected test::World {
 protected:
  FormTest() { form.SetClientSize({300, 300}); }

  static platform::TopWindowParams Params(const char* name = "form") {
    return {name, "", platform::Frame::kDialog, false};
  }

  platform::memory::Windowing& User() { return machine.windowing; }
  // What happens next while a message loop runs.
  void Then(std::function<void()> step) { machine.message_loop.Then(std::move(step)); }

  Form form{app, Params()};
};

}  // namespace toolkit
