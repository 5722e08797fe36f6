#include "display/hot_keys.h"

#include <string>
#include <utility>

#include "toolkit/application.h"

namespace display {
namespace {

platform::KeyCombination CombinationOf(toolkit::ShortCut key) {
  return {static_cast<std::uint8_t>(key & 0xFF), (key & toolkit::kShift) != 0,
          (key & toolkit::kCtrl) != 0, (key & toolkit::kAlt) != 0};
}

}  // namespace

HotKeyHolder::HotKeyHolder(toolkit::Application& app, std::vector<HotKeyItem> items) {
  for (HotKeyItem& item : items) {
    const std::string name = "Tremolux.GlobalKey." + std::to_string(item.GlobalKey);
    auto pressed = [&app, handler = std::move(item.OnKeyDown)] { app.Guard(handler); };
    registered_.push_back(
        app.Platform().hot_keys.Register(name, CombinationOf(item.GlobalKey), std::move(pressed)));
  }
}

}  // namespace display
