#include "display/titles/posting.h"

#include <algorithm>
#include <unordered_set>

#include "display/numeric_line.h"
#include "toolkit/application.h"

namespace display {
namespace {

using platform::TitleOutcome;
using platform::WindowId;

constexpr char kMarker = '|';
constexpr std::size_t kCharactersRead = 255;
constexpr std::size_t kLongestPosted = 1000;  // characters; enough for a title and any numeric line

constexpr std::int64_t kPostToAll = 1;
constexpr std::int64_t kPostToListed = 2;
constexpr std::int64_t kPostToForeground = 3;

// Milliseconds.
constexpr std::int64_t kBudget = 200;           // of one posting; a wait ends some ms late
constexpr std::int64_t kBudgetAtTheEnd = 2000;  // the last chance, and no scan waits any more
constexpr std::int64_t kPatience = 50;          // with one window
constexpr std::int64_t kLeftAlone = 60000;      // a window that did not answer

constexpr std::size_t kTitlesRemembered = 2000;

}  // namespace

std::string_view StripMarker(std::string_view title) {
  const std::size_t marker = title.rfind(kMarker);
  return marker == std::string_view::npos ? title : title.substr(0, marker);
}

// The time that one round through the windows may take.
class TitlePosting::Turn {
 public:
  Turn(platform::Clock& clock, std::int64_t budget)
      : clock_(clock), end_(clock.SteadyMilliseconds() + budget) {}

  [[nodiscard]] std::int64_t Now() const { return clock_.SteadyMilliseconds(); }
  [[nodiscard]] bool TimeIsUp() const { return Now() >= end_; }
  // Returns the time left for one window; it is above 0 while the time is not up.
  [[nodiscard]] int Patience() const { return static_cast<int>(std::min(kPatience, end_ - Now())); }

 private:
  platform::Clock& clock_;
  std::int64_t end_;
};

TitlePosting::TitlePosting(toolkit::Application& app, settings::Store& store)
    : app_(app), store_(store), list_(app.Platform().locale) {}

void TitlePosting::SetLines(const TitleLines& lines) {
  list_.SetLines(lines);
  listed_.clear();
}

void TitlePosting::PostTitles(std::string_view text) {
  const std::int64_t mode = store_.Read(settings::setting::WindowTitle);
  Turn turn(app_.Platform().clock, kBudget);
  if (mode == kPostToAll || mode == kPostToListed) PostToMany(turn, text, mode == kPostToListed);
  if (mode == kPostToForeground) PostToForeground(turn, text);
}

void TitlePosting::PostToMany(Turn& turn, std::string_view text, bool only_listed) {
  platform::OtherWindows& desktop = app_.Platform().other_windows;
  std::vector<WindowId> windows = desktop.TopLevel();
  ForgetAllBut(windows);
  const auto first = std::find(windows.begin(), windows.end(), next_);
  if (first != windows.end()) std::rotate(windows.begin(), first, windows.end());
  next_ = 0;
  for (const WindowId window : windows) {
    if (turn.TimeIsUp()) {
      next_ = window;
      return;
    }
    const platform::WindowTitle title = desktop.Title(window, kCharactersRead);
    if (!only_listed || Listed(StripMarker(title.text))) PostInto(turn, window, title, text);
  }
}

bool TitlePosting::Listed(std::string_view own_title) {
  if (listed_.size() > kTitlesRemembered) listed_.clear();
  const auto [known, is_new] = listed_.try_emplace(std::string(own_title), false);
  if (is_new) known->second = list_.OccursIn(own_title);
  return known->second;
}

// The window in front keeps its marker until it gets the new one: its title would flicker if the
// marker were removed first.
void TitlePosting::PostToForeground(Turn& turn, std::string_view text) {
  platform::OtherWindows& desktop = app_.Platform().other_windows;
  const WindowId window = desktop.Foreground();
  StripAll(turn, window);
  if (window == 0 || turn.TimeIsUp()) return;
  PostInto(turn, window, desktop.Title(window, kCharactersRead), text);
}

void TitlePosting::PostInto(Turn& turn, WindowId window, const platform::WindowTitle& present,
                            std::string_view text) {
  std::string title(StripMarker(present.text));
  title += kMarker;
  title += text;
  // Setting the title that the window has already would make the other program repaint for nothing.
  const auto mine = posted_.find(window);
  const bool there = present.longer ? mine != posted_.end() && mine->second == title &&
                                          title.starts_with(present.text)
                                    : present.text == title;
  if (there || !Set(turn, window, title)) return;
  posted_[window] = title;
  has_posted_ = true;
}

void TitlePosting::RestoreTitles() {
  silent_until_.clear();
  Turn turn(app_.Platform().clock, kBudgetAtTheEnd);
  if (has_posted_) {
    StripAll(turn, 0);
  } else {
    StripLeftBehind(turn);
  }
  has_posted_ = false;
}

void TitlePosting::StripAll(Turn& turn, WindowId except) {
  platform::OtherWindows& desktop = app_.Platform().other_windows;
  const std::vector<WindowId> windows = desktop.TopLevel();
  ForgetAllBut(windows);
  for (const WindowId window : windows) {
    if (turn.TimeIsUp()) return;
    if (window == except) continue;
    platform::WindowTitle title = desktop.Title(window, kCharactersRead);
    if (title.longer) {
      // The rest of a long title would be lost, unless this program has set all of it.
      const auto mine = posted_.find(window);
      if (mine == posted_.end() || !mine->second.starts_with(title.text)) continue;
      title.text = mine->second;
    }
    const std::string_view own = StripMarker(title.text);
    if (own.size() < title.text.size() && Set(turn, window, std::string(own))) {
      posted_.erase(window);
    }
  }
}

void TitlePosting::StripLeftBehind(Turn& turn) {
  platform::OtherWindows& desktop = app_.Platform().other_windows;
  for (const WindowId window : desktop.TopLevel()) {
    if (turn.TimeIsUp()) return;
    const platform::WindowTitle title = desktop.Title(window, kLongestPosted);
    const std::string_view own = StripMarker(title.text);
    if (title.longer || own.size() == title.text.size()) continue;
    const std::string_view posted = std::string_view(title.text).substr(own.size() + 1);
    if (IsNumericLine(posted)) Set(turn, window, std::string(own));
  }
}

bool TitlePosting::Set(Turn& turn, WindowId window, const std::string& title) {
  const auto silent = silent_until_.find(window);
  if (silent != silent_until_.end() && turn.Now() < silent->second) return false;
  const TitleOutcome outcome =
      app_.Platform().other_windows.SetTitle(window, title, turn.Patience());
  if (outcome == TitleOutcome::kNoAnswer) silent_until_[window] = turn.Now() + kLeftAlone;
  return outcome == TitleOutcome::kSet;
}

void TitlePosting::ForgetAllBut(const std::vector<WindowId>& windows) {
  if (posted_.size() + silent_until_.size() <= windows.size()) return;
  const std::unordered_set<WindowId> there(windows.begin(), windows.end());
  const auto gone = [&there](const auto& entry) { return !there.contains(entry.first); };
  std::erase_if(posted_, gone);
  std::erase_if(silent_until_, gone);
}

}  // namespace display
