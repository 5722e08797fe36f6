#include "platform/windows/windows/menus.h"

#include "platform/scoped_value.h"
#include "platform/windows/dpi.h"
#include "platform/windows/drawing/gdi_canvas.h"
#include "platform/windows/windows/menu_tree.h"

namespace platform::windows {
namespace {

bool OwnThreadIsForeground() {
  const HWND foreground = ::GetForegroundWindow();
  return foreground != nullptr &&
         ::GetWindowThreadProcessId(foreground, nullptr) == ::GetCurrentThreadId();
}

constexpr UINT kMenuIsOver = WM_APP + 1;  // w: the window to give the foreground back to, or null

// Keeps the thread in the foreground while it lives: the menu of a thread that is not in the
// foreground does not close when the user clicks elsewhere.
class Foreground {
 public:
  explicit Foreground(HWND hwnd) : hwnd_(hwnd) {
    if (OwnThreadIsForeground()) return;
    before_ = ::GetForegroundWindow();
    ::SetForegroundWindow(hwnd);
  }
  // The message arrives when the chosen action is done, or waits in a window of its own. It is
  // needed in any case: without a further message the next menu from the notification area closes
  // at once.
  ~Foreground() { ::PostMessageW(hwnd_, kMenuIsOver, reinterpret_cast<WPARAM>(before_), 0); }
  Foreground(const Foreground&) = delete;
  Foreground& operator=(const Foreground&) = delete;

 private:
  HWND hwnd_;
  HWND before_ = nullptr;
};

UINT PopupFlags() {
  const UINT side = ::GetSystemMetrics(SM_MENUDROPALIGNMENT) != 0 ? TPM_RIGHTALIGN : TPM_LEFTALIGN;
  return side | TPM_TOPALIGN | TPM_RIGHTBUTTON | TPM_RETURNCMD;
}

// Returns the answer to a key for which the system found no item: a single entry with this key is
// chosen; of several, the next one is highlighted.
LRESULT FindByKey(HMENU menu, wchar_t key, const MenuEntry* highlighted) {
  ::CharUpperBuffW(&key, 1);
  const int count = ::GetMenuItemCount(menu);
  int first = -1;
  int next = -1;  // the first one behind the highlighted entry
  int matches = 0;
  bool behind = false;
  for (int position = 0; position < count; ++position) {
    const MenuEntry* entry = MenuTree::At(menu, position);
    if (entry != nullptr && MenuKey(*entry) == key) {
      ++matches;
      if (first < 0) first = position;
      if (behind && next < 0) next = position;
    }
    if (entry == highlighted) behind = true;
  }
  if (matches == 0) return MAKELRESULT(0, MNC_IGNORE);
  if (matches == 1) return MAKELRESULT(first, MNC_EXECUTE);
  return MAKELRESULT(next >= 0 ? next : first, MNC_SELECT);
}

const MenuEntry* FindKeys(const std::vector<MenuEntry>& entries, const KeyCombination& keys) {
  for (const MenuEntry& entry : entries) {
    if (!entry.enabled) continue;
    if (entry.keys.virtual_key != 0 && entry.keys == keys) return &entry;
    if (const MenuEntry* found = FindKeys(entry.children, keys)) return found;
  }
  return nullptr;
}

// Gets the keys that go to the thread's menu while it lives: the system reports only letters to the
// owner of a menu.
class KeyHook {
 public:
  explicit KeyHook(MenuWindow& menu)
      : hook_(::SetWindowsHookExW(WH_MSGFILTER, &Filter, nullptr, ::GetCurrentThreadId())) {
    menu_ = &menu;
  }
  ~KeyHook() {
    if (hook_ != nullptr) ::UnhookWindowsHookEx(hook_);
  }
  KeyHook(const KeyHook&) = delete;
  KeyHook& operator=(const KeyHook&) = delete;

 private:
  static LRESULT CALLBACK Filter(int code, WPARAM w, LPARAM l) noexcept {
    const auto& message = *reinterpret_cast<const MSG*>(l);
    const bool down = message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN;
    if (code == MSGF_MENU && down && Chooses(message.wParam)) return 1;
    return ::CallNextHookEx(nullptr, code, w, l);
  }
  static bool Chooses(WPARAM key) {
    const auto held = [](int modifier) { return ::GetKeyState(modifier) < 0; };
    return menu_->ChooseByKeys(
        {static_cast<std::uint8_t>(key), held(VK_SHIFT), held(VK_CONTROL), held(VK_MENU)});
  }

  // The menu that is open. The system passes no data of the program to a hook, and not every system
  // names the owner of the menu to it.
  static inline MenuWindow* menu_ = nullptr;
  HHOOK hook_;
};

}  // namespace

MenuWindow::MenuWindow(const WindowClass& window_class, Drawing& drawing) : drawing_(drawing) {
  Create(window_class, {WS_POPUP, WS_EX_TOOLWINDOW}, nullptr, {});
}

int MenuWindow::Popup(Point at, const std::vector<MenuEntry>& entries, MenuPainter& painter,
                      int dpi) {
  if (session_ != nullptr) return 0;
  const MenuTree menu(entries);
  if (menu.root() == nullptr) return 0;

  Session session{painter, dpi, entries};
  const ScopedValue<Session*> open(session_, &session);
  const Foreground foreground(hwnd());
  const KeyHook keys(*this);
  const int chosen = ::TrackPopupMenuEx(menu.root(), PopupFlags(), at.x, at.y, hwnd(), nullptr);
  Highlight(nullptr, {});
  return session.chosen_by_keys != 0 ? session.chosen_by_keys : chosen;
}

void MenuWindow::Cancel() {
  if (session_ != nullptr) ::EndMenu();
}

bool MenuWindow::ChooseByKeys(const KeyCombination& keys) {
  if (session_ == nullptr) return false;
  const MenuEntry* entry = FindKeys(session_->entries, keys);
  if (entry == nullptr) return false;
  session_->chosen_by_keys = entry->id;
  ::EndMenu();
  return true;
}

std::optional<LRESULT> MenuWindow::Handle(const Message& message) {
  if (message.id == kMenuIsOver) {
    GiveForegroundBack(hwnd(), reinterpret_cast<HWND>(message.w));
    return 0;
  }
  if (session_ == nullptr) return std::nullopt;
  switch (message.id) {
    case WM_MEASUREITEM:
      Measure(*reinterpret_cast<MEASUREITEMSTRUCT*>(message.l));
      return TRUE;
    case WM_DRAWITEM:
      Draw(*reinterpret_cast<const DRAWITEMSTRUCT*>(message.l));
      return TRUE;
    case WM_MENUSELECT:
      Select(message);
      return 0;
    case WM_MENUCHAR:
      return FindByKey(reinterpret_cast<HMENU>(message.l), LOWORD(message.w),
                       session_->highlighted);
    default:
      return std::nullopt;
  }
}

void MenuWindow::Measure(MEASUREITEMSTRUCT& item) {
  const MemoryDc dc(::CreateCompatibleDC(nullptr));
  GdiCanvas canvas(dc.get(), {1, 1}, drawing_.fonts);
  const Size size =
      session_->painter.Measure(MenuTree::EntryOf(item.itemData), canvas, session_->dpi);
  // The system adds the width of its own check mark, less one pixel; the entries draw theirs.
  const int added = ::GetSystemMetrics(SM_CXMENUCHECK) - 1;
  item.itemWidth = static_cast<UINT>(size.width > added ? size.width - added : 0);
  item.itemHeight = static_cast<UINT>(size.height);
}

void MenuWindow::Draw(const DRAWITEMSTRUCT& item) {
  const Rect place = FromRect(item.rcItem);
  const Rect area{0, 0, place.width, place.height};
  const MenuEntryState state{(item.itemState & ODS_SELECTED) != 0, session_->dpi};
  drawing_.back_buffer.Compose(item.hDC, {place.left, place.top}, {place.width, place.height},
                               ToRect(area), colour::kMenu, [&](GdiCanvas& canvas) {
                                 session_->painter.Paint(MenuTree::EntryOf(item.itemData), state,
                                                         canvas, area);
                               });
}

void MenuWindow::Select(const Message& message) {
  const auto menu = reinterpret_cast<HMENU>(message.l);
  const UINT flags = HIWORD(message.w);
  if (menu == nullptr || (flags & MF_SEPARATOR) != 0) {
    Highlight(nullptr, {});
    return;
  }
  const UINT item = LOWORD(message.w);
  const int position =
      (flags & MF_POPUP) != 0 ? static_cast<int>(item) : MenuTree::PositionOf(menu, item);
  const MenuEntry* entry = MenuTree::At(menu, position);
  if (entry != nullptr && entry->separator) entry = nullptr;
  RECT area{};
  if (entry != nullptr) ::GetMenuItemRect(nullptr, menu, static_cast<UINT>(position), &area);
  Highlight(entry, FromRect(area));
}

void MenuWindow::Highlight(const MenuEntry* entry, const Rect& area) {
  if (entry == session_->highlighted) return;
  session_->highlighted = entry;
  session_->painter.Highlighted(entry, area);
}

int Menus::Popup(Point at, const std::vector<MenuEntry>& entries, MenuPainter& painter) {
  const HMONITOR monitor = ::MonitorFromPoint({at.x, at.y}, MONITOR_DEFAULTTONEAREST);
  return window_.Popup(at, entries, painter, DpiOfMonitor(monitor));
}

}  // namespace platform::windows
