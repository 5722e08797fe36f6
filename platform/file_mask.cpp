#include "platform/file_mask.h"

#include <optional>
#include <string>

#include "platform/text.h"

namespace platform {

bool MatchesMask(std::string_view name, std::string_view mask) {
  // The comparison is in UTF-16, so that "?" is a character; a character beyond the first plane
  // counts as two, as it does for the system.
  const std::u16string text = ToUtf16(AsciiLower(name));
  const std::u16string pattern = ToUtf16(AsciiLower(mask));
  std::size_t at = 0;
  std::size_t step = 0;
  // Where the comparison goes on when the text after the last star does not fit: one character
  // later.
  struct Retry {
    std::size_t at;
    std::size_t step;
  };
  std::optional<Retry> star;
  while (at < text.size()) {
    if (pattern[step] == u'*') {  // behind the last one is a NUL
      star = Retry{at, ++step};
    } else if (step < pattern.size() && (pattern[step] == u'?' || pattern[step] == text[at])) {
      ++at;
      ++step;
    } else if (star) {
      at = ++star->at;
      step = star->step;
    } else {
      return false;
    }
  }
  while (pattern[step] == u'*') ++step;
  return step == pattern.size();
}

}  // namespace platform
