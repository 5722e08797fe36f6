// The running meter with its preferences, over a machine in memory.
#pragma once

#include <algorithm>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "preferences/unit_SettingsForm.h"
#include "tests/display/meter.h"

namespace test {

class PreferencesTest : public MeterTest {
 protected:
  static constexpr const char* kForm = "T_frmPreferences";

  // Runs the program with its preferences open.
  void RunOpen(const std::function<void()>& body) {
    Run([&] {
      Open();
      body();
    });
  }

  void Open() { Choose("Settings..."); }
  void Close() { User().Press("btnClose"); }
  // Selects an item of the page tree by its text.
  void ChoosePage(const std::string& text) {
    const auto& items = Widget("TreeItems").items;
    const auto found = std::find(items.begin(), items.end(), text);
    ASSERT_NE(found, items.end()) << text;
    User().Choose("TreeItems", static_cast<int>(found - items.begin()));
  }

  // One after the other, the first one again at the end: a page that was not seen has no controls
  // that the user could look at.
  void SeeEveryPage() {
    for (int left = static_cast<int>(Widget("TreeItems").items.size()); left > 0; --left) {
      User().Choose("TreeItems", left - 1);
    }
  }

  platform::memory::Windowing& User() { return machine.windowing; }

  // All values of the registry, by their path, as "type:bytes".
  using Values = std::map<std::string, std::string>;
  Values AllValues() {
    Values values;
    Collect("SOFTWARE", values);
    return values;
  }
  // What is in `now` and was not like that in `before`; a value that is gone is empty.
  static Values Changes(const Values& before, const Values& now) {
    Values changes;
    for (const auto& [path, value] : now) {
      const auto old = before.find(path);
      if (old == before.end() || old->second != value) changes[path] = value;
    }
    for (const auto& [path, value] : before) {
      if (!now.contains(path)) changes[path] = "";
    }
    return changes;
  }
  static std::string Bytes(const platform::memory::RegistryValue& value) {
    std::string bytes = std::to_string(static_cast<int>(value.type)) + ":";
    for (const std::byte byte : value.data) bytes += std::to_string(static_cast<int>(byte)) + ",";
    return bytes;
  }
  static std::string InSettings(const std::string& name) {
    return std::string(kSettingsKey) + "\\" + name;
  }

  // Those of `names` in `all`, in the order of their last places there.
  static std::vector<std::string> InOrder(const std::vector<std::string>& all,
                                          const std::vector<std::string>& names) {
    std::vector<std::string> found;
    for (auto name = all.rbegin(); name != all.rend(); ++name) {
      const bool wanted = std::find(names.begin(), names.end(), *name) != names.end();
      const bool is_new = std::find(found.begin(), found.end(), *name) == found.end();
      if (wanted && is_new) found.insert(found.begin(), *name);
    }
    return found;
  }

 private:
  void Collect(const std::string& key, Values& values) {
    for (const std::string& name : machine.registry.Values(key)) {
      values[key + "\\" + name] = Bytes(*machine.registry.Raw(key, name));
    }
    for (const std::string& sub : machine.registry.Keys(key)) Collect(key + "\\" + sub, values);
  }
};

}  // namespace test
