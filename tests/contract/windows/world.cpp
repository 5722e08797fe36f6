#include "tests/contract/world.h"

#include <utility>

#include "platform/windows/system_error.h"
#include "platform/windows/system_handles.h"
#include "platform/windows/wide_text.h"
#include "tests/desktop/driver/wait.h"

namespace contract {
namespace {

using platform::windows::FromWide;
using platform::windows::ThrowSystemError;
using platform::windows::ToWide;

// The system itself refuses a path that begins with a backslash.
std::wstring KeyPath(std::string_view path) {
  return ToWide(path.substr(path.starts_with('\\') ? 1 : 0));
}

}  // namespace

World::~World() {
  if (!scratch_.empty()) std::filesystem::remove_all(scratch_);
}

void World::SetRawValue(std::string_view path, std::string_view name, std::uint32_t type,
                        std::string_view value) {
  const LSTATUS result =
      ::RegSetKeyValueW(HKEY_CURRENT_USER, KeyPath(path).c_str(), ToWide(name).c_str(), type,
                        value.data(), static_cast<DWORD>(value.size()));
  if (result != ERROR_SUCCESS) ThrowSystemError("RegSetKeyValue", static_cast<DWORD>(result));
}

void World::RemoveKey(std::string_view path) {
  ::RegDeleteTreeW(HKEY_CURRENT_USER, KeyPath(path).c_str());
}

std::string World::ScratchFolder() {
  scratch_ = std::filesystem::temp_directory_path() /
             ("tremolux_contract_" + std::to_string(::GetCurrentProcessId()));
  std::filesystem::remove_all(scratch_);
  std::filesystem::create_directory(scratch_);
  return FromWide(scratch_.wstring()) + '\\';
}

void World::MakeFolder(std::string_view path) { std::filesystem::create_directory(ToWide(path)); }

void World::HoldFile(std::string_view path, const std::function<void()>& meanwhile) {
  const platform::windows::FileHandle file(::CreateFileW(ToWide(path).c_str(), GENERIC_READ, 0,
                                                         nullptr, OPEN_EXISTING,
                                                         FILE_ATTRIBUTE_NORMAL, nullptr));
  if (!file) ThrowSystemError("CreateFile", ::GetLastError());
  meanwhile();
}

void World::Later(std::function<void()> step) {
  std::unique_ptr<platform::Timer>& timer = steps_.emplace_back();
  timer = Platform().timers.Start(10, [&timer, step = std::move(step)] {
    timer.reset();
    step();
  });
}

bool World::LetHappen(const std::function<bool()>& condition) {
  const double deadline = desktop::SteadyMs() + desktop::kAmpleMs;
  const auto wakes_the_loop = Platform().timers.Start(10, [] {});
  Platform().message_loop.RunUntil([&] { return condition() || desktop::SteadyMs() > deadline; });
  return condition();
}

}  // namespace contract
