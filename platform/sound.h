// Plays sounds.
#pragma once

#include <string_view>

namespace platform {

class Sound {
 public:
  virtual ~Sound() = default;

  // Starts a wave file and returns at once; a sound that still plays is cut off (sndPlaySound with
  // SND_ASYNC and SND_NODEFAULT). Nothing is heard for an empty path, a missing file, a file that
  // is no sound (see IsWaveFile) and one larger than 64 MiB.
  virtual void Play(std::string_view path) = 0;
  // Plays the system's plain signal (MessageBeep).
  virtual void Beep() = 0;
};

}  // namespace platform
