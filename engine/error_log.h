// The one error channel: "err.log" beside the program, one message a line.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"
#include "platform/locale.h"

namespace engine {

// Something that fails every second would make the log grow for ever. Before it gets larger than
// this, about a day of such failures, it becomes "err.old.log", in the place of the one before, and
// a new one begins.
inline constexpr std::size_t kErrorLogLimit = 4U << 20;  // bytes

class ErrorLog {
 public:
  // All outlive the log. `CommonMemo` holds the lines as last read or written.
  ErrorLog(platform::Files& files, platform::Locale& locale, std::vector<std::string>& CommonMemo)
      : files_(files), locale_(locale), CommonMemo_(CommonMemo) {}

  // Appends a message as one line; line breaks in it become blanks. The file is UTF-8 without a
  // byte order mark, lines end with CR LF; one that an editor left in another encoding is brought
  // into that form. A file that is not there is made with the lines that `CommonMemo` has. Nothing
  // happens when the file can be neither read nor written.
  void Append(std::string_view message);

 private:
  [[nodiscard]] std::string Path() const;
  void AppendLine(const std::string& line);
  [[nodiscard]] bool TakeOver();
  void Rewrite(const std::string& line);

  platform::Files& files_;
  platform::Locale& locale_;
  std::vector<std::string>& CommonMemo_;
  // The size that the file had when this log last wrote it. As long as it has, the file is what
  // `CommonMemo` holds, and a line is written behind it without reading it anew.
  std::uint64_t size_ = ~std::uint64_t{0};
};

}  // namespace engine
