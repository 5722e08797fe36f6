// The scales of the graph that the user can choose from, and what the stored choice means.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "language/texts.h"
#include "settings/store.h"

namespace settings {

struct ScaleChoice {
  std::string_view text;  // of the list; the first and the last have a language text of their own
  bool AutoScale;
  std::int64_t SpeedLimit;  // bytes per scan at full scale; of the last one: the custom speed
};

inline constexpr std::size_t kAutomaticScale = 0;
inline constexpr std::size_t kCustomScale = 16;

// By the stored "GraphScaleType".
inline constexpr std::array<ScaleChoice, 17> kScaleChoices = {{
    {language::text::SettingsForm::S13.english, true, 0},
    {"14.4     kbps [ Analog Modem ]", false, 1800},
    {"33.6     kbps [ Analog Modems ]", false, 4200},
    {"48.0     kbps [ Analog Modems ]", false, 6000},
    {"53.3     kbps [ Analog Modems ]", false, 6662},
    {"64.0     kbps [ Singe Channel ISDN ]", false, 8000},
    {"128      kbps [ Dual Channel ISDN ]", false, 16000},
    {"256      kbps [ DSL Frame Relay ]", false, 32000},
    {"384      kbps [ DSL ]", false, 48000},
    {"512      kbps [ DSL ]", false, 64000},
    {"768      kbps [ DSL ]", false, 96000},
    {"1.544   mbps [ T1,DSL,Cable Modem ]", false, 193000},
    {"2          mbps [ DSL,Cable Modem ]", false, 250000},
    {"10        mbps [ DSL,Cable Modem,LAN ]", false, 1250000},
    // The limit is that of 47.436 Mbit/s, although the text says 47.736; both are meant to stay.
    {"47.736 mbps [ DS3 ]", false, 5929500},
    {"100      mbps [ LAN ]", false, 12500000},
    {language::text::SettingsForm::S14.english, false, 0},
}};

struct AppliedScale {
  bool AutoScale;
  std::int64_t SpeedLimit;  // of the graph meter, bytes per scan
  std::int64_t SpeedCap;    // of the sampler, bytes per scan; 0 for none
};

// What a choice means, with a limit of the custom speed in bytes per scan; nothing for an index
// outside the list.
[[nodiscard]] std::optional<AppliedScale> ScaleOf(std::int64_t index, std::int64_t custom_limit);

// The stored choice; nothing for an index outside the list, which leaves the scale as it is.
[[nodiscard]] std::optional<AppliedScale> ReadScale(Store& store);

}  // namespace settings
