#include <array>

#include "platform/windows/services/services.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/win32.h"

namespace platform::windows {
namespace {

// Returns the text that the system wrote. `length` counts the terminating NUL and is 0 on failure.
template <std::size_t kSize>
std::string Written(const std::array<wchar_t, kSize>& text, int length) {
  if (length <= 0) return {};
  return FromWide({text.data(), static_cast<std::size_t>(length) - 1});
}

SYSTEMTIME ToSystemTime(DateTime moment) {
  const CivilDate date = DecodeDate(moment);
  const ClockTime time = DecodeTime(moment);
  SYSTEMTIME result{};
  result.wYear = static_cast<WORD>(date.year);
  result.wMonth = static_cast<WORD>(date.month);
  result.wDay = static_cast<WORD>(date.day);
  result.wHour = static_cast<WORD>(time.hour);
  result.wMinute = static_cast<WORD>(time.minute);
  result.wSecond = static_cast<WORD>(time.second);
  return result;
}

}  // namespace

std::string Locale::DecimalSeparator() {
  std::array<wchar_t, 8> text{};  // the system allows three characters
  const int length = ::GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_SDECIMAL, text.data(),
                                       static_cast<int>(text.size()));
  const std::string separator = Written(text, length);
  return separator.empty() ? "." : separator;
}

std::string Locale::ShortDate(DateTime moment) {
  const SYSTEMTIME date = ToSystemTime(moment);
  std::array<wchar_t, 128> text{};
  return Written(text, ::GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, DATE_SHORTDATE, &date, nullptr,
                                         text.data(), static_cast<int>(text.size()), nullptr));
}

std::string Locale::LongTime(DateTime moment) {
  SYSTEMTIME time = ToSystemTime(moment);
  // Only the time is needed, but the call fails for a date outside the system's calendar.
  time.wYear = 2000;
  time.wMonth = 1;
  time.wDay = 1;
  std::array<wchar_t, 128> text{};
  return Written(text, ::GetTimeFormatEx(LOCALE_NAME_USER_DEFAULT, 0, &time, nullptr, text.data(),
                                         static_cast<int>(text.size())));
}

std::string Locale::Lower(std::string_view text) {
  const std::wstring wide = ToWide(text);
  if (wide.empty()) return {};
  std::wstring lower(wide.size(), L'\0');  // one code unit for another
  const auto length = static_cast<int>(wide.size());
  const int written = ::LCMapStringEx(LOCALE_NAME_INVARIANT, LCMAP_LOWERCASE, wide.data(), length,
                                      lower.data(), length, nullptr, nullptr, 0);
  return written == length ? FromWide(lower) : std::string(text);
}

std::string Locale::FromCodePage(std::string_view bytes) {
  if (bytes.empty()) return {};
  const auto size = static_cast<int>(bytes.size());
  const int length = ::MultiByteToWideChar(CP_ACP, 0, bytes.data(), size, nullptr, 0);
  if (length <= 0) return {};
  std::wstring wide(static_cast<std::size_t>(length), L'\0');
  ::MultiByteToWideChar(CP_ACP, 0, bytes.data(), size, wide.data(), length);
  return FromWide(wide);
}

}  // namespace platform::windows
