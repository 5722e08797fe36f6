#include "engine/error_log.h"

#include "platform/text.h"

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

// Lines end with CR LF, LF or CR, so that a log which was edited by hand keeps its lines.
std::vector<std::string> LinesOf(std::string_view text) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
    lines.emplace_back(text.substr(0, end));
    text.remove_prefix(end);
    text.remove_prefix(text.starts_with(kLineEnd) ? kLineEnd.size() : text.empty() ? 0 : 1);
  }
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

void ErrorLog::Append(std::string_view message) {
  const std::string path = files_.ProgramFolder() + "err.log";
  if (files_.Exists(path)) {
    const auto text = files_.Load(path, kErrorLogLimit);
    if (!text) return;  // too large, or not ours to read: what is in it must not be lost
    CommonMemo_ = LinesOf(*text);
  }
  CommonMemo_.push_back(OnOneLine(message));
  const std::string text = TextOf(CommonMemo_);
  if (text.size() > kErrorLogLimit) {
    CommonMemo_.pop_back();
    return;
  }
  files_.Save(path, text);
}

}  // namespace engine
