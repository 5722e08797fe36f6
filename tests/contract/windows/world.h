// Windows itself, as tests/contract/world.h tells of it.
#pragma once

#include <filesystem>
#include <functional>
#include <list>
#include <memory>
#include <string>
#include <string_view>

#include "platform/windows/machine.h"

namespace contract {

class World {
 public:
  World() = default;
  ~World();
  World(const World&) = delete;
  World& operator=(const World&) = delete;

  [[nodiscard]] platform::Platform& Platform() { return machine_.platform(); }

  void SetRawValue(std::string_view path, std::string_view name, std::uint32_t type,
                   std::string_view value);
  void RemoveKey(std::string_view path);

  std::string ScratchFolder();
  void MakeFolder(std::string_view path);
  void HoldFile(std::string_view path, const std::function<void()>& meanwhile);

  void Later(std::function<void()> step);
  [[nodiscard]] bool LetHappen(const std::function<bool()>& condition);

 private:
  platform::windows::Machine machine_;
  std::filesystem::path scratch_;
  std::list<std::unique_ptr<platform::Timer>> steps_;
};

}  // namespace contract
