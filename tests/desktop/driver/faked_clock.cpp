#include "tests/desktop/driver/faked_clock.h"

#include <cmath>

#include "platform/windows/system_error.h"
#include "platform/windows/system_handles.h"
#include "tests/desktop/driver/wait.h"
#include "tests/desktop/driver/win.h"

namespace desktop {
namespace {

using platform::windows::ThrowSystemError;

constexpr double kSecondsOfDay = 86400;

// Seconds since 1601.
double SecondsOf(const SYSTEMTIME& time) {
  FILETIME file_time{};
  ::SystemTimeToFileTime(&time, &file_time);
  const auto ticks =
      (static_cast<unsigned long long>(file_time.dwHighDateTime) << 32U) | file_time.dwLowDateTime;
  return static_cast<double>(ticks) / 1e7;
}

double SecondsOf(const Moment& moment) {
  SYSTEMTIME time{};
  time.wYear = static_cast<WORD>(moment.year);
  time.wMonth = static_cast<WORD>(moment.month);
  time.wDay = static_cast<WORD>(moment.day);
  time.wHour = static_cast<WORD>(moment.hour);
  time.wMinute = static_cast<WORD>(moment.minute);
  time.wSecond = static_cast<WORD>(moment.second);
  return SecondsOf(time);
}

double LocalSeconds() {
  SYSTEMTIME now{};
  ::GetLocalTime(&now);
  return SecondsOf(now);
}

}  // namespace

double DaysOf(const Moment& moment) {
  const Moment midnight{moment.year, moment.month, moment.day, 0, 0, 0};
  return (SecondsOf(midnight) - SecondsOf(Moment{1899, 12, 30, 0, 0, 0})) / kSecondsOfDay;
}

FakedClock::FakedClock() {
  wchar_t file[MAX_PATH] = {};
  if (::GetEnvironmentVariableW(L"TREMOLUX_FAKED_CLOCK", file, MAX_PATH) == 0) return;
  file_ = file;
  WriteOffset(0);
  start_ = LocalSeconds();
  start_ms_ = SteadyMs();
}

FakedClock::~FakedClock() {
  if (Available()) WriteOffset(0);
}

void FakedClock::Set(const Moment& moment) {
  const double wanted = SecondsOf(moment);
  const double real = start_ + (SteadyMs() - start_ms_) / 1000;
  WriteOffset(wanted - real);
  Await("the faked date", [&] { return std::abs(LocalSeconds() - wanted) < 60; });
}

// In one step: the library may read at any moment.
void FakedClock::WriteOffset(double seconds) {
  const std::string text = (seconds < 0 ? "" : "+") + std::to_string(seconds) + "\n";
  const std::wstring next = file_ + L".next";
  {
    const platform::windows::FileHandle file(::CreateFileW(
        next.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    DWORD written = 0;
    if (!file || ::WriteFile(file.get(), text.data(), static_cast<DWORD>(text.size()), &written,
                             nullptr) == FALSE) {
      ThrowSystemError("writing the faked clock", ::GetLastError());
    }
  }
  if (::MoveFileExW(next.c_str(), file_.c_str(), MOVEFILE_REPLACE_EXISTING) == FALSE) {
    ThrowSystemError("MoveFileEx", ::GetLastError());
  }
}

}  // namespace desktop
