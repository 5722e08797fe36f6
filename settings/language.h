// The texts of the user's language.
#pragma once

#include <string>
#include <string_view>

namespace settings {

// The language store `_ReadLangauge`. Every look-up names its section; none is remembered between
// two of them, since a window may look texts up while another one's look-up is still under way.
class Language {
 public:
  // The text of `key` in `section` of the chosen language, or else `fallback`, the built-in English
  // text. Never fails. The built-in text is the only one so far.
  [[nodiscard]] std::string Text(std::string_view section, std::string_view key,
                                 std::string_view fallback) const;
};

}  // namespace settings
