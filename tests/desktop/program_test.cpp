#include "tests/desktop/program_test.h"

#include <optional>

#include "platform/windows/wide_text.h"
#include "tests/desktop/driver/registry_guard.h"
#include "tests/desktop/driver/screen.h"

namespace desktop {
namespace {

// Once for the whole run.
class UsersDesktop : public testing::Environment {
 public:
  void SetUp() override {
    // Real pixels everywhere, as the program has them.
    ::SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
    ASSERT_FALSE(ProgramRuns()) << "end the program that is running, and test again";
    guard_.emplace();
  }
  void TearDown() override { guard_.reset(); }

 private:
  std::optional<RegistryGuard> guard_;
};

const testing::Environment* const kUsersDesktop =
    testing::AddGlobalTestEnvironment(new UsersDesktop);

}  // namespace

void ProgramTest::SetUp() {
  RegistryGuard::RemoveStored();
  MoveMouse({0, 0});
}

void ProgramTest::TearDown() {
  if (!HasFailure()) return;
  const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
  SavePng(TakePictureOfScreen(),
          OwnFolder() + L"failed " + platform::windows::ToWide(test.name()) + L".png");
}

Meter& ProgramTest::Start() {
  meter_.reset();
  meter_ = std::make_unique<Meter>();
  return *meter_;
}

void ProgramTest::AwaitGone(HWND window) {
  Await("a window to go", [window] { return ::IsWindowVisible(window) == FALSE; });
}

void ProgramTest::AwaitStored(const std::string& name, const std::string& value) {
  Await(name + " = " + value, [&] { return Setting(name) == value; });
}

}  // namespace desktop
