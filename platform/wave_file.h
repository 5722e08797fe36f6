// Checks the path of a wave file, and the file, before the system is asked to play it.
#pragma once

#include <string_view>

namespace platform {

// Returns whether the bytes are a wave file: "RIFF" and "WAVE", chunks up to the sound that lie
// within the file, and before the sound a format whose numbers a player can divide by. The system's
// player trusts these numbers, and a broken file may crash the program in it.
[[nodiscard]] bool IsWaveFile(std::string_view bytes);

// Returns whether a path is on a share, "\\machine\share\x.wav": opening it may wait for a
// machine that does not answer. The system takes slashes as well as backslashes.
[[nodiscard]] bool IsOnShare(std::string_view path);

}  // namespace platform
