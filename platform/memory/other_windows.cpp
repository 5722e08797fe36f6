#include "platform/memory/other_windows.h"

#include "platform/text.h"

namespace platform::memory {

std::vector<WindowId> OtherWindows::TopLevel() {
  std::vector<WindowId> ids;
  for (const WidgetState* own : windowing_.TopWindows()) {
    ids.push_back(reinterpret_cast<WindowId>(own));
  }
  for (const auto& [id, window] : windows_) ids.push_back(id);
  return ids;
}

WindowTitle OtherWindows::Title(WindowId window, std::size_t characters) {
  const auto other = windows_.find(window);
  const WidgetState* own = windowing_.OwnTopWindow(window);
  if (other == windows_.end() && own == nullptr) return {};
  const std::string& title = own == nullptr ? other->second.title : own->text;
  WindowTitle read;
  read.text = CutCharacters(title, characters);
  read.longer = read.text.size() < title.size();
  return read;
}

TitleOutcome OtherWindows::SetTitle(WindowId window, std::string_view title, int patience_ms) {
  ++sets;
  if (WidgetState* own = windowing_.OwnTopWindow(window)) {
    own->text = title;
    return TitleOutcome::kSet;
  }
  const auto found = windows_.find(window);
  if (found == windows_.end() || found->second.refuses) return TitleOutcome::kRefused;
  Window& other = found->second;
  if (other.hangs) {
    clock_.Advance(patience_ms);
    return TitleOutcome::kNoAnswer;
  }
  other.title = title;
  ++other.title_changes;
  return TitleOutcome::kSet;
}

WindowId OtherWindows::Add(std::string_view title) {
  windows_[++last_id_].title = title;
  return last_id_;
}

}  // namespace platform::memory
