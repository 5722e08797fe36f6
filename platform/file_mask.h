// Masks that choose files by name.
#pragma once

#include <string_view>

namespace platform {

// Returns whether the whole of `name` matches `mask`. "*" stands for any characters, also none, "?"
// for exactly one character, and every other character for itself, A to Z in either case. This is
// stricter than the system, whose "*.lng" also finds "x.lng2" through the short name that it keeps
// beside the long one.
[[nodiscard]] bool MatchesMask(std::string_view name, std::string_view mask);

}  // namespace platform
