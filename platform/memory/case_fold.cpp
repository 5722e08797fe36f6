#include "platform/memory/case_fold.h"

#include "platform/text.h"

namespace platform::memory {
namespace {

char16_t FoldUnit(char16_t unit) {
  struct Range {
    char16_t first;
    char16_t last;
    int distance;
  };
  static constexpr Range kUpper[] = {
      {u'A', u'Z', 32},     {0x00C0, 0x00D6, 32}, {0x00D8, 0x00DE, 32}, {0x0391, 0x03A1, 32},
      {0x03A3, 0x03AB, 32}, {0x0400, 0x040F, 80}, {0x0410, 0x042F, 32},
  };
  for (const Range& range : kUpper) {
    if (unit >= range.first && unit <= range.last) {
      return static_cast<char16_t>(unit + range.distance);
    }
  }
  return unit;
}

}  // namespace

std::string FoldCase(std::string_view name) {
  std::u16string wide = ToUtf16(name);
  for (char16_t& unit : wide) unit = FoldUnit(unit);
  return ToUtf8(wide);
}

}  // namespace platform::memory
