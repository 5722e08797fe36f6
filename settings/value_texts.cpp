#include "settings/value_texts.h"

#include <charconv>

#include "platform/text.h"
#include "platform/wrapping.h"

namespace settings {
namespace {

constexpr std::size_t kLongestQuote = 100;  // characters

// Shortens the text so that it fits into a line of the log.
std::string Quoted(std::string_view text) {
  const std::string beginning = platform::CutCharacters(text, kLongestQuote);
  std::string quoted = "'" + beginning + "'";
  if (beginning.size() < text.size()) {
    quoted += " and so on, " + std::to_string(text.size()) + " bytes,";
  }
  return quoted;
}

}  // namespace

ConversionError::ConversionError(std::string_view text)
    : std::runtime_error(Quoted(text) + " is not a valid integer value") {}

std::int64_t ParseCounter(std::string_view text) {
  std::string_view digits = text;
  // from_chars takes only the minus sign; "+-5" must stay an error.
  if (digits.starts_with('+')) {
    digits.remove_prefix(1);
    if (digits.starts_with('-')) throw ConversionError(text);
  }
  std::int64_t value = 0;
  const char* const end = digits.data() + digits.size();
  const auto [stop, error] = std::from_chars(digits.data(), end, value);
  if (error != std::errc() || stop != end) throw ConversionError(text);
  return value;
}

std::string CounterText(std::int64_t value) {
  // The smallest number has no absolute value in 64 bits. Its text keeps the sign, so that it can
  // be read again: digits beyond the range would make every later scan fail.
  return std::to_string(platform::WrappingAbs(value));
}

namespace {

struct NamedColour {
  std::string_view name;
  platform::Colour value;
};

using platform::colour::System;

constexpr NamedColour kNamedColours[] = {
    {"clBlack", 0x000000},
    {"clMaroon", 0x000080},
    {"clGreen", 0x008000},
    {"clOlive", 0x008080},
    {"clNavy", 0x800000},
    {"clPurple", 0x800080},
    {"clTeal", 0x808000},
    {"clGray", 0x808080},
    {"clSilver", 0xC0C0C0},
    {"clRed", 0x0000FF},
    {"clLime", 0x00FF00},
    {"clYellow", 0x00FFFF},
    {"clBlue", 0xFF0000},
    {"clFuchsia", 0xFF00FF},
    {"clAqua", 0xFFFF00},
    {"clWhite", 0xFFFFFF},
    {"clScrollBar", System(0)},
    {"clBackground", System(1)},
    {"clActiveCaption", System(2)},
    {"clInactiveCaption", System(3)},
    {"clMenu", System(4)},
    {"clWindow", System(5)},
    {"clWindowFrame", System(6)},
    {"clMenuText", System(7)},
    {"clWindowText", System(8)},
    {"clCaptionText", System(9)},
    {"clActiveBorder", System(10)},
    {"clInactiveBorder", System(11)},
    {"clAppWorkSpace", System(12)},
    {"clHighlight", System(13)},
    {"clHighlightText", System(14)},
    {"clBtnFace", System(15)},
    {"clBtnShadow", System(16)},
    {"clGrayText", System(17)},
    {"clBtnText", System(18)},
    {"clInactiveCaptionText", System(19)},
    {"clBtnHighlight", System(20)},
    {"cl3DDkShadow", System(21)},
    {"cl3DLight", System(22)},
    {"clInfoText", System(23)},
    {"clInfoBk", System(24)},
    // The system has no colour 25.
    {"clHotLight", System(26)},
    {"clGradientActiveCaption", System(27)},
    {"clGradientInactiveCaption", System(28)},
    {"clMenuHighlight", System(29)},
    {"clMenuBar", System(30)},
};

std::optional<std::int64_t> ParseNumber(std::string_view digits, int base) {
  std::int64_t value = 0;
  const char* const end = digits.data() + digits.size();
  const auto [stop, error] = std::from_chars(digits.data(), end, value, base);
  if (error != std::errc() || stop != end) return std::nullopt;
  return value;
}

}  // namespace

std::string ColourText(platform::Colour colour) {
  for (const NamedColour& named : kNamedColours) {
    if (named.value == colour) return std::string(named.name);
  }
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string text = "$";
  for (int shift = 28; shift >= 0; shift -= 4) text += kDigits[(colour >> shift) & 15U];
  return text;
}

std::optional<platform::Colour> ParseColour(std::string_view text) {
  const std::string lower = platform::AsciiLower(text);
  for (const NamedColour& named : kNamedColours) {
    if (platform::AsciiLower(named.name) == lower) return named.value;
  }
  const bool hexadecimal = text.starts_with('$');
  if (hexadecimal && text.starts_with("$-")) return std::nullopt;
  const auto number = hexadecimal ? ParseNumber(text.substr(1), 16) : ParseNumber(text, 10);
  // Signed and unsigned decimals of 32 bits: a system colour is negative in the one form.
  if (!number || *number < INT32_MIN || *number > UINT32_MAX) return std::nullopt;
  return static_cast<platform::Colour>(*number);
}

}  // namespace settings
