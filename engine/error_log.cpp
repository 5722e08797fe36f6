#include "engine/error_log.h"

#include "platform/text.h"
#include "settings/text_file.h"

namespace engine {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

std::string OnOneLine(std::string_view message) {
  std::string line;
  for (std::size_t at = 0; at < message.size(); ++at) {
    const char c = message[at];
    if (c == '\r' && message.substr(at).starts_with(kLineEnd)) continue;  // one break, one blank
    line += c == '\r' || c == '\n' ? ' ' : c;
  }
  return platform::ValidUtf8(line);
}

std::vector<std::string> LinesOf(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) lines.emplace_back(platform::TakeLine(text));
  return lines;
}

std::string TextOf(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) {
    text += line;
    text += kLineEnd;
  }
  return text;
}

}  // namespace

std::string ErrorLog::Path() const { return files_.ProgramFolder() + "err.log"; }

void ErrorLog::Append(std::string_view message) {
  const std::string line = OnOneLine(message);
  const auto size = files_.Size(Path());
  const bool full = size && *size + line.size() + kLineEnd.size() > kErrorLogLimit;
  if (full) {
    if (!files_.Rename(Path(), files_.ProgramFolder() + "err.old.log")) return;
    CommonMemo_.clear();
  }
  const bool there = size && !full;
  if (there && *size == size_) {
    AppendLine(line);
  } else if (!there || TakeOver()) {
    Rewrite(line);
  }
}

void ErrorLog::AppendLine(const std::string& line) {
  CommonMemo_.push_back(line);
  const std::string bytes = TextOf({line});
  if (files_.Append(Path(), bytes)) size_ += bytes.size();
}

// False for a file that cannot be read: what is in it must not be lost.
bool ErrorLog::TakeOver() {
  const auto bytes = files_.Load(Path(), kErrorLogLimit);
  if (bytes) CommonMemo_ = LinesOf(settings::DecodeTextFile(*bytes, locale_));
  return bytes.has_value();
}

// What could not be written stays in the memo as far as the log may grow; the first messages tell
// the cause.
void ErrorLog::Rewrite(const std::string& line) {
  CommonMemo_.push_back(line);
  const std::string text = TextOf(CommonMemo_);
  if (files_.Save(Path(), text)) {
    size_ = text.size();
  } else if (text.size() > kErrorLogLimit) {
    CommonMemo_.pop_back();
  }
}

}  // namespace engine
