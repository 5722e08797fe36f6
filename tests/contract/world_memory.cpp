#include "platform/memory/machine.h"
#include "tests/contract/world.h"

namespace contract {
namespace {

using platform::memory::RegistryValue;
using platform::memory::ValueType;

class MemoryWorld : public World {
 public:
  MemoryWorld() {
    machine_.interface_table.AddRow(platform::memory::MakeRow("Loopback", {}));
    machine_.interface_table.AddRow(platform::memory::MakeRow("Ethernet"));
  }

  platform::InterfaceTable& InterfaceTable() override { return machine_.interface_table; }
  platform::Registry& Registry() override { return machine_.registry; }
  platform::Sockets& Sockets() override { return machine_.sockets; }
  platform::SingleInstance& SingleInstance() override { return machine_.single_instance; }
  platform::Clock& Clock() override { return machine_.clock; }
  platform::Files& Files() override { return machine_.files; }
  platform::Locale& Locale() override { return machine_.locale; }
  platform::Clipboard& Clipboard() override { return machine_.clipboard; }

  void SetRawValue(std::string_view path, std::string_view name, std::uint32_t type,
                   std::span<const std::byte> data) override {
    machine_.registry.Set(path, name,
                          RegistryValue{static_cast<ValueType>(type), {data.begin(), data.end()}});
  }

  std::optional<RawValue> GetRawValue(std::string_view path, std::string_view name) override {
    const std::optional<RegistryValue> value = machine_.registry.Raw(path, name);
    if (!value) return std::nullopt;
    return RawValue{static_cast<std::uint32_t>(value->type),
                    {reinterpret_cast<const char*>(value->data.data()), value->data.size()}};
  }

  void RemoveKey(std::string_view path) override { machine_.registry.RemoveKey(path); }

  std::string ScratchFolder() override {
    machine_.files.AddFolder("C:\\Temp\\scratch");
    return "C:\\Temp\\scratch\\";
  }

  void MakeFolder(std::string_view path) override { machine_.files.AddFolder(path); }

  void HoldFile(std::string_view path, const std::function<void()>& meanwhile) override {
    machine_.files.SetHeld(path, true);
    meanwhile();
    machine_.files.SetHeld(path, false);
  }

  std::string ClipboardText() override { return machine_.clipboard.text; }

  void HoldClipboard(const std::function<void()>& meanwhile) override {
    machine_.clipboard.held_by_other = true;
    meanwhile();
    machine_.clipboard.held_by_other = false;
  }

 private:
  platform::memory::Machine machine_;
};

}  // namespace

std::unique_ptr<World> MakeWorld() { return std::make_unique<MemoryWorld>(); }

}  // namespace contract
