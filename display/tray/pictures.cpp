#include "display/tray/pictures.h"

#include <algorithm>

namespace display {
namespace {

constexpr std::size_t kLargestFile = 1U << 20;  // bytes
constexpr int kPictures = 4;

std::optional<Picture> LoadPicture(platform::Files& files, const std::string& path) {
  const std::optional<std::string> bytes = files.Load(path, kLargestFile);
  if (!bytes) return {};
  std::optional<Picture> picture = DecodeBitmap(*bytes);
  if (!picture) return {};
  const int side = picture->size.height;
  const int missing = std::max(1, side / 16);
  if (picture->size.width < kPictures * side - missing) return {};
  return picture;
}

}  // namespace

TrayActivity ActivityOf(std::int64_t dl, std::int64_t ul) {
  if (dl > 0 && ul > 0) return TrayActivity::kBoth;
  if (dl > 0) return TrayActivity::kDownload;
  return ul > 0 ? TrayActivity::kUpload : TrayActivity::kIdle;
}

bool TrayPictures::Load(platform::Files& files, const std::string& path,
                        const std::string& fallback) {
  std::optional<Picture> loaded = LoadPicture(files, path);
  if (!loaded && path != fallback) loaded = LoadPicture(files, fallback);
  if (!loaded) return false;
  picture_ = std::move(loaded);
  return true;
}

platform::Colour TrayPictures::SeeThrough() const {
  return picture_->At({0, picture_->size.height - 1});
}

void TrayPictures::Draw(TrayActivity activity, platform::Canvas& canvas,
                        platform::Colour behind) const {
  const int side = picture_->size.height;
  const platform::Size target = canvas.Extent();
  const int left = static_cast<int>(activity) * side;
  for (int y = 0; y < target.height; ++y) {
    for (int x = 0; x < target.width; ++x) {
      const int column = left + x * side / target.width;
      const platform::Colour pixel = column < picture_->size.width
                                         ? picture_->At({column, y * side / target.height})
                                         : SeeThrough();
      canvas.Fill({x, y, 1, 1}, pixel == SeeThrough() ? behind : pixel);
    }
  }
}

}  // namespace display
