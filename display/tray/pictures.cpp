#include "display/tray/pictures.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstdlib>

namespace display {
namespace {

constexpr std::size_t kFileHeader = 14;
constexpr std::size_t kInfoHeader = 40;
constexpr std::int32_t kLargestSide = 1024;

// Reads little-endian numbers in a file; behind its end every number is 0.
class Bytes {
 public:
  explicit Bytes(std::string_view bytes) : bytes_(bytes) {}
  [[nodiscard]] std::uint32_t Byte(std::size_t at) const {
    return at < bytes_.size() ? static_cast<std::uint8_t>(bytes_[at]) : 0U;
  }
  [[nodiscard]] std::uint32_t Word(std::size_t at) const { return Byte(at) | Byte(at + 1) << 8U; }
  [[nodiscard]] std::uint32_t Dword(std::size_t at) const { return Word(at) | Word(at + 2) << 16U; }
  // The file has the bytes blue, green, red; a Colour has blue in its high byte.
  [[nodiscard]] platform::Colour Colour(std::size_t at) const {
    return Byte(at) << 16U | Byte(at + 1) << 8U | Byte(at + 2);
  }
  [[nodiscard]] std::size_t Size() const { return bytes_.size(); }

 private:
  std::string_view bytes_;
};

// The bits of each colour in a pixel that is no index of a palette.
struct Masks {
  std::uint32_t red;
  std::uint32_t green;
  std::uint32_t blue;
};

// Returns nullopt for a compressed or unknown kind of file. The file's own masks are at the same
// place in every version of the header.
std::optional<Masks> ReadMasks(const Bytes& file, std::uint32_t bits) {
  constexpr std::uint32_t kUsual = 0;
  constexpr std::uint32_t kOwn = 3;
  const std::uint32_t compression = file.Dword(30);
  if (compression == kOwn && (bits == 16 || bits == 32)) {
    return Masks{file.Dword(54), file.Dword(58), file.Dword(62)};
  }
  if (compression != kUsual) return {};
  return bits == 16 ? Masks{0x7C00, 0x3E0, 0x1F} : Masks{0xFF0000, 0xFF00, 0xFF};
}

// Returns one colour of a pixel, scaled to 0 to 255.
std::uint32_t Channel(std::uint32_t pixel, std::uint32_t mask) {
  if (mask == 0) return 0;
  const int shift = std::countr_zero(mask);
  const std::uint64_t most = mask >> shift;
  return static_cast<std::uint32_t>((((pixel & mask) >> shift) * std::uint64_t{255} + most / 2) /
                                    most);
}

struct Layout {
  std::int32_t width;
  std::int32_t height;
  bool bottom_up;
  std::uint32_t bits;  // of a pixel
  Masks masks;
  std::size_t palette;
  std::size_t pixels;
  std::size_t stride;  // bytes of a row, a multiple of four
};

std::optional<Layout> ReadLayout(const Bytes& file) {
  if (file.Word(0) != 0x4D42U || file.Size() < kFileHeader + kInfoHeader) return {};  // "BM"
  const std::uint32_t header = file.Dword(kFileHeader);
  const auto height = static_cast<std::int32_t>(file.Dword(22));
  if (header < kInfoHeader) return {};
  Layout layout{};
  layout.width = static_cast<std::int32_t>(file.Dword(18));
  layout.bottom_up = height > 0;
  if (height < -kLargestSide || height > kLargestSide || height == 0) return {};
  layout.height = std::abs(height);
  if (layout.width < 1 || layout.width > kLargestSide) return {};
  layout.bits = file.Word(28);
  if (layout.bits != 1 && layout.bits != 4 && layout.bits != 8 && layout.bits != 16 &&
      layout.bits != 24 && layout.bits != 32) {
    return {};
  }
  const std::optional<Masks> masks = ReadMasks(file, layout.bits);
  if (!masks) return {};
  layout.masks = *masks;
  layout.palette = kFileHeader + header;
  layout.pixels = file.Dword(10);
  layout.stride = (static_cast<std::size_t>(layout.width) * layout.bits + 31) / 32 * 4;
  if (file.Size() < layout.pixels + layout.stride * static_cast<std::size_t>(layout.height)) {
    return {};
  }
  return layout;
}

platform::Colour PixelOf(const Bytes& file, const Layout& layout, std::size_t row, std::size_t x) {
  if (layout.bits > 8) {
    const std::uint32_t pixel = file.Dword(row + x * (layout.bits / 8));
    const Masks& masks = layout.masks;
    return Channel(pixel, masks.blue) << 16U | Channel(pixel, masks.green) << 8U |
           Channel(pixel, masks.red);
  }
  const std::size_t per_byte = 8 / layout.bits;
  const std::uint32_t byte = file.Byte(row + x / per_byte);
  const std::size_t shift = (per_byte - 1 - x % per_byte) * layout.bits;
  const std::uint32_t index = byte >> shift & ((1U << layout.bits) - 1);
  return file.Colour(layout.palette + std::size_t{index} * 4);
}

}  // namespace

std::optional<Picture> DecodeBitmap(std::string_view bytes) {
  const Bytes file(bytes);
  const std::optional<Layout> layout = ReadLayout(file);
  if (!layout) return {};
  Picture picture{{layout->width, layout->height}, {}};
  for (std::int32_t y = 0; y < layout->height; ++y) {
    const std::int32_t stored_row = layout->bottom_up ? layout->height - 1 - y : y;
    const std::size_t row = layout->pixels + layout->stride * static_cast<std::size_t>(stored_row);
    for (std::int32_t x = 0; x < layout->width; ++x) {
      picture.pixels.push_back(PixelOf(file, *layout, row, static_cast<std::size_t>(x)));
    }
  }
  return picture;
}

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

void TrayPictures::Load(platform::Files& files, const std::string& path,
                        const std::string& fallback) {
  std::optional<Picture> loaded = LoadPicture(files, path);
  if (!loaded && path != fallback) loaded = LoadPicture(files, fallback);
  if (loaded) picture_ = std::move(loaded);
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
