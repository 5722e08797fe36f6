#include "platform/wave_file.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <tuple>

namespace {

std::string Number(std::uint32_t value, int size) {
  std::string bytes;
  for (int i = 0; i < size; ++i) bytes += static_cast<char>(value >> (8 * i));
  return bytes;
}

std::string Chunk(const std::string& name, const std::string& data) {
  return name + Number(static_cast<std::uint32_t>(data.size()), 4) + data;
}

struct Format {
  std::uint32_t tag = 1;
  std::uint32_t channels = 1;
  std::uint32_t samples_a_second = 8000;
  std::uint32_t bytes_a_second = 16000;
  std::uint32_t block = 2;
  std::string more = {};
};

std::string FormatChunk(const Format& f = {}) {
  return Chunk("fmt ", Number(f.tag, 2) + Number(f.channels, 2) + Number(f.samples_a_second, 4) +
                           Number(f.bytes_a_second, 4) + Number(f.block, 2) + Number(16, 2) +
                           f.more);
}

std::string Wave(const std::string& chunks) { return Chunk("RIFF", "WAVE" + chunks); }

TEST(WaveFile, IsWhatAPlayerCanTrust) {
  const std::string data = Chunk("data", "abcd");
  const std::string good = Wave(FormatChunk() + data);
  using Row = std::tuple<const char*, std::string, bool>;
  const Row rows[] = {
      {"plain", good, true},
      {"bytes behind it", good + "more", true},
      {"other chunks in between, one of them odd",
       Wave(Chunk("LIST", "abc") + std::string(1, '\0') + FormatChunk() + data), true},
      {"a sound of no length", Wave(FormatChunk() + Chunk("data", "")), true},
      {"another format", Wave(FormatChunk({.tag = 2, .more = Number(2, 2) + "xy"}) + data), true},
      {"empty", "", false},
      {"its head alone", good.substr(0, 12), false},
      {"cut in the sound", good.substr(0, good.size() - 1), false},
      {"cut in the format", good.substr(0, 30), false},
      {"another file", "RIFX" + good.substr(4), false},
      {"another kind", good.substr(0, 8) + "AVI " + good.substr(12), false},
      {"a sound that leaves the file", Wave(FormatChunk() + "data" + Number(5, 4) + "abcd"), false},
      {"a size of all ones", Wave("fmt " + Number(0xFFFFFFFF, 4) + std::string(30, 'x')), false},
      {"no format", Wave(data), false},
      {"the format behind the sound", Wave(data + FormatChunk()), false},
      {"no sound", Wave(FormatChunk()), false},
      {"a short format", Wave(Chunk("fmt ", std::string(14, '\1')) + data), false},
      {"no channels", Wave(FormatChunk({.channels = 0}) + data), false},
      {"no samples", Wave(FormatChunk({.samples_a_second = 0}) + data), false},
      {"no bytes a second", Wave(FormatChunk({.bytes_a_second = 0}) + data), false},
      {"more of them than any", Wave(FormatChunk({.bytes_a_second = 0xFFFFFFFF}) + data), false},
      {"no block", Wave(FormatChunk({.block = 0}) + data), false},
      {"a format that leaves its chunk",
       Wave(FormatChunk({.tag = 2, .more = Number(3, 2) + "xy"}) + data), false},
  };
  for (const auto& [why, bytes, is_one] : rows) {
    EXPECT_EQ(platform::IsWaveFile(bytes), is_one) << why;
  }
}

TEST(WaveFile, IsOnAShareWhicheverSlashesItHas) {
  for (const char* path : {"\\\\nas\\a.wav", "//nas/a.wav", "\\/"}) {
    EXPECT_TRUE(platform::IsOnShare(path)) << path;
  }
  for (const char* path : {"", "\\", "\\a.wav", "C:\\\\a.wav", "a\\\\b.wav"}) {
    EXPECT_FALSE(platform::IsOnShare(path)) << path;
  }
}

}  // namespace
