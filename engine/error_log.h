// The one error channel: "err.log" beside the program, one message a line.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"

namespace engine {

// The log is rewritten whole for each message, and something that fails every second would make it
// grow for ever. At this size, about a day of such failures, it is full: what is in it stays, and
// further messages are dropped, since the first ones tell the cause.
inline constexpr std::size_t kErrorLogLimit = 4U << 20;  // bytes

class ErrorLog {
 public:
  // Both outlive the log. `CommonMemo` holds the lines as last read or written.
  ErrorLog(platform::Files& files, std::vector<std::string>& CommonMemo)
      : files_(files), CommonMemo_(CommonMemo) {}

  // Appends a message as one line; line breaks in it become blanks. The file is UTF-8 without a
  // byte order mark, lines end with CR LF. A file that is not there is made with the lines that
  // `CommonMemo` has. Nothing happens when the file can be neither read nor written.
  void Append(std::string_view message);

 private:
  platform::Files& files_;
  std::vector<std::string>& CommonMemo_;
};

}  // namespace engine
