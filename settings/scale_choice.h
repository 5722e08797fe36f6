// The scales of the graph that the user can choose from, what the stored choice means, and the
// custom connection speed in the three forms that it has.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "language/texts.h"
#include "settings/store.h"

namespace settings {

// The dialog shows bits per second; what is stored is an eighth of that. Every limit that is
// computed from the store, in bytes per scan, is once more an eighth of what is stored. So a custom
// speed limits to an eighth of the bytes that its text promises. This rule is kept, and it stands
// in this file only.
constexpr std::int64_t ShownSpeed(std::int64_t stored) { return stored * 8; }
constexpr std::int64_t StoredSpeed(std::int64_t shown) { return shown / 8; }
constexpr std::int64_t LimitOfStoredSpeed(std::int64_t stored) { return stored / 8; }
// The exception: while the user changes the speed in the dialog, the meter is given the full bytes
// of the shown speed, until the limit is next computed from the store.
constexpr std::int64_t LimitOfShownSpeed(std::int64_t shown) { return shown / 8; }

struct ScaleChoice {
  std::string_view text;  // in the list; the first and the last also have a language text
  bool AutoScale;
  std::int64_t SpeedLimit;  // bytes per scan at full scale; the last choice has the custom speed
};

inline constexpr std::size_t kAutomaticScale = 0;
inline constexpr std::size_t kCustomScale = 16;

// The index is the stored "GraphScaleType".
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
    // The limit is that of 47.436 Mbit/s, although the text says 47.736; both are kept.
    {"47.736 mbps [ DS3 ]", false, 5929500},
    {"100      mbps [ LAN ]", false, 12500000},
    {language::text::SettingsForm::S14.english, false, 0},
}};

struct AppliedScale {
  bool AutoScale;
  std::int64_t SpeedLimit;  // of the graph meter, bytes per scan
  std::int64_t SpeedCap;    // of the sampler, bytes per scan; 0 for none
};

// Returns the scale of a choice, or nullopt for an index outside the list. `custom_limit` is the
// limit of the custom speed in bytes per scan.
[[nodiscard]] std::optional<AppliedScale> ScaleOf(std::int64_t index, std::int64_t custom_limit);

// Returns the scale of the stored choice, or nullopt for an index outside the list, which leaves
// the scale as it is.
[[nodiscard]] std::optional<AppliedScale> ReadScale(Store& store);

}  // namespace settings
