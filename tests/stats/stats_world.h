// The statistics windows over a machine in memory.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "engine/traffic_state.h"
#include "language/language.h"
#include "platform/memory/machine.h"
#include "quantity/quantity.h"
#include "settings/store.h"
#include "stats/unit_ConnInfo.h"
#include "stats/unit_SpecificConnInfo.h"
#include "toolkit/application.h"

namespace test {

inline constexpr std::string_view kSettings = "SOFTWARE\\Korvane\\Dravenlow\\Settings";
inline constexpr std::string_view kAdapterDatas = "SOFTWARE\\Korvane\\Dravenlow\\AdapterDatas";

// The control of this name on a form, which may be one of two that have it; null for none.
inline toolkit::Control* FindOn(toolkit::Control& root, std::string_view name) {
  if (root.Name() == name) return &root;
  for (toolkit::Control* child : root.Children()) {
    if (toolkit::Control* found = FindOn(*child, name)) return found;
  }
  return nullptr;
}

// The names of all controls on a form.
inline void AddNames(const toolkit::Control& root, std::vector<std::string>& names) {
  names.push_back(root.Name());
  for (const toolkit::Control* child : root.Children()) AddNames(*child, names);
}

class StatsTest : public testing::Test {
 protected:
  StatsTest() {
    app.SetExceptionHandler([this](std::string_view message) { errors.emplace_back(message); });
    traffic.RestartRun(platform::EncodeDateTime(2024, 5, 17, 9, 30, 0));
  }

  void Plant(std::string_view key, std::string_view name, std::string_view value) {
    machine.registry.Set(key, name, platform::memory::RegistryValue::Text(value));
  }
  void Plant(std::string_view name, std::string_view value) { Plant(kSettings, name, value); }

  static std::string Text(toolkit::Control& form, std::string_view name) {
    const toolkit::Control* control = FindOn(form, name);
    return control != nullptr ? control->Caption() : "(no " + std::string(name) + ")";
  }
  // Value and unit of a row.
  static std::string Row(toolkit::Control& form, const std::string& name) {
    return Text(form, name) + " " + Text(form, name + "Unit");
  }

  // What stands in a key, one "name=value" each.
  std::vector<std::string> Stored(std::string_view key) {
    std::vector<std::string> all;
    for (const std::string& name : machine.registry.Values(key)) {
      const auto number = machine.registry.Dword(key, name);
      const std::string text = machine.registry.Text(key, name).value_or("?");
      all.push_back(name + "=" + (number ? std::to_string(*number) : text));
    }
    return all;
  }

  platform::memory::Machine machine;
  toolkit::Application app{machine.Platform()};
  settings::Store store{machine.registry, machine.files};
  language::Language language{store, machine.files, machine.locale};
  quantity::Quantity quantity{store, machine.locale};
  engine::TrafficState traffic;
  stats::StatisticsContext context{app, store, quantity, language, traffic};
  std::vector<std::string> errors;
};

}  // namespace test
