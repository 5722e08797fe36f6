#include "display/titles/list.h"

#include <algorithm>
#include <optional>

#include "platform/text.h"
#include "settings/text_file.h"

namespace display {
namespace {

constexpr std::size_t kLargestFile = std::size_t{16} << 20U;

std::string PathOf(platform::Files& files) { return files.ProgramFolder() + "WindowTitles.tit"; }

TitleFile Split(std::string_view text) {
  TitleFile file;
  while (!text.empty() && file.lines.size() < kMostTitles) {
    file.lines.emplace_back(platform::TakeLine(text));
  }
  file.beyond = text;
  return file;
}

}  // namespace

TitleFile LoadTitleFile(platform::Files& files, platform::Locale& locale) {
  const std::string path = PathOf(files);
  const std::optional<std::string> bytes = files.Load(path, kLargestFile);
  if (bytes) return Split(settings::DecodeTextFile(*bytes, locale));
  return {.readable = files.Missing(path), .lines = {}, .beyond = {}};
}

bool SaveTitleFile(platform::Files& files, const TitleFile& file) {
  if (!file.readable) return false;
  std::string text;
  for (const std::string& line : file.lines) text += line + "\r\n";
  return files.Save(PathOf(files), text + file.beyond);
}

void TitleList::SetLines(const TitleLines& lines) {
  lower_.clear();
  for (const std::string& line : lines) lower_.push_back(locale_.Lower(line));
}

bool TitleList::OccursIn(std::string_view title) const {
  if (lower_.empty()) return false;
  const std::string lower = locale_.Lower(title);
  return std::any_of(lower_.begin(), lower_.end(), [&lower](const std::string& line) {
    return lower.find(line) != std::string::npos;
  });
}

}  // namespace display
