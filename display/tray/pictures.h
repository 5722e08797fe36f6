// The four activity pictures of the tray icon.
#pragma once

#include <optional>
#include <string>

#include "display/tray/bitmap_file.h"
#include "platform/canvas.h"
#include "platform/files.h"

namespace display {

// The number of the picture that shows a scan.
enum class TrayActivity { kIdle = 0, kUpload = 1, kDownload = 2, kBoth = 3 };

[[nodiscard]] TrayActivity ActivityOf(std::int64_t dl, std::int64_t ul);

// A bitmap with four square pictures side by side, each as wide as the bitmap is high, the last one
// perhaps a sixteenth less; 63 x 16 pixels is the usual size. The colour of the bitmap's lower left
// corner is see-through.
class TrayPictures {
 public:
  // Loads the file at `path`, or the one at `fallback` when the first is missing or no such bitmap.
  // When neither can be loaded, returns false and keeps the present pictures.
  bool Load(platform::Files& files, const std::string& path, const std::string& fallback);

  [[nodiscard]] bool Loaded() const { return picture_.has_value(); }
  [[nodiscard]] platform::Colour SeeThrough() const;

  // Draws a picture over the whole canvas, enlarged or reduced to its size. See-through pixels get
  // the colour `behind`.
  void Draw(TrayActivity activity, platform::Canvas& canvas, platform::Colour behind) const;

 private:
  std::optional<Picture> picture_;
};

}  // namespace display
