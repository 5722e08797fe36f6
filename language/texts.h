// The catalogue of what the user reads. language/texts.inc holds the texts themselves; code names
// one by its constant, as in `text::Security::Title`.
#pragma once

#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

namespace language {

struct TextEntry {
  std::string_view section;
  std::string_view key;  // empty: a heading, whose words are in `english`
  std::string_view english;
};

namespace text {
// clang-format off
#define UI_HEADING(words)
#define UI_TEXT(section, key, english) namespace section { inline constexpr TextEntry key{#section, #key, english}; }
// clang-format on
#include "language/texts.inc"
#undef UI_HEADING
#undef UI_TEXT
}  // namespace text

// All texts and headings in their order.
[[nodiscard]] std::span<const TextEntry> TextCatalogue();

// The text of this section and key; null when there is none.
[[nodiscard]] const TextEntry* FindText(std::string_view section, std::string_view key);

// How many "%s" a text has.
[[nodiscard]] int PlaceHolders(std::string_view text);

// `format` with its "%s" replaced by the values, first by first. A value that is missing leaves its
// "%s" standing, one too many is dropped.
[[nodiscard]] std::string Filled(std::string_view format,
                                 std::initializer_list<std::string_view> values);

}  // namespace language
