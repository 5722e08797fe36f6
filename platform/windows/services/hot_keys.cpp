#include "platform/windows/services/hot_keys.h"

#include <utility>

#include "platform/windows/handle.h"
#include "platform/windows/wide.h"

namespace platform::windows {
namespace {

struct GlobalAtomKind {
  using Raw = ATOM;
  static constexpr Raw None() { return 0; }
  static void Close(Raw atom) { ::GlobalDeleteAtom(atom); }
};
using GlobalAtom = Handle<GlobalAtomKind>;

class RegisteredHotKey final : public HotKey {
 public:
  RegisteredHotKey(HotKeyWindow& window, GlobalAtom atom)
      : window_(window), atom_(std::move(atom)) {}
  ~RegisteredHotKey() override { window_.Stop(atom_.get()); }
  RegisteredHotKey(const RegisteredHotKey&) = delete;
  RegisteredHotKey& operator=(const RegisteredHotKey&) = delete;

 private:
  HotKeyWindow& window_;
  GlobalAtom atom_;
};

UINT ModifiersOf(const KeyCombination& keys) {
  UINT modifiers = MOD_NOREPEAT;
  if (keys.shift) modifiers |= MOD_SHIFT;
  if (keys.ctrl) modifiers |= MOD_CONTROL;
  if (keys.alt) modifiers |= MOD_ALT;
  return modifiers;
}

}  // namespace

HotKeyWindow::HotKeyWindow(const WindowClass& window_class) {
  Create(window_class, {}, HWND_MESSAGE, {});
}

bool HotKeyWindow::Start(int id, UINT modifiers, UINT virtual_key, Pressed pressed) {
  if (!::RegisterHotKey(hwnd(), id, modifiers, virtual_key)) return false;
  pressed_.emplace(id, std::make_shared<const Pressed>(std::move(pressed)));
  return true;
}

void HotKeyWindow::Stop(int id) {
  ::UnregisterHotKey(hwnd(), id);
  pressed_.erase(id);
}

std::optional<LRESULT> HotKeyWindow::Handle(const Message& message) {
  if (message.id != WM_HOTKEY) return std::nullopt;
  const auto found = pressed_.find(static_cast<int>(message.w));
  if (found == pressed_.end()) return 0;
  const std::shared_ptr<const Pressed> pressed = found->second;  // it may destroy its hot key
  (*pressed)();
  return 0;
}

std::unique_ptr<HotKey> HotKeys::Register(std::string_view name, const KeyCombination& keys,
                                          std::function<void()> pressed) {
  GlobalAtom atom(::GlobalAddAtomW(ToWide(name).c_str()));
  // The same name gives the same atom, and the number would be registered a second time.
  if (!atom || window_.Uses(atom.get())) return nullptr;
  if (!window_.Start(atom.get(), ModifiersOf(keys), keys.virtual_key, std::move(pressed))) {
    return nullptr;
  }
  return std::make_unique<RegisteredHotKey>(window_, std::move(atom));
}

}  // namespace platform::windows
