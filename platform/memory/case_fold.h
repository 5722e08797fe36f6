// Folds names so that they compare as the system compares them.
#pragma once

#include <string>
#include <string_view>

#include "platform/text.h"

namespace platform::memory {

// Returns a form of the name that is equal for two names that the system takes for the same: it
// keeps the case of keys, values and files but does not tell it apart. Covers Latin-1, Greek and
// Cyrillic.
[[nodiscard]] inline std::string FoldCase(std::string_view name) {
  struct Range {
    char16_t first, last;
    int distance;
  };
  static constexpr Range kUpper[] = {
      {u'A', u'Z', 32},     {0x00C0, 0x00D6, 32}, {0x00D8, 0x00DE, 32}, {0x0391, 0x03A1, 32},
      {0x03A3, 0x03AB, 32}, {0x0400, 0x040F, 80}, {0x0410, 0x042F, 32},
  };
  std::u16string wide = ToUtf16(name);
  for (char16_t& unit : wide) {
    for (const auto& [first, last, distance] : kUpper) {
      if (unit < first || unit > last) continue;
      unit = static_cast<char16_t>(unit + distance);
      break;
    }
  }
  return ToUtf8(wide);
}

}  // namespace platform::memory
