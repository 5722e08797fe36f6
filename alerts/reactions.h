// The reactions when traffic crosses a limit: a sound, a balloon, the end of the session.
#pragma once

#include <cstdint>
#include <string_view>

#include "alerts/system_manager.h"
#include "platform/notification_area.h"
#include "platform/sound.h"
#include "platform/text.h"

namespace alerts {

// The stored codes of "LessAction", "MoreAction" and "BAAction". The lists offer "Display Message"
// twice, and the second one (code 3) does nothing; both codes are kept. Other codes do nothing
// either.
inline constexpr std::int64_t kNoAction = 0;
inline constexpr std::int64_t kDisplayMessage = 1;
inline constexpr std::int64_t kShutdownComputer = 2;
inline constexpr std::int64_t kInertDisplayMessage = 3;

// Shows balloons; the tray icon implements it.
class Balloons {
 public:
  virtual ~Balloons() = default;
  // Shows a balloon for so many seconds. The title is cut at 63 characters, the text at 255.
  void Show(std::string_view title, std::string_view text, platform::BalloonIcon icon,
            int seconds) {
    ShowBalloon(platform::CutCharacters(title, 63), platform::CutCharacters(text, 255), icon,
                seconds);
  }

 private:
  virtual void ShowBalloon(std::string_view title, std::string_view text,
                           platform::BalloonIcon icon, int seconds) = 0;
};

class Reactions {
 public:
  // All arguments outlive the reactions.
  Reactions(platform::Sound& sound, Balloons& balloons, Shutdown& shutdown)
      : sound_(sound), balloons_(balloons), shutdown_(shutdown) {}

  // Starts the sound and does not wait for its end. A file that cannot be played stays silent.
  void PlayWave(std::string_view path) { sound_.Play(path); }
  void Warn(std::string_view title, std::string_view text, int seconds) {
    balloons_.Show(title, text, platform::BalloonIcon::kWarning, seconds);
  }
  // Ends the session without asking the user. Nothing happens when the system refuses.
  void ShutDownComputer() { shutdown_.Execute(); }

 private:
  platform::Sound& sound_;
  Balloons& balloons_;
  Shutdown& shutdown_;
};

}  // namespace alerts
