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

  void PointAt(std::string_view name) override { machine_.windowing.PointAt(name); }
  void PointAway() override { machine_.windowing.PointAway(); }
  void Drag(std::string_view name, platform::Point by) override {
    const platform::Rect& bounds = machine_.windowing.Find(name).bounds;
    machine_.windowing.Drag(name, {bounds.left + by.x, bounds.top + by.y});
  }
  void PressKeys(const platform::KeyCombination& keys) override { machine_.hot_keys.Press(keys); }

  platform::WindowId OpenOther(std::string_view title) override {
    others_.push_back(machine_.other_windows.Add(title));
    return others_.back();
  }
  void LetOtherHang(bool hang) override {
    for (const platform::WindowId window : others_)
      machine_.other_windows.Find(window).hangs = hang;
  }
  void LetOtherTake(const platform::KeyCombination& keys) override {
    machine_.hot_keys.taken.push_back(keys);
  }

  void Press(std::string_view name) override { Windows().Press(name); }
  void Type(std::string_view name, std::string_view text) override { Windows().Type(name, text); }
  void PressKey(std::string_view name, platform::Key key) override {
    Windows().PressKey(name, key);
  }
  void Wheel(std::string_view name, int notches) override { Windows().Wheel(name, notches); }
  void Choose(std::string_view name, int index) override { Windows().Choose(name, index); }
  void Tick(std::string_view name, int row) override { Windows().Tick(name, row); }
  void Drag(std::string_view name, int position) override { Windows().Drag(name, position); }

  void PressEnter(std::string_view window) override { Windows().PressEnter(window); }
  void PressEsc(std::string_view window) override { Windows().PressEsc(window); }
  void PressTab(std::string_view window, bool backwards) override {
    Windows().PressTab(window, backwards);
  }
  void PressCtrlTab(std::string_view window, bool backwards) override {
    Windows().PressCtrlTab(window, backwards);
  }
  void PressAlt(std::string_view window, char letter) override {
    Windows().PressAlt(window, letter);
  }
  void PressArrow(std::string_view window, bool backwards) override {
    Windows().PressArrow(window, backwards);
  }

  bool DialogListens() override {
    return machine_.system_dialogs.Open() && machine_.system_dialogs.Enabled();
  }
  void ChooseFile(std::string_view path) override {
    machine_.system_dialogs.Choose(std::string(path));
  }
  void ConfirmColour() override { machine_.system_dialogs.Confirm(); }
  void CancelDialog() override { machine_.system_dialogs.Cancel(); }

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
  platform::memory::Windowing& Windows() { return machine_.windowing; }

  platform::memory::Machine machine_;
  std::vector<platform::WindowId> others_;
};

}  // namespace

std::unique_ptr<Desk> MakeDesk() { return std::make_unique<MemoryDesk>(); }

}  // namespace contract
