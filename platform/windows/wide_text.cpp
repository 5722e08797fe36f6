#include "platform/windows/wide_text.h"

#include "platform/text.h"

namespace platform::windows {

static_assert(sizeof(wchar_t) == sizeof(char16_t));

std::wstring ToWide(std::string_view text) {
  const std::u16string units = ToUtf16(text);
  return {units.begin(), units.end()};
}

std::string FromWide(std::wstring_view text) {
  return ToUtf8(std::u16string(text.begin(), text.end()));
}

}  // namespace platform::windows
