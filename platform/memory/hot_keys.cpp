#include "platform/memory/hot_keys.h"

#include <algorithm>
#include <utility>

namespace platform::memory {

class HotKeys::Handle final : public HotKey {
 public:
  Handle(HotKeys& hot_keys, std::shared_ptr<Entry> entry)
      : hot_keys_(hot_keys), entry_(std::move(entry)) {}
  ~Handle() override { std::erase(hot_keys_.entries_, entry_); }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;

 private:
  HotKeys& hot_keys_;
  std::shared_ptr<Entry> entry_;
};

std::unique_ptr<HotKey> HotKeys::Register(std::string_view name, const KeyCombination& keys,
                                          std::function<void()> pressed) {
  const auto taken_here = [&](const auto& entry) {
    return entry->keys == keys || entry->name == name;
  };
  if (std::find(taken.begin(), taken.end(), keys) != taken.end() ||
      std::any_of(entries_.begin(), entries_.end(), taken_here)) {
    return nullptr;
  }
  entries_.push_back(std::make_shared<Entry>(Entry{std::string(name), keys, std::move(pressed)}));
  return std::make_unique<Handle>(*this, entries_.back());
}

bool HotKeys::Press(const KeyCombination& keys) {
  const auto found = std::find_if(entries_.begin(), entries_.end(),
                                  [&](const auto& entry) { return entry->keys == keys; });
  if (found == entries_.end()) return false;
  const std::shared_ptr<Entry> entry = *found;  // the handler may destroy its hot key
  entry->pressed();
  return true;
}

}  // namespace platform::memory
