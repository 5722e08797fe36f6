#include "bench/windows/bare_scan.h"

#include <utility>

#include "platform/windows/win32.h"
// Behind the system's own header, which it needs.
#include <shellapi.h>

namespace bench {
namespace {

constexpr int kPictureSize = 16;

HKEY Open(const RegistryOperation& operation) {
  constexpr REGSAM kRights = KEY_READ | KEY_WRITE;
  HKEY key = nullptr;
  if (operation.create) {
    ::RegCreateKeyExW(HKEY_CURRENT_USER, operation.path.c_str(), 0, nullptr,
                      REG_OPTION_NON_VOLATILE, kRights, nullptr, &key, nullptr);
  } else {
    ::RegOpenKeyExW(HKEY_CURRENT_USER, operation.path.c_str(), 0, kRights, &key);
  }
  return key;
}

void Perform(const RegistryOperation& operation) {
  const HKEY key = Open(operation);
  BYTE buffer[512];
  DWORD size = sizeof(buffer);
  DWORD type = 0;
  switch (operation.kind) {
    case RegistryOperation::Kind::kRead:
      ::RegQueryValueExW(key, operation.name.c_str(), nullptr, &type, buffer, &size);
      break;
    case RegistryOperation::Kind::kWrite:
      ::RegSetValueExW(key, operation.name.c_str(), 0, operation.type,
                       reinterpret_cast<const BYTE*>(operation.data.data()),
                       static_cast<DWORD>(operation.data.size()));
      break;
    case RegistryOperation::Kind::kDelete:
      ::RegDeleteValueW(key, operation.name.c_str());
      break;
  }
  ::RegCloseKey(key);
}

HBITMAP Picture(COLORREF colour) {
  const HDC screen = ::GetDC(nullptr);
  const HDC dc = ::CreateCompatibleDC(screen);
  const HBITMAP bitmap = ::CreateCompatibleBitmap(screen, kPictureSize, kPictureSize);
  const HGDIOBJ before = ::SelectObject(dc, bitmap);
  const RECT all{0, 0, kPictureSize, kPictureSize};
  const HBRUSH brush = ::CreateSolidBrush(colour);
  ::FillRect(dc, &all, brush);
  ::DeleteObject(brush);
  ::SelectObject(dc, before);
  ::DeleteDC(dc);
  ::ReleaseDC(nullptr, screen);
  return bitmap;
}

NOTIFYICONDATAW IconData(HWND window, UINT flags) {
  NOTIFYICONDATAW data{};
  data.cbSize = sizeof(data);
  data.hWnd = window;
  data.uID = 1;
  data.uFlags = flags;
  return data;
}

}  // namespace

BareScan::BareScan(std::vector<RegistryOperation> even, std::vector<RegistryOperation> odd)
    : operations_{std::move(even), std::move(odd)} {
  window_ = ::CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, nullptr,
                              nullptr);
  pictures_[0] = Picture(RGB(255, 255, 255));
  pictures_[1] = Picture(RGB(255, 0, 0));
  mask_ = ::CreateBitmap(kPictureSize, kPictureSize, 1, 1, nullptr);
  NOTIFYICONDATAW data = IconData(window_, 0);
  ::Shell_NotifyIconW(NIM_ADD, &data);
}

BareScan::~BareScan() {
  NOTIFYICONDATAW data = IconData(window_, 0);
  ::Shell_NotifyIconW(NIM_DELETE, &data);
  if (shown_ != nullptr) ::DestroyIcon(shown_);
  ::DestroyWindow(window_);
  for (const HBITMAP bitmap : {pictures_[0], pictures_[1], mask_}) ::DeleteObject(bitmap);
}

void BareScan::Run() {
  ReadTableTwice();
  WorkOnRegistry();
  ShowPictures();
  NextScan();
}

void BareScan::ReadTableTwice() {
  for (int read = 0; read < 2; ++read) {
    ULONG size = 0;
    ::GetIfTable(nullptr, &size, FALSE);
    table_.resize(size);
    ::GetIfTable(reinterpret_cast<MIB_IFTABLE*>(table_.data()), &size, FALSE);
  }
}

void BareScan::WorkOnRegistry() {
  for (const RegistryOperation& operation : operations_[scans_ % 2]) Perform(operation);
}

void BareScan::ShowPictures() {
  for (int half = 0; half < 2; ++half) {
    ICONINFO info{};
    info.fIcon = TRUE;
    info.hbmColor = pictures_[(scans_ + static_cast<unsigned>(half)) % 2];
    info.hbmMask = mask_;
    const HICON before = std::exchange(shown_, ::CreateIconIndirect(&info));
    NOTIFYICONDATAW data = IconData(window_, NIF_ICON);
    data.hIcon = shown_;
    ::Shell_NotifyIconW(NIM_MODIFY, &data);
    if (before != nullptr) ::DestroyIcon(before);
  }
}

}  // namespace bench
