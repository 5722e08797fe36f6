#include "bench/windows/executable_file.h"

#include "platform/windows/system_error.h"
#include "platform/windows/system_handles.h"
#include "platform/windows/wide_text.h"

namespace bench {
namespace {

using platform::windows::ThrowSystemError;

std::int64_t SizeOf(const std::wstring& path) {
  WIN32_FILE_ATTRIBUTE_DATA data{};
  if (::GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data) == FALSE) {
    ThrowSystemError("GetFileAttributesEx", ::GetLastError());
  }
  return (static_cast<std::int64_t>(data.nFileSizeHigh) << 32) | data.nFileSizeLow;
}

}  // namespace

ExecutableFile ReadExecutable(const std::wstring& path) {
  ExecutableFile file;
  file.size = SizeOf(path);
  // Laid out as it would be to run, but not run; its import table is read where it lies.
  const platform::windows::Library image(
      ::LoadLibraryExW(path.c_str(), nullptr, DONT_RESOLVE_DLL_REFERENCES));
  if (!image) ThrowSystemError("LoadLibraryEx", ::GetLastError());
  const auto* base = reinterpret_cast<const BYTE*>(image.get());
  const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
  const auto* nt = reinterpret_cast<const IMAGE_NT_HEADERS64*>(base + dos->e_lfanew);
  const IMAGE_DATA_DIRECTORY& imports =
      nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
  const auto* entry =
      reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + imports.VirtualAddress);
  for (; entry->Name != 0; ++entry) {
    file.imports.emplace_back(reinterpret_cast<const char*>(base + entry->Name));
  }
  return file;
}

bool IsSystemLibrary(const std::string& name) {
  wchar_t folder[MAX_PATH] = {};
  ::GetSystemDirectoryW(folder, MAX_PATH);
  const std::wstring path = std::wstring(folder) + L"\\" + platform::windows::ToWide(name);
  return ::GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

}  // namespace bench
