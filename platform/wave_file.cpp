#include "platform/wave_file.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace platform {
namespace {

constexpr std::size_t kChunkHead = 8;     // a name and a size
constexpr std::size_t kPlainFormat = 16;  // bytes that every format has
constexpr std::size_t kExtendedFormat = 18;
constexpr std::uint32_t kPcm = 1;
constexpr std::uint32_t kMostBytesASecond = 1U << 24;  // sixteen channels of 32 bits at 192 kHz

// Returns a number of `size` bytes, low byte first.
std::uint32_t Number(std::string_view bytes, std::size_t at, std::size_t size) {
  std::uint32_t value = 0;
  for (std::size_t i = size; i-- > 0;) {
    value = value << 8U | static_cast<unsigned char>(bytes[at + i]);
  }
  return value;
}

struct Chunk {
  std::string_view name;
  std::string_view data;
};

// Removes the first chunk from `rest` and returns it, or nullopt when it does not fit into `rest`.
// The padding byte of a chunk of odd size may be missing at the end.
std::optional<Chunk> TakeChunk(std::string_view& rest) {
  if (rest.size() < kChunkHead) return std::nullopt;
  const std::size_t size = Number(rest, 4, 4);
  if (size > rest.size() - kChunkHead) return std::nullopt;
  const Chunk chunk{rest.substr(0, 4), rest.substr(kChunkHead, size)};
  rest.remove_prefix(std::min(rest.size(), kChunkHead + size + size % 2));
  return chunk;
}

bool IsFormat(std::string_view format) {
  if (format.size() < kPlainFormat) return false;
  const std::uint32_t channels = Number(format, 2, 2);
  const std::uint32_t samples_a_second = Number(format, 4, 4);
  const std::uint32_t bytes_a_second = Number(format, 8, 4);
  const std::uint32_t block = Number(format, 12, 2);
  if (channels == 0 || samples_a_second == 0 || block == 0) return false;
  if (bytes_a_second < block || bytes_a_second > kMostBytesASecond) return false;
  if (Number(format, 0, 2) == kPcm) return true;
  return format.size() >= kExtendedFormat &&
         Number(format, kPlainFormat, 2) <= format.size() - kExtendedFormat;
}

}  // namespace

bool IsWaveFile(std::string_view bytes) {
  const auto riff = TakeChunk(bytes);
  if (!riff || riff->name != "RIFF" || !riff->data.starts_with("WAVE")) return false;
  std::string_view rest = riff->data.substr(4);
  bool has_format = false;
  while (const auto chunk = TakeChunk(rest)) {
    if (chunk->name == "fmt ") {
      if (!IsFormat(chunk->data)) return false;
      has_format = true;
    }
    if (chunk->name == "data") return has_format;
  }
  return false;
}

bool IsOnShare(std::string_view path) {
  const auto is_slash = [](char c) { return c == '\\' || c == '/'; };
  return path.size() > 1 && is_slash(path[0]) && is_slash(path[1]);
}

}  // namespace platform
