// Handles that CloseHandle closes, and libraries in which functions are looked up at run time.
#pragma once

#include "platform/windows/handle.h"
#include "platform/windows/win32.h"

namespace platform::windows {

using KernelHandle = Handle<ZeroIsNone<HANDLE, &::CloseHandle>>;

// The kind of the handles of files, which are none when they are INVALID_HANDLE_VALUE.
template <auto kClose>
struct InvalidIsNone {
  using Raw = HANDLE;
  static Raw None() { return INVALID_HANDLE_VALUE; }
  static void Close(Raw raw) { kClose(raw); }
};
using FileHandle = Handle<InvalidIsNone<&::CloseHandle>>;
using FindHandle = Handle<InvalidIsNone<&::FindClose>>;

// A library that most runs do not need.
using Library = Handle<ZeroIsNone<HMODULE, &::FreeLibrary>>;

// Returns the function of `module` with this name as a `Pointer`, or null when either is missing.
template <class Pointer>
[[nodiscard]] Pointer Function(HMODULE module, const char* name) {
  if (module == nullptr) return nullptr;
  return reinterpret_cast<Pointer>(reinterpret_cast<void*>(::GetProcAddress(module, name)));
}

}  // namespace platform::windows
