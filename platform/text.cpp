#include "platform/text.h"

namespace platform {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

struct Decoded {
  char32_t code = kReplacement;
  std::size_t length = 1;  // code units that the character took
};

unsigned Unit(std::string_view text, std::size_t at) {
  return static_cast<unsigned char>(text[at]);
}

// Returns the character at the start of `text`, which must not be empty. A malformed sequence gives
// U+FFFD and takes as many bytes as could have begun a character, at least one.
Decoded DecodeUtf8(std::string_view text) {
  const unsigned lead = Unit(text, 0);
  if (lead < 0x80) return {lead, 1};
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4) return {};
  // The range of the second byte excludes overlong forms, surrogates and codes above U+10FFFF.
  unsigned lowest = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
  unsigned highest = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
  char32_t code = lead & (0x7FU >> length);
  for (std::size_t at = 1; at < length; ++at) {
    if (at >= text.size() || Unit(text, at) < lowest || Unit(text, at) > highest) {
      return {kReplacement, at};
    }
    code = code << 6 | (Unit(text, at) & 0x3FU);
    lowest = 0x80;
    highest = 0xBF;
  }
  return {code, length};
}

constexpr bool IsHighSurrogate(char32_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
constexpr bool IsLowSurrogate(char32_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

Decoded DecodeUtf16(std::u16string_view text) {
  const char32_t unit = text[0];
  if (IsHighSurrogate(unit) && text.size() > 1 && IsLowSurrogate(text[1])) {
    return {0x10000 + ((unit - 0xD800) << 10) + (text[1] - 0xDC00U), 2};
  }
  if (IsHighSurrogate(unit) || IsLowSurrogate(unit)) return {};
  return {unit, 1};
}

void AppendUtf8(std::string& text, char32_t code) {
  const auto append = [&text](char32_t unit) { text += static_cast<char>(unit); };
  if (code < 0x80) {
    append(code);
    return;
  }
  if (code < 0x800) {
    append(0xC0 | code >> 6);
  } else {
    if (code < 0x10000) {
      append(0xE0 | code >> 12);
    } else {
      append(0xF0 | code >> 18);
      append(0x80 | (code >> 12 & 0x3F));
    }
    append(0x80 | (code >> 6 & 0x3F));
  }
  append(0x80 | (code & 0x3F));
}

}  // namespace

std::string CutCharacters(std::string_view text, std::size_t count) {
  std::size_t end = 0;
  for (; count > 0 && end < text.size(); --count) end += DecodeUtf8(text.substr(end)).length;
  return std::string(text.substr(0, end));
}

std::string AsciiLower(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return lower;
}

std::string Trim(std::string_view text) {
  const auto blank = [](char c) { return static_cast<unsigned char>(c) <= 32; };
  while (!text.empty() && blank(text.front())) text.remove_prefix(1);
  while (!text.empty() && blank(text.back())) text.remove_suffix(1);
  return std::string(text);
}

std::string_view TakeLine(std::string_view& rest) {
  const std::string_view line = rest.substr(0, rest.find_first_of("\r\n"));
  rest.remove_prefix(line.size());
  rest.remove_prefix(rest.starts_with("\r\n") ? 2 : std::min<std::size_t>(1, rest.size()));
  return line;
}

std::string ValidUtf8(std::string_view text) {
  std::string valid;
  valid.reserve(text.size());
  while (!text.empty()) {
    const Decoded next = DecodeUtf8(text);
    AppendUtf8(valid, next.code);
    text.remove_prefix(next.length);
  }
  return valid;
}

std::u16string ToUtf16(std::string_view text) {
  std::u16string wide;
  wide.reserve(text.size());
  while (!text.empty()) {
    const Decoded next = DecodeUtf8(text);
    if (next.code >= 0x10000) {
      wide += static_cast<char16_t>(0xD800 + ((next.code - 0x10000) >> 10));
      wide += static_cast<char16_t>(0xDC00 + ((next.code - 0x10000) & 0x3FF));
    } else {
      wide += static_cast<char16_t>(next.code);
    }
    text.remove_prefix(next.length);
  }
  return wide;
}

std::string ToUtf8(std::u16string_view text) {
  std::string narrow;
  narrow.reserve(text.size());
  while (!text.empty()) {
    const Decoded next = DecodeUtf16(text);
    AppendUtf8(narrow, next.code);
    text.remove_prefix(next.length);
  }
  return narrow;
}

}  // namespace platform
