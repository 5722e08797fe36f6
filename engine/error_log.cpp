#include "engine/error_log.h"

#include <utility>

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
  const std::size_t waiting_before = waiting_.size();
  CommonMemo_.push_back(OnOneLine(message));
  waiting_ += CommonMemo_.back();
  waiting_ += kLineEnd;
  if (Write()) {
    waiting_.clear();
  } else if (waiting_.size() > kErrorLogWaitingLimit) {
    CommonMemo_.pop_back();
    waiting_.resize(waiting_before);
  }
}

bool ErrorLog::Write() {
  const auto size = files_.Size(Path());
  if (!size) return Rewrite();
  if (*size + waiting_.size() > kErrorLogLimit) return PutAside() && Rewrite();
  return *size == size_ ? AppendWaiting() : TakeOver() && Rewrite();
}

bool ErrorLog::AppendWaiting() {
  if (!files_.Append(Path(), waiting_)) return false;
  size_ += waiting_.size();
  return true;
}

bool ErrorLog::PutAside() {
  if (!files_.Rename(Path(), files_.ProgramFolder() + "err.old.log")) return false;
  CommonMemo_ = LinesOf(waiting_);
  return true;
}

bool ErrorLog::TakeOver() {
  const auto bytes = files_.Load(Path(), kErrorLogLimit);
  if (!bytes) return false;
  CommonMemo_ = LinesOf(settings::DecodeTextFile(*bytes, locale_));
  for (std::string& line : LinesOf(waiting_)) CommonMemo_.push_back(std::move(line));
  return true;
}

bool ErrorLog::Rewrite() {
  const std::string text = TextOf(CommonMemo_);
  if (!files_.Save(Path(), text)) return false;
  size_ = text.size();
  return true;
}

}  // namespace engine
