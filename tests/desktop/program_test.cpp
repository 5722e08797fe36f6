#include "tests/desktop/program_test.h"

#include <exception>
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

std::string NameOfTest() {
  const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
  return std::string(test->test_suite_name()) + "." + test->name();
}

void LeavePicture() {
  const std::wstring path =
      OwnFolder() + L"failed " + platform::windows::ToWide(NameOfTest()) + L".png";
  try {
    SavePng(TakePictureOfScreen(), path);
    std::cout << "the screen at the end: " << platform::windows::FromWide(path) << "\n";
  } catch (const std::exception& error) {
    std::cout << "no picture of the screen: " << error.what() << "\n";
  }
}

}  // namespace

void ProgramTest::SetUp() {
  RegistryGuard::RemoveStored();
  MoveMouse({0, 0});
}

void ProgramTest::TearDown() {
  if (HasFailure()) LeavePicture();
  Stop();
}

Meter& ProgramTest::Start() {
  meter_.reset();
  meter_ = std::make_unique<Meter>();
  return *meter_;
}

void ProgramTest::CountOnly(const std::string& adapter) {
  for (const AdapterRow& row : ReadAdapters()) Store(row.name, row.name == adapter ? 1U : 0U);
  Store("ExecuteTime", 1U);  // else the first start lets all of them count
}

}  // namespace desktop
