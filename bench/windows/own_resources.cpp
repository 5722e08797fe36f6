#include "bench/windows/own_resources.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <vector>

#include "platform/windows/win32.h"
// Behind the system's own header, which they need.
#include <psapi.h>
#include <winternl.h>

namespace bench {
namespace {

// The head of what NtQuerySystemInformation tells about a process; winternl.h names other fields.
struct ProcessInformation {
  ULONG next;
  ULONG threads;
  LARGE_INTEGER reserved[6];
  UNICODE_STRING name;
  LONG priority;
  HANDLE id;
  HANDLE parent;
  ULONG handles;
};

// An entry of the table of GDI objects that each process can see.
struct GdiEntry {
  std::uint64_t object;
  std::uint32_t owner;
  std::uint16_t unique;
  std::uint8_t type;  // 0: free
  std::uint8_t flags;
  std::uint64_t user;
};
static_assert(sizeof(GdiEntry) == 24);

constexpr std::size_t kGdiEntries = 65536;

template <class Call>
Call SystemCall(const char* name) {
  return reinterpret_cast<Call>(
      reinterpret_cast<void (*)()>(::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), name)));
}

const GdiEntry* GdiTable() {
  using Query = NTSTATUS(NTAPI*)(HANDLE, ULONG, void*, ULONG, ULONG*);
  constexpr ULONG kBasics = 0;  // ProcessBasicInformation
  PROCESS_BASIC_INFORMATION process{};
  if (SystemCall<Query>("NtQueryInformationProcess")(::GetCurrentProcess(), kBasics, &process,
                                                     sizeof(process), nullptr) != 0) {
    return nullptr;
  }
  constexpr std::size_t kPlace = 0xF8;  // GdiSharedHandleTable of the process' environment block
  const GdiEntry* table = nullptr;
  std::memcpy(&table, reinterpret_cast<const std::byte*>(process.PebBaseAddress) + kPlace,
              sizeof(table));
  return table;
}

}  // namespace

std::int64_t KernelHandles() {
  using Query = NTSTATUS(NTAPI*)(ULONG, void*, ULONG, ULONG*);
  const auto query = SystemCall<Query>("NtQuerySystemInformation");
  constexpr ULONG kProcesses = 5;  // SystemProcessInformation
  std::vector<std::byte> buffer(1U << 20U);
  if (query(kProcesses, buffer.data(), static_cast<ULONG>(buffer.size()), nullptr) != 0) return -1;
  std::size_t at = 0;
  for (;;) {
    ProcessInformation process{};
    std::memcpy(&process, buffer.data() + at, sizeof(process));
    if (reinterpret_cast<std::uintptr_t>(process.id) == ::GetCurrentProcessId()) {
      return process.handles;
    }
    if (process.next == 0) return -1;
    at += process.next;
  }
}

std::int64_t GdiObjects() {
  const DWORD count = ::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS);
  if (count != 0) return count;
  const GdiEntry* table = GdiTable();
  if (table == nullptr) return -1;
  return std::count_if(table, table + kGdiEntries,
                       [](const GdiEntry& entry) { return entry.type != 0; });
}

std::int64_t UserObjects() {
  const DWORD count = ::GetGuiResources(::GetCurrentProcess(), GR_USEROBJECTS);
  if (count != 0) return count;
  // Freed numbers are given out again first; so many objects use them up.
  constexpr int kMenus = 2000;
  std::vector<HMENU> menus;
  for (int menu = 0; menu < kMenus; ++menu) menus.push_back(::CreatePopupMenu());
  std::int64_t highest = 0;
  for (const HMENU menu : menus) {
    highest = std::max<std::int64_t>(highest, LOWORD(reinterpret_cast<std::uintptr_t>(menu)) / 2);
    ::DestroyMenu(menu);
  }
  return highest;
}

std::int64_t PrivateBytes() {
  // Of the fields that mean the same, the one that Wine knows too.
  PROCESS_MEMORY_COUNTERS counters{};
  ::GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof(counters));
  return static_cast<std::int64_t>(counters.PagefileUsage);
}

void ReportGrowth(const Resources& before, Report& report) {
  ReportGrowth(before, Resources(), 64, report);
}

void ReportGrowth(const Resources& before, const Resources& after, double kib, Report& report) {
  const auto growth = [](std::int64_t now, std::int64_t then) {
    return static_cast<double>(now - then);
  };
  report.AtMost("growth of handles over them", growth(after.handles, before.handles), "", 0);
  report.AtMost("growth of GDI objects over them", growth(after.gdi, before.gdi), "", 0);
  report.AtMost("growth of USER objects over them", growth(after.user, before.user), "", 0);
  report.AtMost("growth of private memory over them", growth(after.bytes, before.bytes) / 1024,
                "KiB", kib);
}

}  // namespace bench
