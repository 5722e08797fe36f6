// The readers of bytes that anybody may have written, each with what must hold for all bytes.
#pragma once

#include <span>
#include <string_view>

namespace fuzz {

struct Target {
  std::string_view name;  // also the folder of its corpus
  // Hands the bytes to the reader. Ends the program, with a line that says why, when what it makes
  // of them is wrong.
  void (*read)(std::string_view bytes);
};

[[nodiscard]] std::span<const Target> Targets();

}  // namespace fuzz
