// Looks functions up at run time, in libraries that most runs do not need.
#pragma once

#include "platform/windows/handle.h"
#include "platform/windows/win32.h"

namespace platform::windows {

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
