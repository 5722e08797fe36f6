#include "platform/memory/other_windows.h"

#include <algorithm>
#include <stdexcept>

#include "platform/text.h"

namespace platform::memory {

std::vector<WindowId> OtherWindows::TopLevel() {
  std::vector<WindowId> ids;
  for (const WidgetState* own : windowing_.TopWindows()) {
    ids.push_back(reinterpret_cast<WindowId>(own));
  }
  for (const Window& window : windows_) ids.push_back(window.id);
  return ids;
}

WindowTitle OtherWindows::Title(WindowId window, std::size_t characters) {
  const Window* other = Lookup(window);
  const WidgetState* own = windowing_.OwnTopWindow(window);
  if (other == nullptr && own == nullptr) return {};
  const std::string& title = other != nullptr ? other->title : own->text;
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
  Window* other = Lookup(window);
  if (other == nullptr || other->refuses) return TitleOutcome::kRefused;
  if (other->hangs) {
    clock_.Advance(patience_ms);
    return TitleOutcome::kNoAnswer;
  }
  other->title = title;
  ++other->title_changes;
  return TitleOutcome::kSet;
}

WindowId OtherWindows::Add(std::string_view title) {
  Window window;
  window.id = ++last_id_;
  window.title = title;
  windows_.push_back(window);
  return window.id;
}

void OtherWindows::Remove(WindowId window) {
  std::erase_if(windows_, [window](const Window& other) { return other.id == window; });
}

OtherWindows::Window& OtherWindows::Find(WindowId window) {
  if (Window* found = Lookup(window)) return *found;
  throw std::out_of_range("no such window");
}

OtherWindows::Window* OtherWindows::Lookup(WindowId window) {
  const auto found = std::find_if(windows_.begin(), windows_.end(),
                                  [window](const Window& other) { return other.id == window; });
  return found != windows_.end() ? &*found : nullptr;
}

}  // namespace platform::memory
