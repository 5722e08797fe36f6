// A language file: an INI file with a section for each window and a line for each text.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "platform/locale.h"

namespace language {

// What a file says. The case of A to Z does not matter in sections and keys. A section that comes
// again is continued, and the first of equal keys counts. Blanks around names and texts are
// dropped; a pair of double or single quotes around a text keeps the blanks inside. Lines that
// begin with ";" are comments, and a line that is neither comment, section nor "key=text" is passed
// over.
class LanguageFile {
 public:
  LanguageFile() = default;  // empty
  // Never fails: bytes that are no text give an empty file, and a text that is damaged (it has an
  // invalid character) or too long for any window is left out.
  LanguageFile(std::string_view bytes, platform::Locale& locale);

  // Returns the text, which may be empty, or nullopt when the file has none under this name.
  [[nodiscard]] std::optional<std::string_view> Find(std::string_view section,
                                                     std::string_view key) const;

 private:
  void ReadLine(std::string_view line, std::string& section);

  std::map<std::string, std::string, std::less<>> texts_;  // by section, line feed, key
};

}  // namespace language
