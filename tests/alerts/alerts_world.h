// What the alerts need, over a machine in memory.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "alerts/reactions.h"
#include "alerts/system_manager.h"
#include "engine/traffic_state.h"
#include "language/language.h"
#include "platform/memory/machine.h"
#include "settings/store.h"
#include "toolkit/application.h"

namespace test {

class AlertsTest : public testing::Test, private alerts::Balloons {
 protected:
  static engine::ScanAmounts Bytes(std::int64_t dl, std::int64_t ul) { return {dl, ul, 0, 0}; }

  void Set(std::string_view name, std::int64_t value) { store.WriteInteger(name, value); }
  void SetText(std::string_view name, std::string_view text) {
    store.WriteString(settings::KeyIndex::kSettings, name, text);
  }
  std::string ProgramFile(std::string_view name) { return store.ProgramFile(name); }

  platform::memory::Machine machine;
  toolkit::Application app{machine.Platform()};
  settings::Store store{machine.registry, machine.files};
  language::Language language{store, machine.files, machine.locale};
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
