// Captions of menus and controls, in which "&" marks the character of their key and "&&" stands for
// one ampersand.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace platform {

struct MarkedText {
  std::string shown;  // the caption without its marks
  // Where the first marked character begins in `shown`, in bytes; npos when none is marked.
  std::size_t key_at = std::string::npos;

  // Returns the marked character, or an empty text when none is marked.
  [[nodiscard]] std::string Key() const;
};

// Never fails: a single "&" at the end of a caption marks nothing and is not shown.
[[nodiscard]] MarkedText ReadMarks(std::string_view caption);

}  // namespace platform
