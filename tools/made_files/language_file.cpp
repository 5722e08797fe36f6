#include "language/language_file.h"

#include "language/texts.h"
#include "platform/memory/locale.h"
#include "platform/text.h"
#include "tools/made_files/made_files.h"

namespace made_files {
namespace {

using language::TextEntry;

// As a line of the file, quoted where the reader would take something off its ends.
std::string Line(const TextEntry& entry, std::string_view text) {
  const bool quote = platform::Trim(text) != text ||
                     (text.size() > 1 && text.front() == '"' && text.back() == '"');
  const std::string mark = quote ? "\"" : "";
  return std::string(entry.key) + '=' + mark + std::string(text) + mark;
}

}  // namespace

std::string LanguageFile(const std::string& language, const std::string& present) {
  platform::memory::Locale locale;
  const language::LanguageFile file(present, locale);
  std::string made = "\xEF\xBB\xBF; Korvane Tremolux, " + language + "\r\n";
  std::string_view section;
  std::string heading;
  for (const TextEntry& entry : language::TextCatalogue()) {
    if (entry.key.empty()) {
      heading = "; " + std::string(entry.english) + "\r\n";
      continue;
    }
    if (entry.section != section) made += "\r\n[" + std::string(entry.section) + "]\r\n";
    if (!heading.empty()) made += (entry.section == section ? "\r\n" : "") + heading;
    heading.clear();
    section = entry.section;
    const auto text = language == "English" ? entry.english : file.Find(entry.section, entry.key);
    made += text ? Line(entry, *text) : "; " + Line(entry, entry.english);
    made += "\r\n";
  }
  return made;
}

}  // namespace made_files
