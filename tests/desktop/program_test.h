// What all tests of the running program have in common.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tests/desktop/driver/input.h"
#include "tests/desktop/driver/meter.h"
#include "tests/desktop/driver/registry.h"
#include "tests/desktop/driver/wait.h"
#include "tests/desktop/driver/windows_of.h"

namespace desktop {

// Each test finds a program that has stored nothing yet and does not run. What the user's own copy
// has stored comes back when all tests are over. A test that fails leaves a picture of the screen
// beside the test program.
class ProgramTest : public testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  // Starts the program; one that runs is ended first.
  Meter& Start();

  static void AwaitGone(HWND window);
  static void AwaitStored(const std::string& name, const std::string& value);

 private:
  std::unique_ptr<Meter> meter_;
};

}  // namespace desktop
