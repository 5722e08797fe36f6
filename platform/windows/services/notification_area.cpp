#include "platform/windows/services/notification_area.h"

#include <algorithm>
#include <span>
#include <utility>

#include "platform/windows/wide_text.h"

namespace platform::windows {
namespace {

constexpr UINT kTrayMessage = WM_APP + 1;
constexpr UINT kIconNumber = 1;
constexpr UINT_PTR kAddTimer = 1;
constexpr UINT kRetryMs = 2000;
constexpr LONG kSameKeyPressMs = 100;

// Copies what fits, always with a terminating NUL and never half of a surrogate pair.
void CopyText(std::wstring_view text, std::span<wchar_t> target) {
  std::size_t length = std::min(text.size(), target.size() - 1);
  if (length < text.size() && length > 0 && IS_HIGH_SURROGATE(text[length - 1])) --length;
  std::copy_n(text.begin(), length, target.begin());
  target[length] = L'\0';
}

DWORD FlagsOf(BalloonIcon icon) {
  switch (icon) {
    case BalloonIcon::kNone:
      return NIIF_NONE;
    case BalloonIcon::kInformation:
      return NIIF_INFO;
    case BalloonIcon::kWarning:
      return NIIF_WARNING;
    case BalloonIcon::kError:
      return NIIF_ERROR;
  }
  return NIIF_NONE;
}

}  // namespace

ShellTrayIcon::ShellTrayIcon(const WindowClass& window_class, TrayIconEvents& events)
    : events_(events), taskbar_created_(::RegisterWindowMessageW(L"TaskbarCreated")) {
  Create(window_class, {WS_POPUP, WS_EX_TOOLWINDOW}, nullptr, {});
  // Without this, a shell without administrator rights could not send the message to a program that
  // has them.
  ::ChangeWindowMessageFilterEx(hwnd(), taskbar_created_, MSGFLT_ALLOW, nullptr);
}

ShellTrayIcon::~ShellTrayIcon() {
  NOTIFYICONDATAW data = Data(0);
  ::Shell_NotifyIconW(NIM_DELETE, &data);
}

bool ShellTrayIcon::SetPicture(const Bitmap& picture) {
  return Show(icons_.Make(picture, std::nullopt));
}

bool ShellTrayIcon::SetPicture(const Bitmap& picture, Colour see_through) {
  return Show(icons_.Make(picture, see_through));
}

bool ShellTrayIcon::Show(Icon icon) {
  if (!icon) return false;
  // The shell copies the picture, so the previous icon may be destroyed after it was replaced.
  std::swap(icon_, icon);
  if (added_) return Modify(NIF_ICON);
  if (!waiting_) AddLater(USER_TIMER_MINIMUM);
  return false;
}

void ShellTrayIcon::SetHint(std::string_view hint) {
  std::wstring wide = ToWide(hint);
  if (wide == hint_) return;
  hint_ = std::move(wide);
  if (added_) Modify(NIF_TIP);
}

void ShellTrayIcon::ShowBalloon(std::string_view title, std::string_view text, BalloonIcon icon,
                                int seconds) {
  if (!added_) Add();
  NOTIFYICONDATAW data = Data(NIF_INFO);
  CopyText(ToWide(title), data.szInfoTitle);
  // The system takes an empty text as the wish to have no balloon at all.
  CopyText(text.empty() ? L" " : ToWide(text), data.szInfo);
  data.dwInfoFlags = FlagsOf(icon);
  data.uTimeout = static_cast<UINT>(seconds) * 1000;
  ::Shell_NotifyIconW(NIM_MODIFY, &data);
}

int ShellTrayIcon::PictureSize() const { return ::GetSystemMetrics(SM_CXSMICON); }

std::optional<LRESULT> ShellTrayIcon::Handle(const Message& message) {
  if (message.id == taskbar_created_) {
    added_ = false;  // the shell that had the icon is gone
    Add();
    return 0;
  }
  switch (message.id) {
    case WM_TIMER:
      if (message.w == kAddTimer) Add();
      return 0;
    case kTrayMessage:
      Report(message);
      return 0;
    default:
      return std::nullopt;
  }
}

void ShellTrayIcon::Add() {
  ::KillTimer(hwnd(), kAddTimer);
  waiting_ = false;
  if (!icon_) return;
  NOTIFYICONDATAW data = Data(NIF_MESSAGE | NIF_ICON | NIF_TIP);
  added_ = ::Shell_NotifyIconW(NIM_ADD, &data) != FALSE;
  if (!added_) {
    // A shell that timed out may still have taken the icon.
    added_ = ::Shell_NotifyIconW(NIM_MODIFY, &data) != FALSE;
  }
  if (added_) {
    data.uVersion = NOTIFYICON_VERSION_4;
    ::Shell_NotifyIconW(NIM_SETVERSION, &data);
  } else {
    AddLater(kRetryMs);
  }
}

void ShellTrayIcon::AddLater(UINT milliseconds) {
  waiting_ = ::SetTimer(hwnd(), kAddTimer, milliseconds, nullptr) != 0;
}

bool ShellTrayIcon::Modify(UINT parts) {
  NOTIFYICONDATAW data = Data(parts);
  return ::Shell_NotifyIconW(NIM_MODIFY, &data) != FALSE;
}

NOTIFYICONDATAW ShellTrayIcon::Data(UINT parts) const {
  NOTIFYICONDATAW data{};
  data.cbSize = sizeof(data);
  data.hWnd = hwnd();
  data.uID = kIconNumber;
  // The shell hides the hint at each change that does not ask for the hint again.
  data.uFlags = parts | NIF_SHOWTIP;
  data.uCallbackMessage = kTrayMessage;
  data.hIcon = icon_.get();
  CopyText(hint_, data.szTip);
  return data;
}

void ShellTrayIcon::Report(const Message& message) {
  switch (LOWORD(message.l)) {
    case NIN_SELECT:
      events_.OnTrayClick();
      return;
    case NIN_KEYSELECT:
      ReportKeySelect();
      return;
    case WM_CONTEXTMENU:
      events_.OnTrayMenu(
          {static_cast<short>(LOWORD(message.w)), static_cast<short>(HIWORD(message.w))});
      return;
    default:
      return;
  }
}

// The Enter key is reported twice, which would show the window and hide it again.
void ShellTrayIcon::ReportKeySelect() {
  const LONG now = ::GetMessageTime();
  const bool same_press = last_key_select_ != 0 && now - last_key_select_ < kSameKeyPressMs;
  last_key_select_ = now;
  if (!same_press) events_.OnTrayClick();
}

std::unique_ptr<TrayIcon> NotificationArea::CreateIcon(TrayIconEvents& events) {
  return std::make_unique<ShellTrayIcon>(class_, events);
}

}  // namespace platform::windows
