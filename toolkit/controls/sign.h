// The picture beside the text of a dialog.
#pragma once

#include "toolkit/controls/panel.h"
#include "toolkit/menus/image_list.h"

namespace toolkit {

inline constexpr int kSignSize = 32;  // design pixels, both ways

class Sign : public Panel {
 public:
  enum class Picture { kQuestion, kLock };

  // Makes a sign with one of the pictures; its bounds must have sides of kSignSize.
  Sign(Control& parent, std::string_view name, Picture picture)
      : Panel(parent, name), picture_(picture) {}
  // Makes a sign with the first image of a list, which outlives the sign. The image stands in the
  // middle of the bounds with sides of `side` design pixels.
  Sign(Control& parent, std::string_view name, const ImageList& images, int side = kSignSize)
      : Panel(parent, name), images_(&images), side_(side) {}

 private:
  void Paint(platform::Canvas& canvas) override;

  Picture picture_ = Picture::kQuestion;
  const ImageList* images_ = nullptr;  // not owned; null for one of the pictures
  int side_ = kSignSize;
};

}  // namespace toolkit
