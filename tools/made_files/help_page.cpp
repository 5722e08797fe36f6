#include <stdexcept>

#include "language/language_file.h"
#include "language/texts.h"
#include "platform/memory/locale.h"
#include "platform/text.h"
#include "tools/made_files/made_files.h"

namespace made_files {
namespace {

// A caption in HTML, without what marks its key and without the colon before a field, nor the
// unbreakable blank that French has before that.
std::string AsNamed(std::string_view caption) {
  std::string name;
  for (std::size_t at = 0; at < caption.size(); ++at) {
    const std::string_view rest = caption.substr(at);
    if (rest.starts_with("&&")) {
      name += "&amp;";
      ++at;
    } else if (rest.starts_with("(&") && rest.size() > 3 && rest[3] == ')') {
      at += 3;
    } else if (rest.front() != '&') {
      name += rest.front() == '<'   ? "&lt;"
              : rest.front() == '>' ? "&gt;"
                                    : std::string(1, rest.front());
    }
  }
  for (const std::string_view end : {":", "\u00A0"}) {
    if (name.ends_with(end)) name.resize(name.size() - end.size());
  }
  return std::string(platform::Trim(name));
}

// Returns the text as the program shows it in this language; a text that is not translated is
// English.
std::string_view Shown(const language::LanguageFile& file, const std::string& name) {
  const std::size_t point = name.find('.');
  const auto* const entry = language::FindText(name.substr(0, point), name.substr(point + 1));
  if (entry == nullptr) throw std::runtime_error(name + " is no text of the catalogue");
  return file.Find(entry->section, entry->key).value_or(entry->english);
}

}  // namespace

std::string HelpPage(const std::string& page, const std::string& texts) {
  constexpr std::string_view kStart = "<b data-text=\"";
  platform::memory::Locale locale;
  const language::LanguageFile file(texts, locale);
  std::string made;
  std::size_t kept = 0;
  for (std::size_t at = page.find(kStart); at != std::string::npos; at = page.find(kStart, kept)) {
    at += kStart.size();
    const std::string name = page.substr(at, page.find('"', at) - at);
    const std::size_t begin = page.find('>', at) + 1;
    made += page.substr(kept, begin - kept) + AsNamed(Shown(file, name));
    kept = page.find("</b>", begin);
  }
  return made + page.substr(kept);
}

}  // namespace made_files
