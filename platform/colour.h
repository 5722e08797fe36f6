// Colours as the system writes them.
#pragma once

#include <cstdint>

namespace platform {

// A colour as 0x00BBGGRR, or 0x80000000 plus the index of a system colour (15 is the face of
// buttons).
using Colour = std::uint32_t;

namespace colour {
inline constexpr Colour kBlack = 0x000000;
inline constexpr Colour kWhite = 0xFFFFFF;
inline constexpr Colour kGrey = 0x808080;
inline constexpr Colour kSilver = 0xC0C0C0;
inline constexpr Colour kLime = 0x00FF00;
inline constexpr Colour kRed = 0x0000FF;
inline constexpr Colour kBlue = 0xFF0000;

// Returns a system colour, which follows the user's scheme. `index` is that of GetSysColor.
constexpr Colour System(std::uint32_t index) { return 0x80000000U | index; }
inline constexpr Colour kMenu = System(4);
inline constexpr Colour kWindow = System(5);
inline constexpr Colour kWindowFrame = System(6);
inline constexpr Colour kMenuText = System(7);
inline constexpr Colour kWindowText = System(8);
inline constexpr Colour kHighlight = System(13);
inline constexpr Colour kHighlightText = System(14);
inline constexpr Colour kButtonFace = System(15);
inline constexpr Colour kButtonShadow = System(16);
inline constexpr Colour kGrayText = System(17);
inline constexpr Colour kButtonText = System(18);
inline constexpr Colour kButtonHighlight = System(20);
inline constexpr Colour kHotLight = System(26);  // of links
}  // namespace colour

// Returns whether `c` names a system colour rather than a fixed one.
constexpr bool IsSystemColour(Colour c) { return (c & 0x80000000U) != 0; }

// Returns how bright a fixed colour is to the eye, from 0 to 255.
constexpr int Brightness(Colour c) {
  const auto part = [c](int shift) { return static_cast<int>(c >> shift & 0xFFU); };
  return (30 * part(0) + 59 * part(8) + 11 * part(16)) / 100;
}

// Returns whether letters of one fixed colour can be read on another: whether their brightness is
// at least 96 of 255 apart.
constexpr bool IsReadable(Colour letters, Colour background) {
  constexpr int kApart = 96;
  const int apart = Brightness(letters) - Brightness(background);
  return apart >= kApart || apart <= -kApart;
}

}  // namespace platform
