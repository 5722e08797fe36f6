#include "platform/marked_text.h"

#include "platform/text.h"

namespace platform {

std::string MarkedText::Key() const {
  return key_at < shown.size() ? CutCharacters(std::string_view(shown).substr(key_at), 1) : "";
}

MarkedText ReadMarks(std::string_view caption) {
  MarkedText text;
  for (std::size_t at = 0; at < caption.size(); ++at) {
    if (caption[at] == '&') {
      if (++at == caption.size()) break;
      if (caption[at] != '&' && text.key_at == std::string::npos) text.key_at = text.shown.size();
    }
    text.shown += caption[at];
  }
  return text;
}

}  // namespace platform
