// Key combinations as 16-bit codes.
#pragma once

#include <cstdint>
#include <string>

#include "platform/hot_keys.h"

namespace toolkit {

// A virtual-key code in the low byte, plus kShift, kCtrl and kAlt; 0 means no shortcut.
using ShortCut = std::uint16_t;

inline constexpr ShortCut kShift = 0x2000;
inline constexpr ShortCut kCtrl = 0x4000;
inline constexpr ShortCut kAlt = 0x8000;

[[nodiscard]] platform::KeyCombination CombinationOf(ShortCut short_cut);

// Returns the text that menus show, such as "Ctrl+Alt+F". It is empty for 0 and for keys other than
// letters, digits and F1 to F24.
[[nodiscard]] std::string ShortCutText(ShortCut short_cut);

}  // namespace toolkit
