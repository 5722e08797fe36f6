// A form over a machine in memory, for the tests of the controls on it.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "platform/memory/machine.h"
#include "toolkit/application.h"
#include "toolkit/forms/form.h"

namespace toolkit {

class FormTest : public testing::Test {
 protected:
  FormTest() { form.SetClientSize({300, 300}); }

  static platform::TopWindowParams Params(const char* name = "form") {
    platform::TopWindowParams params;
    params.name = name;
    params.frame = platform::Frame::kDialog;
    return params;
  }

  platform::memory::Windowing& User() { return machine.windowing; }
  platform::memory::WidgetState& Peer(std::string_view name) {
    return machine.windowing.Find(name);
  }

  platform::memory::Machine machine;
  Application app{machine.Platform()};
  Form form{app, Params()};
};

}  // namespace toolkit
