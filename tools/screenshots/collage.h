// Pictures made of pictures.
#pragma once

#include <vector>

#include "tests/desktop/driver/screen.h"

namespace desktop {

// Returns pictures of the same height side by side.
[[nodiscard]] Picture Beside(const std::vector<Picture>& pictures);
// Returns a picture in which each pixel is a block of `factor` by `factor`.
[[nodiscard]] Picture Enlarged(const Picture& picture, int factor);

}  // namespace desktop
