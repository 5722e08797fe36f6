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

// As much as this is kept of what cannot be written, some twenty minutes of such failures. Beyond
// it the later messages are lost: the first ones tell the cause.
inline constexpr std::size_t kErrorLogWaitingLimit = 64U << 10;  // bytes

class ErrorLog {
 public:
  // All arguments outlive the log. `CommonMemo` holds the lines as last read or written, and behind
  // them those that could not be written yet.
  ErrorLog(platform::Files& files, platform::Locale& locale, std::vector<std::string>& CommonMemo)
      : files_(files), locale_(locale), CommonMemo_(CommonMemo) {}

  // Appends a message as one line; line breaks in it become blanks. The file is UTF-8 without a
  // byte order mark, lines end with CR LF; one that an editor left in another encoding is brought
  // into that form. A file that is not there is made with the lines that `CommonMemo` has. When the
  // file cannot be read, written or, being full, put aside, it stays as it is; the message goes
  // into it with the next one.
  void Append(std::string_view message);

 private:
  [[nodiscard]] std::string Path() const;
  // Bring what waits into the file. Each returns false when the system refuses.
  [[nodiscard]] bool Write();
  [[nodiscard]] bool AppendWaiting();
  // Lets a full file become the old one; `CommonMemo` keeps what waits. Returns false when the
  // system refuses.
  [[nodiscard]] bool PutAside();
  // Takes the file's lines into `CommonMemo`, in front of what waits. Returns false for a file that
  // cannot be read, whose lines must not be lost.
  [[nodiscard]] bool TakeOver();
  [[nodiscard]] bool Rewrite();

  platform::Files& files_;
  platform::Locale& locale_;
  std::vector<std::string>& CommonMemo_;
  std::string waiting_;  // what the file does not have yet: the last lines of `CommonMemo`
  // The size that the file had when this log last wrote it. As long as it has, what waits is
  // written behind it without reading it anew.
  std::uint64_t size_ = ~std::uint64_t{0};
};

}  // namespace engine
