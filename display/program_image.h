// The program's icon as a picture; a test compares it with the icon file.
#pragma once

#include "toolkit/menus/image_list.h"

namespace display {

extern const toolkit::ImageList kProgramImage;  // one image

}  // namespace display
