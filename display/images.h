// The pictures of the main menu, and the program's icon as a picture.
#pragma once

#include "toolkit/menus/image_list.h"

namespace display {

// Indices into kMenuImages.
inline constexpr int kStatisticsImage = 0;
inline constexpr int kGraphImage = 1;
inline constexpr int kAdapterImage = 2;
inline constexpr int kSourcesImage = 3;
inline constexpr int kSettingsImage = 4;
inline constexpr int kHelpImage = 5;
inline constexpr int kExitImage = 6;

extern const toolkit::ImageList kMenuImages;

// The program's icon; a test compares it with the icon file.
extern const toolkit::ImageList kProgramImage;  // one image

}  // namespace display
