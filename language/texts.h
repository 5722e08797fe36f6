// The catalogue of what the user reads. language/texts.inc holds the texts themselves; code names a
// text by its constant, as in `text::Security::Title`.
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

// Returns all texts and headings in their order.
[[nodiscard]] std::span<const TextEntry> TextCatalogue();

// Returns the text of this section and key, or null when there is none.
[[nodiscard]] const TextEntry* FindText(std::string_view section, std::string_view key);

// Returns how many "%s" a text has.
[[nodiscard]] int PlaceHolders(std::string_view text);

// Returns `format` with its "%s" replaced by the values in order. A "%s" without a value stays; a
// value without a "%s" is dropped.
[[nodiscard]] std::string Filled(std::string_view format,
                                 std::initializer_list<std::string_view> values);

}  // namespace language
