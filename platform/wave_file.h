// What a wave file must be before the system is asked to play it.
#pragma once

#include <string_view>

namespace platform {

// Whether the bytes are a wave file: "RIFF" and "WAVE", chunks that lie within it up to the sound,
// and before that a format whose numbers a player can divide by. The system's own player trusts
// what the file says of itself, and a broken one may end the program there.
[[nodiscard]] bool IsWaveFile(std::string_view bytes);

}  // namespace platform
