// Takes the stored options of the display over into the parts that show them.
#pragma once

#include "display/graph/kxintermeter.h"
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

// The stored scale, to the meter and the cap of the sampler (bytes per scan). A stored choice that
// the list does not have changes nothing.
void ApplyScale(settings::Store& store, TKxInterMeter& meter, std::int64_t& SpeedCap);

// Colours and face of the numeric line; its size follows the width of the window.
void ApplyLabelAppearance(settings::Store& store, toolkit::Label& label);

}  // namespace display
