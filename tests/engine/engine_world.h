// The traffic engine over a machine in memory.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "engine/interface_sampler.h"
#include "engine/scan_cycle.h"
#include "engine/statistics.h"
#include "engine/traffic_state.h"
#include "platform/memory/machine.h"
#include "settings/store.h"

namespace test {

inline constexpr const char* kSettings = "\\SOFTWARE\\Korvane\\Dravenlow\\Settings";
inline constexpr const char* kAdapterDatas = "\\SOFTWARE\\Korvane\\Dravenlow\\AdapterDatas";

class Engine {
 public:
  // Adds an adapter whose counters already stand somewhere.
  platform::InterfaceRow& AddAdapter(std::string_view description) {
    platform::InterfaceRow& row =
        machine.interface_table.AddRow(platform::memory::MakeRow(description));
    row.dwInOctets = 1000000;
    row.dwOutOctets = 2000000;
    return row;
  }

  // What the window's initialisation does for the engine.
  std::vector<engine::AdapterItem> Initialise() {
    std::vector<engine::AdapterItem> items = sampler.InitAdapters(
        [this](std::string_view description, const platform::InterfaceRow& row) {
          return statistics.RecordAdapter(description, row);
        });
    statistics.InitStatistics(sampler.Descriptions(), machine.clock.Now());
    return items;
  }

  // Lets the first adapter move bytes and samples them.
  engine::ScanAmounts Sample(std::uint32_t received, std::uint32_t sent) {
    machine.interface_table.AddTraffic(0, received, sent);
    return Sample();
  }
  engine::ScanAmounts Sample() {
    return sampler.SampleInterfaces(
        [this](std::string_view description) { return statistics.Counts(description); },
        [this](const engine::AdapterScan& adapter) {
          statistics.PersistAdapter(adapter, Today());
        });
  }

  [[nodiscard]] platform::DateTime Today() { return platform::DateOf(machine.clock.Now()); }

  // Stored texts, "-" where there is none.
  [[nodiscard]] std::string Machine(std::string_view name) const {
    return machine.registry.Text(kSettings, name).value_or("-");
  }
  [[nodiscard]] std::string Adapter(std::string_view name) const {
    return machine.registry.Text(kAdapterDatas, name).value_or("-");
  }
  [[nodiscard]] bool Persisted(std::string_view description) const {
    return machine.registry.Exists(kAdapterDatas, std::string(description) + "InfoTotalDL");
  }
  void SetText(std::string_view key, std::string_view name, std::string_view value) {
    machine.registry.Set(key, name, platform::memory::RegistryValue::Text(value));
  }

  platform::memory::Machine machine;
  settings::Store store{machine.registry, machine.files};
  engine::TrafficState state;
  engine::Statistics statistics{store};
  engine::InterfaceSampler sampler{machine.interface_table, machine.locale, state};
};

}  // namespace test
