#include "settings/text_file.h"

#include <algorithm>

#include "platform/text.h"

namespace settings {
namespace {

constexpr std::string_view kMark = "\xEF\xBB\xBF";

enum class Order { kLowByteFirst, kHighByteFirst };

unsigned Byte(std::string_view bytes, std::size_t at) {
  return static_cast<unsigned char>(bytes[at]);
}

// Half a code unit at the end is dropped.
std::string FromUtf16(std::string_view bytes, Order order) {
  std::u16string wide;
  wide.reserve(bytes.size() / 2);
  for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
    const unsigned first = Byte(bytes, at);
    const unsigned second = Byte(bytes, at + 1);
    wide += static_cast<char16_t>(order == Order::kLowByteFirst ? first | second << 8U
                                                                : first << 8U | second);
  }
  return platform::ToUtf8(wide);
}

// Returns where the last UTF-8 character begins if the end of the bytes cuts it, and otherwise the
// end of the bytes.
std::size_t EndOfWholeCharacters(std::string_view bytes) {
  std::size_t lead = bytes.size();
  const std::size_t furthest = bytes.size() - std::min<std::size_t>(bytes.size(), 3);
  while (lead > furthest) {
    const unsigned byte = Byte(bytes, --lead);
    if (byte < 0x80) break;
    if (byte < 0xC0) continue;
    const std::size_t length = byte >= 0xF0 ? 4 : byte >= 0xE0 ? 3 : 2;
    return lead + length > bytes.size() ? lead : bytes.size();
  }
  return bytes.size();
}

// A file that was cut in the middle of a character still counts as UTF-8 if it has another, whole
// character of several bytes.
bool IsUtf8(std::string_view bytes) {
  const std::string_view whole = bytes.substr(0, EndOfWholeCharacters(bytes));
  if (platform::ValidUtf8(whole) != whole) return false;
  return whole.size() == bytes.size() ||
         std::any_of(whole.begin(), whole.end(), [](char c) { return (c & 0x80) != 0; });
}

std::string Decode(std::string_view bytes, platform::Locale& locale) {
  if (bytes.starts_with(kMark)) return platform::ValidUtf8(bytes);
  if (bytes.starts_with("\xFF\xFE")) return FromUtf16(bytes.substr(2), Order::kLowByteFirst);
  if (bytes.starts_with("\xFE\xFF")) return FromUtf16(bytes.substr(2), Order::kHighByteFirst);
  return IsUtf8(bytes) ? platform::ValidUtf8(bytes) : locale.FromCodePage(bytes);
}

}  // namespace

std::string DecodeTextFile(std::string_view bytes, platform::Locale& locale) {
  const std::string text = Decode(bytes, locale);
  std::string_view content = text;
  // Joined files have several; one that stayed would be lost when the text is saved and read anew.
  while (content.starts_with(kMark)) content.remove_prefix(kMark.size());
  return std::string(content);
}

}  // namespace settings
