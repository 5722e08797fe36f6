// A loudspeaker that records what it was asked to play.
#pragma once

#include <string>
#include <vector>

#include "platform/sound.h"

namespace platform::memory {

class Sound final : public platform::Sound {
 public:
  void Play(std::string_view path) override { played.emplace_back(path); }
  void Beep() override { ++beeps; }

  std::vector<std::string> played;
  int beeps = 0;
};

}  // namespace platform::memory
