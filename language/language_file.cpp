#include "language/language_file.h"

#include "platform/text.h"
#include "settings/text_file.h"

namespace language {
namespace {

constexpr std::size_t kLongestText = 1000;  // bytes
constexpr std::string_view kNoCharacter = "\xEF\xBF\xBD";

// No name contains a line feed, so two different pairs never make the same key.
std::string KeyOf(std::string_view section, std::string_view key) {
  std::string joined(section);
  joined.append(1, '\n').append(key);
  return platform::AsciiLower(joined);
}

std::string_view Unquoted(std::string_view text) {
  const bool quoted = text.size() >= 2 && text.front() == text.back() &&
                      (text.front() == '"' || text.front() == '\'');
  return quoted ? text.substr(1, text.size() - 2) : text;
}

}  // namespace

LanguageFile::LanguageFile(std::string_view bytes, platform::Locale& locale) {
  const std::string text = settings::DecodeTextFile(bytes, locale);
  if (text.find('\0') != std::string::npos) return;
  std::string section;
  std::string_view rest = text;
  while (!rest.empty()) ReadLine(platform::TakeLine(rest), section);
}

void LanguageFile::ReadLine(std::string_view line, std::string& section) {
  const std::string trimmed = platform::Trim(line);
  if (trimmed.starts_with(';')) return;
  if (trimmed.starts_with('[')) {
    // Without the closing bracket the line names no section, and the lines below it must not count
    // for the previous section.
    const std::size_t end = trimmed.find(']');
    section = end == std::string::npos ? "" : platform::Trim(trimmed.substr(1, end - 1));
    return;
  }
  const std::size_t equals = trimmed.find('=');
  if (equals == std::string::npos || section.empty()) return;
  const std::string value = platform::Trim(trimmed.substr(equals + 1));
  if (value.size() > kLongestText || value.find(kNoCharacter) != std::string::npos) return;
  texts_.emplace(KeyOf(section, platform::Trim(trimmed.substr(0, equals))), Unquoted(value));
}

std::optional<std::string_view> LanguageFile::Find(std::string_view section,
                                                   std::string_view key) const {
  const auto found = texts_.find(KeyOf(section, key));
  if (found == texts_.end()) return std::nullopt;
  return found->second;
}

}  // namespace language
