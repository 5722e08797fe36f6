// Handles that CloseHandle closes, and libraries in which functions are looked up at run time.
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

// A library that most runs do not need.
struct LibraryKind {
  using Raw = HMODULE;
  static constexpr Raw None() { return nullptr; }
  static void Close(Raw module) { ::FreeLibrary(module); }
};
using Library = Handle<LibraryKind>;

// Returns the function of `module` with this name as a `Pointer`, or null when either is missing.
template <class Pointer>
[[nodiscard]] Pointer Function(HMODULE module, const char* name) {
  if (module == nullptr) return nullptr;
  return reinterpret_cast<Pointer>(reinterpret_cast<void*>(::GetProcAddress(module, name)));
}

}  // namespace platform::windows
