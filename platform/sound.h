// Sounds.
#pragma once

#include <string_view>

namespace platform {

class Sound {
 public:
  virtual ~Sound() = default;

  // Starts a wave file and returns at once; a sound that still plays is cut off (sndPlaySound with
  // SND_ASYNC and SND_NODEFAULT). An empty path, a missing file or one that is no sound (see
  // IsWaveFile) or larger than 64 MiB is silence.
  virtual void Play(std::string_view path) = 0;
  // The system's plain signal (MessageBeep).
  virtual void Beep() = 0;
};

}  // namespace platform
