// The four activity pictures of the tray icon, and the bitmap files that they come from.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/canvas.h"
#include "platform/colour.h"
#include "platform/files.h"
#include "platform/geometry.h"

namespace display {

struct Picture {
  platform::Size size;
  std::vector<platform::Colour> pixels;  // row by row from the top, 0x00BBGGRR

  [[nodiscard]] platform::Colour At(platform::Point at) const {
    return pixels[static_cast<std::size_t>(at.y) * static_cast<std::size_t>(size.width) +
                  static_cast<std::size_t>(at.x)];
  }
};

// Returns the picture in the bytes of a BMP file, or nullopt for any other bytes. The file must not
// be compressed, must have 1, 4, 8, 16, 24 or 32 bits a pixel and sides of 1 to 1024 pixels; its
// header says where the colours are.
[[nodiscard]] std::optional<Picture> DecodeBitmap(std::string_view bytes);

// The number of the picture that shows a scan.
enum class TrayActivity { kIdle = 0, kUpload = 1, kDownload = 2, kBoth = 3 };

[[nodiscard]] TrayActivity ActivityOf(std::int64_t dl, std::int64_t ul);

// A bitmap with four square pictures side by side, each as wide as the bitmap is high, the last one
// perhaps a sixteenth less; 63 x 16 pixels is the usual size. The colour of the bitmap's lower left
// corner is see-through.
class TrayPictures {
 public:
  // Loads the file at `path`, or the one at `fallback` when the first is missing or no such bitmap.
  // When neither can be loaded, keeps the present pictures.
  void Load(platform::Files& files, const std::string& path, const std::string& fallback);

  [[nodiscard]] bool Loaded() const { return picture_.has_value(); }
  [[nodiscard]] platform::Colour SeeThrough() const;

  // Draws a picture over the whole canvas, enlarged or reduced to its size. See-through pixels get
  // the colour `behind`.
  void Draw(TrayActivity activity, platform::Canvas& canvas, platform::Colour behind) const;

 private:
  std::optional<Picture> picture_;
};

}  // namespace display
