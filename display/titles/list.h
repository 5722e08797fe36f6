// The user's list of window titles: which windows the numeric line is posted into.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"
#include "platform/locale.h"

namespace display {

using TitleLines = std::vector<std::string>;

// The most lines that are shown and used, so that lists and windows stay quick; a file may have
// more.
inline constexpr std::size_t kMostTitles = 10000;

// The content of the list's file, "WindowTitles.tit" beside the program: one title in each line,
// with empty lines kept.
struct TitleFile {
  bool readable = true;  // a missing file is an empty one
  TitleLines lines;      // at most kMostTitles
  std::string beyond;    // the rest of the file's text, neither shown nor used
};

// Reads the file. Its text is UTF-8 with or without a byte order mark, or else in the system's code
// page, with any line ends. A file of more than 16 MiB counts as not readable.
[[nodiscard]] TitleFile LoadTitleFile(platform::Files& files, platform::Locale& locale);

// Replaces the file with UTF-8 text without a byte order mark, each line ended by CR LF. Returns
// false when the file cannot be written. A file that was not readable is never written.
bool SaveTitleFile(platform::Files& files, const TitleFile& file);

// The list in use, made ready for finding.
class TitleList {
 public:
  explicit TitleList(platform::Locale& locale) : locale_(locale) {}

  void SetLines(const TitleLines& lines);

  // Returns whether one of the lines occurs anywhere in a title, whatever the case of the letters.
  // An empty line occurs in every title.
  [[nodiscard]] bool OccursIn(std::string_view title) const;

 private:
  platform::Locale& locale_;
  TitleLines lower_;  // in small letters
};

}  // namespace display
