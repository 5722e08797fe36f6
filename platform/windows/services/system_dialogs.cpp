#include "platform/windows/services/system_dialogs.h"

#include <cwchar>
#include <string>

#include "platform/windows/drawing/gdi.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/windows/top_window.h"

// This header must follow the system's header.
#include <commdlg.h>

namespace platform::windows {
namespace {

constexpr DWORD kLongestPath = 32767;  // with the terminating NUL

// Returns pairs of texts, each with a NUL behind it, in the form of the dialog's filter; the list
// ends with one more NUL.
std::wstring FilterOf(const std::vector<FileKind>& kinds) {
  std::wstring filter;
  for (const FileKind& kind : kinds) {
    filter += ToWide(kind.name);
    filter += L'\0';
    filter += ToWide(kind.mask);
    filter += L'\0';
  }
  return filter;
}

// Puts the current folder of the process back at its end: the dialog changes it to the folder that
// the user opens, whatever its flags say.
class CurrentFolder {
 public:
  CurrentFolder() : folder_(kLongestPath, L'\0') {
    folder_.resize(::GetCurrentDirectoryW(kLongestPath, folder_.data()));
  }
  ~CurrentFolder() {
    if (!folder_.empty()) ::SetCurrentDirectoryW(folder_.c_str());
  }
  CurrentFolder(const CurrentFolder&) = delete;
  CurrentFolder& operator=(const CurrentFolder&) = delete;

 private:
  std::wstring folder_;
};

// A dialog that MessageLoop::Quit has ended may report that the user has confirmed it.
bool EndedByQuit() {
  MSG message{};
  return ::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_NOREMOVE) != FALSE;
}

// The program's own windows have classes of their own; this is the class of the system's dialogs.
BOOL CALLBACK TakeDialog(HWND hwnd, LPARAM dialogs) noexcept {
  wchar_t name[16] = {};
  ::GetClassNameW(hwnd, name, 16);
  const bool is_dialog = std::wcscmp(name, L"#32770") == 0;
  if (is_dialog && ::IsWindowVisible(hwnd) != FALSE && ::IsWindowEnabled(hwnd) != FALSE) {
    reinterpret_cast<std::vector<HWND>*>(dialogs)->push_back(hwnd);
  }
  return TRUE;
}

}  // namespace

SystemDialogs::SystemDialogs() { mixed_.fill(RGB(255, 255, 255)); }

HMODULE SystemDialogs::Dialogs() {
  if (!library_) {
    library_ = Library(::LoadLibraryExW(L"comdlg32.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32));
  }
  return library_.get();
}

std::optional<std::string> SystemDialogs::OpenFile(const OpenFileRequest& request,
                                                   platform::TopWindow& owner) {
  const auto open = Function<decltype(&::GetOpenFileNameW)>(Dialogs(), "GetOpenFileNameW");
  if (open == nullptr) return std::nullopt;
  const CurrentFolder put_back;
  const std::wstring title = ToWide(request.title);
  const std::wstring filter = FilterOf(request.kinds);
  const std::wstring folder = ToWide(request.folder);
  std::wstring path(kLongestPath, L'\0');
  OPENFILENAMEW dialog{};
  dialog.lStructSize = sizeof(dialog);
  dialog.hwndOwner = WidgetWindow::Of(owner);
  dialog.lpstrTitle = title.empty() ? nullptr : title.c_str();
  dialog.lpstrFilter = filter.empty() ? nullptr : filter.c_str();
  dialog.nFilterIndex = 1;
  dialog.lpstrInitialDir = folder.empty() ? nullptr : folder.c_str();
  dialog.lpstrFile = path.data();
  dialog.nMaxFile = kLongestPath;
  dialog.Flags = OFN_EXPLORER | OFN_FILEMUSTEXIST | OFN_PATHMUSTEXIST | OFN_HIDEREADONLY |
                 OFN_NOCHANGEDIR | OFN_ENABLESIZING;
  if (open(&dialog) == FALSE || EndedByQuit()) return std::nullopt;
  return FromWide(path.c_str());
}

std::optional<Colour> SystemDialogs::ChooseColour(Colour present, platform::TopWindow& owner) {
  const auto choose = Function<decltype(&::ChooseColorW)>(Dialogs(), "ChooseColorW");
  if (choose == nullptr) return std::nullopt;
  CHOOSECOLORW dialog{};
  dialog.lStructSize = sizeof(dialog);
  dialog.hwndOwner = WidgetWindow::Of(owner);
  dialog.rgbResult = ToColorref(present);
  dialog.lpCustColors = mixed_.data();
  dialog.Flags = CC_RGBINIT | CC_FULLOPEN | CC_ANYCOLOR;
  if (choose(&dialog) == FALSE || EndedByQuit()) return std::nullopt;
  return dialog.rgbResult;
}

void SystemDialogs::SetEnabled(bool enabled) {
  if (!enabled) {
    ::EnumThreadWindows(::GetCurrentThreadId(), &TakeDialog, reinterpret_cast<LPARAM>(&disabled_));
  }
  for (const HWND dialog : disabled_) ::EnableWindow(dialog, enabled);
  if (enabled) disabled_.clear();
}

}  // namespace platform::windows
