#include "platform/memory/machine.h"
#include "tests/contract/desk.h"

namespace contract {
namespace {

class MemoryDesk final : public Desk {
 public:
  platform::Platform& Platform() override { return machine_.Platform(); }

  void MoveMouse(std::string_view name, platform::Point at, bool left_down) override {
    machine_.windowing.MoveMouse(name, at, left_down);
  }
  void DoubleClick(std::string_view name, platform::Point at) override {
    machine_.windowing.DoubleClick(name, at);
  }
  void RightClick(std::string_view name, platform::Point at) override {
    machine_.windowing.RightClick(name, at);
  }
  void ClickCloseBox(std::string_view name) override { machine_.windowing.ClickCloseBox(name); }
  void Place(std::string_view name, const platform::Rect& bounds) override {
    machine_.windowing.Place(name, bounds);
  }
  void WillChoose(std::string_view text) override { machine_.menus.WillChoose(std::string(text)); }

  void ClickTray() override { machine_.notification_area.Click(); }
  void RightClickTray(platform::Point at) override { machine_.notification_area.RightClick(at); }

  void Later(std::function<void()> step) override { machine_.message_loop.Then(std::move(step)); }
  bool LetHappen(const std::function<bool()>& condition) override {
    constexpr int kRounds = 1000;
    for (int round = 0; round < kRounds; ++round) {
      if (condition()) return true;
      machine_.timers.Advance(10);
    }
    return condition();
  }

 private:
  platform::memory::Machine machine_;
};

}  // namespace

std::unique_ptr<Desk> MakeDesk() { return std::make_unique<MemoryDesk>(); }

}  // namespace contract
