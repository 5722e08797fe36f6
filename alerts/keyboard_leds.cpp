#include "alerts/keyboard_leds.h"

#include <functional>
#include <utility>

namespace alerts {
namespace {

constexpr std::uint8_t kOff = 0;
constexpr std::uint8_t kOn = 1;

constexpr std::uint8_t kLeftAlone = 0xFF;

// A lock key during one scan. Its state is read once: the system reports a stroke that was just
// sent only later, and the second pair of rules must see what the first pair did.
class Light {
 public:
  Light(std::uint8_t state, std::function<void()> toggle)
      : state_(state), toggle_(std::move(toggle)) {}

  void SwitchOn() { Switch(kOff, kOn); }
  void SwitchOff() { Switch(kOn, kOff); }

 private:
  void Switch(std::uint8_t from, std::uint8_t to) {
    if (state_ != from) return;
    toggle_();
    state_ = to;
  }

  std::uint8_t state_;
  std::function<void()> toggle_;
};

}  // namespace

// An amount equal to the limit counts both as idle and as busy, and the second pair may overrule
// the first: an idle line with a limit of 0 ends with Scroll Lock on and Num Lock off. This is
// intended.
void UpdateKeyboardLeds(settings::Store& store, TQelSysKeys& keys,
                        const engine::ScanAmounts& scan) {
  const bool scroll_given = store.Read(settings::setting::DLSwitchScr);
  const bool num_given = store.Read(settings::setting::ULSwitchNum);
  if (!scroll_given && !num_given) return;
  const std::int64_t limit = store.Read(settings::setting::spnKeyLedsLimit);
  const std::int64_t dl = scan.ScanSumDL;
  const std::int64_t ul = scan.ScanSumUL;
  Light scroll(scroll_given ? keys.ScrollLock() : kLeftAlone, [&keys] { keys.ToggleScrollLock(); });
  Light num(num_given ? keys.NumLock() : kLeftAlone, [&keys] { keys.ToggleNumLock(); });

  if (dl <= limit && ul <= limit) {
    scroll.SwitchOff();
    num.SwitchOff();
  } else if (dl >= limit && ul >= limit) {
    scroll.SwitchOn();
    num.SwitchOn();
  }
  if (dl >= limit && ul <= limit) {
    scroll.SwitchOn();
    num.SwitchOff();
  } else if (ul >= limit && dl <= limit) {
    scroll.SwitchOff();
    num.SwitchOn();
  }
}

}  // namespace alerts
