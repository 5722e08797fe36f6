#include <thread>

#include "platform/windows/services/services.h"
#include "platform/windows/system_error.h"
#include "platform/windows/system_handles.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/win32.h"
#include "tests/contract/world.h"

namespace contract {
namespace {

using platform::windows::FileHandle;
using platform::windows::FromWide;
using platform::windows::ThrowSystemError;
using platform::windows::ToWide;

// Paths of keys without the backslash that may stand in front.
std::wstring KeyPath(std::string_view path) {
  if (path.starts_with('\\')) path.remove_prefix(1);
  return ToWide(path);
}

void RemoveFolder(const std::wstring& folder) {
  WIN32_FIND_DATAW entry{};
  const HANDLE find = ::FindFirstFileW((folder + L"*").c_str(), &entry);
  if (find == INVALID_HANDLE_VALUE) return;
  do {
    const std::wstring name = entry.cFileName;
    if (name == L"." || name == L"..") continue;
    if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
      RemoveFolder(folder + name + L"\\");
    } else {
      ::DeleteFileW((folder + name).c_str());
    }
  } while (::FindNextFileW(find, &entry) != FALSE);
  ::FindClose(find);
  ::RemoveDirectoryW(folder.c_str());
}

class WindowsWorld : public World {
 public:
  ~WindowsWorld() override {
    if (!scratch_.empty()) RemoveFolder(scratch_);
  }

  platform::InterfaceTable& InterfaceTable() override { return interface_table_; }
  platform::Registry& Registry() override { return registry_; }
  platform::Sockets& Sockets() override { return sockets_; }
  platform::SingleInstance& SingleInstance() override { return single_instance_; }
  platform::Clock& Clock() override { return clock_; }
  platform::Files& Files() override { return files_; }
  platform::Locale& Locale() override { return locale_; }
  platform::Clipboard& Clipboard() override { return clipboard_; }

  void SetRawValue(std::string_view path, std::string_view name, std::uint32_t type,
                   std::span<const std::byte> data) override {
    const LSTATUS result =
        ::RegSetKeyValueW(HKEY_CURRENT_USER, KeyPath(path).c_str(), ToWide(name).c_str(), type,
                          data.data(), static_cast<DWORD>(data.size()));
    if (result != ERROR_SUCCESS) ThrowSystemError("RegSetKeyValue", static_cast<DWORD>(result));
  }

  std::optional<RawValue> GetRawValue(std::string_view path, std::string_view name) override {
    RawValue value;
    value.data.resize(65536);
    auto size = static_cast<DWORD>(value.data.size());
    DWORD type = 0;
    HKEY key = nullptr;
    if (::RegOpenKeyExW(HKEY_CURRENT_USER, KeyPath(path).c_str(), 0, KEY_READ, &key) !=
        ERROR_SUCCESS) {
      return std::nullopt;
    }
    const LSTATUS result = ::RegQueryValueExW(key, ToWide(name).c_str(), nullptr, &type,
                                              reinterpret_cast<BYTE*>(value.data.data()), &size);
    ::RegCloseKey(key);
    if (result != ERROR_SUCCESS) return std::nullopt;
    value.type = type;
    value.data.resize(size);
    return value;
  }

  void RemoveKey(std::string_view path) override {
    ::RegDeleteTreeW(HKEY_CURRENT_USER, KeyPath(path).c_str());
  }

  std::string ScratchFolder() override {
    if (scratch_.empty()) {
      wchar_t folder[MAX_PATH];
      ::GetTempPathW(MAX_PATH, folder);
      scratch_ = folder + (L"tremolux_contract_" + std::to_wstring(::GetCurrentProcessId())) +
                 std::to_wstring(::GetTickCount64()) + L"\\";
      if (::CreateDirectoryW(scratch_.c_str(), nullptr) == FALSE) {
        ThrowSystemError("CreateDirectory", ::GetLastError());
      }
    }
    return FromWide(scratch_);
  }

  void MakeFolder(std::string_view path) override {
    if (::CreateDirectoryW(ToWide(path).c_str(), nullptr) == FALSE) {
      ThrowSystemError("CreateDirectory", ::GetLastError());
    }
  }

  void HoldFile(std::string_view path, const std::function<void()>& meanwhile) override {
    const FileHandle file(::CreateFileW(ToWide(path).c_str(), GENERIC_READ, 0, nullptr,
                                        OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file) ThrowSystemError("CreateFile", ::GetLastError());
    meanwhile();
  }

  std::string ClipboardText() override {
    if (::OpenClipboard(nullptr) == FALSE) ThrowSystemError("OpenClipboard", ::GetLastError());
    std::string text;
    if (const HANDLE memory = ::GetClipboardData(CF_UNICODETEXT)) {
      text = FromWide(static_cast<const wchar_t*>(::GlobalLock(memory)));
      ::GlobalUnlock(memory);
    }
    ::CloseClipboard();
    return text;
  }

  // Held by another thread's window, which is as good as another program.
  void HoldClipboard(const std::function<void()>& meanwhile) override {
    const HANDLE held = ::CreateEventW(nullptr, TRUE, FALSE, nullptr);
    const HANDLE release = ::CreateEventW(nullptr, TRUE, FALSE, nullptr);
    std::thread other([&] {
      const HWND window = ::CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                            nullptr, nullptr);
      const BOOL opened = ::OpenClipboard(window);
      ::SetEvent(held);
      ::WaitForSingleObject(release, INFINITE);
      if (opened != FALSE) ::CloseClipboard();
      ::DestroyWindow(window);
    });
    ::WaitForSingleObject(held, INFINITE);
    meanwhile();
    ::SetEvent(release);
    other.join();
    ::CloseHandle(held);
    ::CloseHandle(release);
  }

 private:
  platform::windows::InterfaceTable interface_table_;
  platform::windows::Registry registry_;
  platform::windows::Sockets sockets_;
  platform::windows::SingleInstance single_instance_;
  platform::windows::Clock clock_;
  platform::windows::Files files_;
  platform::windows::Locale locale_;
  platform::windows::Clipboard clipboard_;
  std::wstring scratch_;
};

}  // namespace

std::unique_ptr<World> MakeWorld() { return std::make_unique<WindowsWorld>(); }

}  // namespace contract
