// Handles that CloseHandle closes.
#pragma once

#include "platform/windows/handle.h"
#include "platform/windows/win32.h"

namespace platform::windows {

struct KernelKind {
  using Raw = HANDLE;
  static constexpr Raw None() { return nullptr; }
  static void Close(Raw handle) { ::CloseHandle(handle); }
};
using KernelHandle = Handle<KernelKind>;

// The "none" of CreateFile is INVALID_HANDLE_VALUE, not null.
struct FileKind {
  using Raw = HANDLE;
  static Raw None() { return INVALID_HANDLE_VALUE; }
  static void Close(Raw handle) { ::CloseHandle(handle); }
};
using FileHandle = Handle<FileKind>;

}  // namespace platform::windows
