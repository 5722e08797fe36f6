// The system in memory, as tests/contract/world.h tells of it.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "platform/memory/machine.h"

namespace contract {

class World {
 public:
  World() {
    machine_.interface_table.AddRow(platform::memory::MakeRow("Loopback", {}));
    machine_.interface_table.AddRow(platform::memory::MakeRow("Ethernet"));
  }

  [[nodiscard]] platform::Platform& Platform() { return machine_.Platform(); }

  void SetRawValue(std::string_view path, std::string_view name, std::uint32_t type,
                   std::string_view value) {
    const auto bytes = std::as_bytes(std::span(value));
    machine_.registry.Set(
        path, name, {static_cast<platform::memory::ValueType>(type), {bytes.begin(), bytes.end()}});
  }
  void RemoveKey(std::string_view path) { machine_.registry.RemoveKey(path); }

  std::string ScratchFolder() {
    machine_.files.AddFolder("C:\\Temp\\scratch");
    return "C:\\Temp\\scratch\\";
  }
  void MakeFolder(std::string_view path) { machine_.files.AddFolder(path); }
  void HoldFile(std::string_view path, const std::function<void()>& meanwhile) {
    machine_.files.SetHeld(path, true);
    meanwhile();
    machine_.files.SetHeld(path, false);
  }

  void Later(std::function<void()> step) { machine_.message_loop.Then(std::move(step)); }
  [[nodiscard]] bool LetHappen(const std::function<bool()>& condition) {
    constexpr int kRounds = 1000;
    for (int round = 0; round < kRounds && !condition(); ++round) machine_.timers.Advance(10);
    return condition();
  }

 private:
  platform::memory::Machine machine_;
};

}  // namespace contract
