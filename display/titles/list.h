// The user's list of window titles: which windows the numeric line is posted into.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"
#include "platform/locale.h"

namespace display {

using TitleLines = std::vector<std::string>;

// Lists and windows stay quick with so many lines; a file may have more.
inline constexpr std::size_t kMostTitles = 10000;

// What is in the list's file, "WindowTitles.tit" beside the program, one title in each line; empty
// lines too.
struct TitleFile {
  bool readable = true;  // a missing file is an empty one
  TitleLines lines;      // at most kMostTitles
  std::string beyond;    // the text behind them, neither shown nor used
};

// UTF-8 with or without a byte order mark, or else the system's code page; any line ends. A file of
// more than 16 MiB cannot be read.
[[nodiscard]] TitleFile LoadTitleFile(platform::Files& files, platform::Locale& locale);

// Replaces the file: UTF-8 without a mark, each line ended by CR LF. False when it cannot be
// written; one that could not be read never is.
bool SaveTitleFile(platform::Files& files, const TitleFile& file);

// The list in use, made ready for finding.
class TitleList {
 public:
  explicit TitleList(platform::Locale& locale) : locale_(locale) {}

  void SetLines(const TitleLines& lines);

  // Whether one of the lines occurs anywhere in a title, capital letters or not. An empty line
  // occurs in every title.
  [[nodiscard]] bool OccursIn(std::string_view title) const;

 private:
  platform::Locale& locale_;
  TitleLines lower_;  // in small letters
};

}  // namespace display
