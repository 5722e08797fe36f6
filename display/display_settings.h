// Takes the stored options of the display over into the parts that show them.
#pragma once

#include <cstdint>
#include <optional>

#include "display/graph/kxintermeter.h"
#include "settings/scale_choice.h"
#include "settings/store.h"
#include "toolkit/controls/label.h"
#include "toolkit/hint_window.h"

namespace display {

// Bevels, colours, widths and units of the graph.
void ApplyGraphAppearance(settings::Store& store, TKxInterMeter& meter);

// The bevel of a stored index; one that the list does not have keeps the present one.
[[nodiscard]] toolkit::BevelCut BevelOf(std::int64_t stored, toolkit::BevelCut present);

// The units of the scale by the stored "ScaleUnit".
[[nodiscard]] ScaleUnits UnitsOf(std::int64_t stored);

// Whether and how long hints show.
void ApplyHints(settings::Store& store, toolkit::HintWindow& hints);
void ShowHints(toolkit::HintWindow& hints, bool shown);

// The scale, to the meter and, where given, the cap of the sampler (bytes per scan). Nothing, for a
// choice that the list does not have, changes nothing.
void ApplyScale(const std::optional<settings::AppliedScale>& scale, TKxInterMeter& meter,
                std::int64_t* SpeedCap);

// Colours and face of the numeric line; its size follows the width of the window.
void ApplyLabelAppearance(settings::Store& store, toolkit::Label& label);

}  // namespace display
