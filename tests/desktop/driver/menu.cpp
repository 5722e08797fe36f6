#include "tests/desktop/driver/menu.h"

#include <stdexcept>

#include "platform/windows/system_error.h"
#include "platform/windows/system_handles.h"
#include "platform/windows/wide_text.h"
#include "tests/desktop/driver/input.h"
#include "tests/desktop/driver/program.h"
#include "tests/desktop/driver/wait.h"
#include "tests/desktop/driver/windows_of.h"
#include "tests/desktop/spy/menu_spy.h"

namespace desktop {
namespace {

using platform::windows::FromWide;
using platform::windows::KernelHandle;
using platform::windows::ThrowSystemError;

// The open menus of a process.
std::vector<HWND> MenuWindows(DWORD process) {
  std::vector<HWND> menus;
  for (const HWND window : VisibleTops(process)) {
    wchar_t window_class[64] = {};
    ::GetClassNameW(window, window_class, 64);
    if (std::wstring_view(window_class) == L"#32768") menus.push_back(window);
  }
  return menus;
}

MenuItem ItemFrom(const SpiedItem& spied) {
  MenuItem item;
  const std::wstring label = spied.text;
  const std::size_t tab = label.find(L'\t');
  item.text = FromWide(label.substr(0, tab));
  if (tab != std::wstring::npos) item.shortcut = FromWide(label.substr(tab + 1));
  if ((spied.type & MFT_SEPARATOR) != 0) item.text = "-";
  item.radio = (spied.type & MFT_RADIOCHECK) != 0;
  item.checked = (spied.state & MFS_CHECKED) != 0;
  item.enabled = (spied.state & MFS_DISABLED) == 0;
  item.submenu = spied.submenu;
  item.area = spied.area;
  return item;
}

HMENU MenuOf(HWND menu_window) {
  constexpr UINT kGetMenu = 0x01E1;  // MN_GETHMENU
  return reinterpret_cast<HMENU>(::SendMessageW(menu_window, kGetMenu, 0, 0));
}

MenuItem Named(const std::vector<MenuItem>& items, std::string_view text) {
  for (const MenuItem& item : items) {
    if (item.text == text) return item;
  }
  throw std::runtime_error("the menu has no item \"" + std::string(text) + "\"");
}

}  // namespace

std::string MenuItem::Description() const {
  std::string description = text;
  if (radio) description += " [radio]";
  if (checked) description += " [checked]";
  if (submenu != nullptr) description += " [>]";
  if (!shortcut.empty()) description += " [" + shortcut + "]";
  return description;
}

// A hook in the program's thread, with the memory through which it answers.
class OpenMenu::Spy {
 public:
  explicit Spy(HWND menu_window) {
    memory_ = KernelHandle(::CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0,
                                                sizeof(SpiedMenu), kSpyMemory));
    if (!memory_) ThrowSystemError("CreateFileMapping", ::GetLastError());
    menu_ = static_cast<SpiedMenu*>(::MapViewOfFile(memory_.get(), FILE_MAP_WRITE, 0, 0, 0));
    if (menu_ == nullptr) ThrowSystemError("MapViewOfFile", ::GetLastError());

    const HMODULE module = ::LoadLibraryW((OwnFolder() + kSpyModule).c_str());
    if (module == nullptr) ThrowSystemError("LoadLibrary of the spy", ::GetLastError());
    const auto procedure = reinterpret_cast<HOOKPROC>(
        reinterpret_cast<void (*)()>(::GetProcAddress(module, kSpyProcedure)));
    hook_ = ::SetWindowsHookExW(WH_CALLWNDPROC, procedure, module,
                                ::GetWindowThreadProcessId(menu_window, nullptr));
    if (hook_ == nullptr) ThrowSystemError("SetWindowsHookEx", ::GetLastError());
  }
  ~Spy() {
    ::UnhookWindowsHookEx(hook_);
    ::UnmapViewOfFile(menu_);
  }
  Spy(const Spy&) = delete;
  Spy& operator=(const Spy&) = delete;

  const SpiedMenu& Ask(HWND menu_window) {
    menu_->count = -1;
    ::SendMessageW(menu_window, ::RegisterWindowMessageW(kSpyMessage), 0, 0);
    if (menu_->count < 0) throw std::runtime_error("the spy did not see the menu");
    return *menu_;
  }

 private:
  KernelHandle memory_;
  SpiedMenu* menu_ = nullptr;
  HHOOK hook_ = nullptr;
};

OpenMenu::OpenMenu(DWORD process) : process_(process) {
  Await("a menu", [process] { return Any(process); });
  root_ = MenuWindows(process).front();
  spy_ = std::make_unique<Spy>(root_);
}

OpenMenu::~OpenMenu() = default;

bool OpenMenu::Any(DWORD process) { return !MenuWindows(process).empty(); }

template <class Step>
HWND OpenMenu::Follow(Step begin, Step end) {
  HWND window = root_;
  for (; begin != end; ++begin) window = OpenSubmenu(Named(Read(window), *begin));
  return window;
}

std::vector<MenuItem> OpenMenu::Items(const MenuPath& path) {
  return Read(Follow(path.begin(), path.end()));
}

std::vector<std::string> OpenMenu::Descriptions(const MenuPath& path) {
  std::vector<std::string> descriptions;
  for (const MenuItem& item : Items(path)) descriptions.push_back(item.Description());
  return descriptions;
}

MenuItem OpenMenu::Find(const MenuPath& path) {
  const auto last = path.end() - 1;
  return Named(Read(Follow(path.begin(), last)), *last);
}

void OpenMenu::Choose(const MenuPath& path) {
  const MenuItem item = Find(path);
  if (!item.enabled) throw std::runtime_error("\"" + item.text + "\" is disabled");
  Click(MiddleOf(item.area));
  Await("the menu to close", [this] { return !Any(process_); });
}

void OpenMenu::Leave() {
  // One press leaves one level.
  Await("the menu to close", [this] {
    const std::vector<HWND> menus = MenuWindows(process_);
    if (!menus.empty()) ::PostMessageW(menus.back(), WM_KEYDOWN, VK_ESCAPE, 0);
    return menus.empty();
  });
}

std::vector<MenuItem> OpenMenu::Read(HWND menu_window) {
  const SpiedMenu& spied = spy_->Ask(menu_window);
  std::vector<MenuItem> items;
  for (int at = 0; at < spied.count; ++at) items.push_back(ItemFrom(spied.items[at]));
  return items;
}

HWND OpenMenu::OpenSubmenu(const MenuItem& item) {
  if (item.submenu == nullptr) throw std::runtime_error("\"" + item.text + "\" has no submenu");
  HWND found = nullptr;
  const auto is_open = [&] {
    for (const HWND window : MenuWindows(process_)) {
      if (MenuOf(window) == item.submenu) found = window;
    }
    return found != nullptr;
  };
  if (!is_open()) {
    Click(MiddleOf(item.area));
    Await("a submenu", is_open);
  }
  return found;
}

}  // namespace desktop
