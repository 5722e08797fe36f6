// A machine in memory and what most tests need on it. A test takes the smallest one that has what
// it needs.
#pragma once

#include <cstdint>
#include <fstream>
#include <iterator>
#include <map>
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
#include "toolkit/controls/control.h"

namespace test {

inline constexpr std::string_view kSettingsKey = "SOFTWARE\\Korvane\\Dravenlow\\Settings";
inline constexpr std::string_view kAdapterDatas = "SOFTWARE\\Korvane\\Dravenlow\\AdapterDatas";

inline std::string ReadFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

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

  // A stored number, and a stored text; for none, what is never stored.
  static constexpr std::uint32_t kNoNumber = 0xDEADBEEF;
  [[nodiscard]] std::uint32_t Stored(std::string_view name) const {
    return machine.registry.Dword(kSettingsKey, name).value_or(kNoNumber);
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

  // What the registry holds, as "name=value" with texts in quotes.
  using StoredValues = std::map<std::string, std::string>;
  StoredValues AllValues(const std::string& key = "SOFTWARE") {
    StoredValues values;
    for (const std::string& name : machine.registry.Values(key)) {
      const auto number = machine.registry.Dword(key, name);
      const auto text = machine.registry.Text(key, name);
      values[(key == kSettingsKey || key == kAdapterDatas ? "" : key + "\\") + name] =
          number ? std::to_string(static_cast<std::int32_t>(*number))
          : text ? '"' + *text + '"'
                 : std::to_string(machine.registry.Raw(key, name)->data.size());
    }
    for (const std::string& sub : machine.registry.Keys(key))
      values.merge(AllValues(key + "\\" + sub));
    return values;
  }
  // What is other than it was `before`, one behind the other.
  std::string ChangesSince(const StoredValues& before) {
    StoredValues now = AllValues();
    for (const auto& [name, value] : before) now.try_emplace(name, "gone");
    std::string changes;
    for (const auto& [name, value] : now) {
      const auto old = before.find(name);
      if (old != before.end() && old->second == value) continue;
      changes += (changes.empty() ? "" : " ") + name + "=" + value;
    }
    return changes;
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

// The names of the controls below `root` that have no caption, or, if they are to have one, no
// hint.
inline std::string Untold(const toolkit::Control& root, bool with_hints = false) {
  std::string names;
  for (const toolkit::Control* child : root.Children()) {
    const bool told = !child->Caption().empty() && !(with_hints && child->Hint().empty());
    names += (told ? "" : child->Name() + " ") + Untold(*child, with_hints);
  }
  return names;
}

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
          statistics.PersistAdapter(adapter, platform::DateOf(machine.clock.Now()));
        });
  }

  engine::TrafficState state;
  engine::Statistics statistics{store};
  engine::InterfaceSampler sampler{machine.interface_table, machine.locale, state};
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
