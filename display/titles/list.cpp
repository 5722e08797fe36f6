#include "display/titles/list.h"

#include <algorithm>
#include <optional>

#include "settings/text_file.h"

namespace display {
namespace {

constexpr std::size_t kLargestFile = std::size_t{16} << 20U;

std::string PathOf(platform::Files& files) { return files.ProgramFolder() + "WindowTitles.tit"; }

// A line end at the end of the text begins no further line.
TitleLines Split(std::string_view text) {
  TitleLines lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
    lines.emplace_back(text.substr(0, end));
    const bool pair = text.substr(end).starts_with("\r\n");
    text.remove_prefix(std::min(end + (pair ? 2 : 1), text.size()));
  }
  return lines;
}

}  // namespace

TitleLines LoadTitleLines(platform::Files& files, platform::Locale& locale) {
  const std::optional<std::string> bytes = files.Load(PathOf(files), kLargestFile);
  return bytes ? Split(settings::DecodeTextFile(*bytes, locale)) : TitleLines();
}

bool SaveTitleLines(platform::Files& files, const TitleLines& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return files.Save(PathOf(files), text);
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
