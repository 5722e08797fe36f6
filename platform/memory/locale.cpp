#include "platform/memory/locale.h"

#include <algorithm>

#include "platform/memory/case_fold.h"
#include "platform/text.h"

namespace platform::memory {
namespace {

std::string Padded(int number, std::size_t digits) {
  const std::string text = std::to_string(number);
  return std::string(digits - std::min(digits, text.size()), '0') + text;
}

}  // namespace

std::string Locale::ShortDate(DateTime moment) {
  const CivilDate date = DecodeDate(moment);
  // The system's calendar begins with the year 1601.
  if (date.year < 1601) return {};
  return Padded(date.day, 2) + "." + Padded(date.month, 2) + "." + Padded(date.year, 4);
}

std::string Locale::LongTime(DateTime moment) {
  const ClockTime time = DecodeTime(moment);
  return Padded(time.hour, 2) + ":" + Padded(time.minute, 2) + ":" + Padded(time.second, 2);
}

std::string Locale::Lower(std::string_view text) { return FoldCase(text); }

std::string Locale::FromCodePage(std::string_view bytes) {
  std::u16string wide;
  for (const char byte : bytes) wide += static_cast<char16_t>(static_cast<unsigned char>(byte));
  return ToUtf8(wide);
}

}  // namespace platform::memory
