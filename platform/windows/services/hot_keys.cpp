#include "platform/windows/services/hot_keys.h"

#include <utility>

#include "platform/windows/handle.h"
#include "platform/windows/wide_text.h"

namespace platform::windows {
namespace {

using GlobalAtom = Handle<ZeroIsNone<ATOM, &::GlobalDeleteAtom>>;

class RegisteredHotKey final : public HotKey {
 public:
  RegisteredHotKey(CallbackWindow& window, GlobalAtom atom)
      : window_(window), atom_(std::move(atom)) {}
  ~RegisteredHotKey() override {
    ::UnregisterHotKey(window_.hwnd(), atom_.get());
    window_.Remove(atom_.get());
  }
  RegisteredHotKey(const RegisteredHotKey&) = delete;
  RegisteredHotKey& operator=(const RegisteredHotKey&) = delete;

 private:
  CallbackWindow& window_;
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

std::unique_ptr<HotKey> HotKeys::Register(std::string_view name, const KeyCombination& keys,
                                          std::function<void()> pressed) {
  GlobalAtom atom(::GlobalAddAtomW(ToWide(name).c_str()));
  // The same name gives the same atom, and the number would be registered a second time.
  if (!atom || window_.Has(atom.get())) return nullptr;
  if (!::RegisterHotKey(window_.hwnd(), atom.get(), ModifiersOf(keys), keys.virtual_key)) {
    return nullptr;
  }
  window_.Add(atom.get(), std::move(pressed));
  return std::make_unique<RegisteredHotKey>(window_, std::move(atom));
}

}  // namespace platform::windows
