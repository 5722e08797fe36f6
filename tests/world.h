// A machine in memory and what most tests need on it. A test takes the smallest one that has what
// it needs.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "alerts/reactions.h"
#include "alerts/system_manager.h"
#include "engine/interface_sampler.h"
#include "engine/statistics.h"
#include "engine/traffic_state.h"
#include "language/language.h"
#include "platform/memory/machine.h"
#include "settings/store.h"
#include "toolkit/application.h"

namespace test {

inline constexpr std::string_view kSettingsKey = "SOFTWARE\\Korvane\\Dravenlow\\Settings";
inline constexpr std::string_view kAdapterDatas = "SOFTWARE\\Korvane\\Dravenlow\\AdapterDatas";

// A machine and what is stored on it.
class Computer {
 public:
  using RegistryValue = platform::memory::RegistryValue;

  void Set(std::string_view name, std::int64_t value) {
    machine.registry.Set(kSettingsKey, name,
                         RegistryValue::Dword(static_cast<std::uint32_t>(value)));
  }
  void Set(std::string_view name, std::string_view value) {
    machine.registry.Set(kSettingsKey, name, RegistryValue::Text(value));
  }
  void SetAdapter(std::string_view name, std::string_view value) {
    machine.registry.Set(kAdapterDatas, name, RegistryValue::Text(value));
  }

  // A stored number, and a stored text; what stands for none is never stored.
  [[nodiscard]] std::uint32_t Stored(std::string_view name) const {
    return machine.registry.Dword(kSettingsKey, name).value_or(0xDEADBEEF);
  }
  [[nodiscard]] std::string StoredText(std::string_view name) const {
    return machine.registry.Text(kSettingsKey, name).value_or("(missing)");
  }
  [[nodiscard]] std::string StoredOfAdapter(std::string_view name) const {
    return machine.registry.Text(kAdapterDatas, name).value_or("(missing)");
  }

  platform::memory::WidgetState& Widget(std::string_view name) {
    return machine.windowing.Find(name);
  }

  platform::memory::Machine machine;
  settings::Store store{machine.registry, machine.files};
};

// What windows need. An exception in a handler goes to `errors`.
class World : public Computer {
 public:
  World() {
    app.SetExceptionHandler([this](std::string_view message) { errors.emplace_back(message); });
  }

  toolkit::Application app{machine.Platform()};
  language::Language language{store, machine.files, machine.locale};
  std::vector<std::string> errors;
};

// The adapters and who counts them.
class Adapters : public Computer {
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
    std::vector<engine::AdapterItem> items = sampler.InitAdapters();
    statistics.InitStatistics(sampler.Descriptions(), machine.clock.Now());
    return items;
  }

  // Lets the first adapter move bytes and samples them.
  engine::ScanAmounts Sample(std::uint32_t received, std::uint32_t sent) {
    machine.interface_table.AddTraffic(0, received, sent);
    return Sample();
  }
  engine::ScanAmounts Sample() {
    return sampler.SampleInterfaces([this](const engine::AdapterScan& adapter) {
      statistics.PersistAdapter(adapter, platform::DateOf(machine.clock.Now()));
    });
  }

  engine::TrafficState state;
  engine::Statistics statistics{store};
  engine::InterfaceSampler sampler{machine.interface_table, machine.locale, store, state};
};

// Who reacts to traffic. What would be a balloon is in `balloons`.
class Reacting : public World, private alerts::Balloons {
 public:
  alerts::SystemManager manager{app};
  alerts::Reactions reactions{machine.sound, *this, manager.shutdown};
  std::vector<platform::memory::Balloon> balloons;

 private:
  void ShowBalloon(std::string_view title, std::string_view text, platform::BalloonIcon icon,
                   int seconds) override {
    balloons.push_back({std::string(title), std::string(text), icon, seconds});
  }
};

}  // namespace test
