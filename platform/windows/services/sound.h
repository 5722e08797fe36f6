// Sounds.
#pragma once

#include "platform/sound.h"

namespace platform::windows {

class Sound final : public platform::Sound {
 public:
  void Play(std::string_view path) override;
  void Beep() override;
};

}  // namespace platform::windows
