// Hot keys that tests press and that other programs may have taken.
#pragma once

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "platform/hot_keys.h"

namespace platform::memory {

class HotKeys final : public platform::HotKeys {
 public:
  std::unique_ptr<HotKey> Register(std::string_view name, const KeyCombination& keys,
                                   std::function<void()> pressed) override {
    const bool free = std::ranges::count(taken, keys) == 0 &&
                      std::ranges::count(entries_, keys, &Entry::keys) == 0 &&
                      std::ranges::count(entries_, name, &Entry::name) == 0;
    if (!free) return nullptr;
    return std::make_unique<Entry>(entries_, name, keys, std::move(pressed));
  }

  // Acts as the user who presses the combination. Returns false when no hot key is registered for
  // it.
  bool Press(const KeyCombination& keys) {
    const auto found = std::ranges::find(entries_, keys, &Entry::keys);
    if (found == entries_.end()) return false;
    const std::function<void()> pressed = (*found)->pressed;  // it may destroy its hot key
    pressed();
    return true;
  }
  [[nodiscard]] std::size_t Registered() const { return entries_.size(); }

  // The combinations that other programs have taken.
  std::vector<KeyCombination> taken;

 private:
  struct Entry final : HotKey {
    Entry(std::vector<Entry*>& all, std::string_view its_name, const KeyCombination& its_keys,
          std::function<void()> handler)
        : entries(all), name(its_name), keys(its_keys), pressed(std::move(handler)) {
      entries.push_back(this);
    }
    ~Entry() override { std::erase(entries, this); }
    Entry(const Entry&) = delete;
    Entry& operator=(const Entry&) = delete;

    std::vector<Entry*>& entries;
    std::string name;
    KeyCombination keys;
    std::function<void()> pressed;
  };

  std::vector<Entry*> entries_;
};

}  // namespace platform::memory
