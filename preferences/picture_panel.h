// Shows the four activity pictures of the tray icon; a click on it chooses others.
#pragma once

#include <string>
#include <string_view>

#include "display/tray/pictures.h"
#include "toolkit/controls/buttons.h"

namespace preferences {

class PicturePanel final : public toolkit::ButtonControl {
 public:
  PicturePanel(toolkit::Control& parent, std::string_view name);

  // Shows the pictures of a file, or else of `fallback`, or else none.
  void Load(const std::string& path, const std::string& fallback);

  // The size of the whole panel in design pixels.
  static constexpr int kWidth = 94;
  static constexpr int kHeight = 26;

 protected:
  void Paint(platform::Canvas& canvas) override;

 private:
  display::TrayPictures pictures_;
};

}  // namespace preferences
