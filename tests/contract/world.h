// The system that the contract tests run against. The build chooses it; each World has
//
//   Platform()       the services
//   SetRawValue()    writes a registry value of any type, in a key that is there
//   RemoveKey()      removes a registry key with all that is in it
//   ScratchFolder()  an empty folder for files, with a backslash at its end
//   MakeFolder()
//   HoldFile()       another program has a file open and shares it with nobody, while a step runs
//   Later()          runs a step once, from the message loop that runs next or goes on
//   LetHappen()      lets time pass until a condition is true; false when it does not come true in
//                    a time that is ample for it
#pragma once

#include <gtest/gtest.h>

#ifdef _WIN32
#include "tests/contract/windows/world.h"
#else
#include "tests/contract/memory_world.h"
#endif

namespace contract {

class ContractTest : public testing::Test {
 protected:
  [[nodiscard]] platform::Platform& Platform() { return world_.Platform(); }

  World world_;
};

}  // namespace contract
