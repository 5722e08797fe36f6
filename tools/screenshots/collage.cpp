#include "tools/screenshots/collage.h"

namespace desktop {
namespace {

platform::Colour At(const Picture& picture, int x, int y) {
  return picture.pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(picture.width) +
                        static_cast<std::size_t>(x)];
}

}  // namespace

Picture Beside(const std::vector<Picture>& pictures) {
  Picture wide{0, pictures.at(0).height, {}};
  for (const Picture& picture : pictures) wide.width += picture.width;
  for (int y = 0; y < wide.height; ++y) {
    for (const Picture& picture : pictures) {
      for (int x = 0; x < picture.width; ++x) wide.pixels.push_back(At(picture, x, y));
    }
  }
  return wide;
}

Picture Enlarged(const Picture& picture, int factor) {
  Picture large{picture.width * factor, picture.height * factor, {}};
  for (int y = 0; y < large.height; ++y) {
    for (int x = 0; x < large.width; ++x) {
      large.pixels.push_back(At(picture, x / factor, y / factor));
    }
  }
  return large;
}

}  // namespace desktop
