// A language file: an INI file with a section for each window and a line for each text.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "platform/locale.h"

namespace language {

// What a file says. Sections and keys are found in either case of A to Z; a section that comes
// again goes on; the first of equal keys counts. Blanks around names and texts are dropped, a pair
// of double or single quotes around a text keeps those inside. Lines that begin with ";" are
// comments, and what is neither comment, section nor "key=text" is passed over.
class LanguageFile {
 public:
  LanguageFile() = default;  // empty
  // Never fails: bytes that are no text give an empty file, and a text that is damaged (a character
  // that is none) or too long for any window is left out.
  LanguageFile(std::string_view bytes, platform::Locale& locale);

  // The text, which may be empty; nothing when the file has none under this name.
  [[nodiscard]] std::optional<std::string_view> Find(std::string_view section,
                                                     std::string_view key) const;

 private:
  void ReadLine(std::string_view line, std::string& section);

  std::map<std::string, std::string, std::less<>> texts_;  // by section, line feed, key
};

}  // namespace language
