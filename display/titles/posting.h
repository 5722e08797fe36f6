// Posts the numeric line into the title bars of other programs' windows, and takes it away again.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "display/titles/list.h"
#include "platform/other_windows.h"
#include "settings/store.h"

namespace toolkit {
class Application;
}

namespace display {

// A title without its marker, which is the last "|" and what follows it.
[[nodiscard]] std::string_view StripMarker(std::string_view title);

// A posted title is the window's own title, "|" and the text. An own "|" is lost with what follows
// it, and does not come back.
class TitlePosting {
 public:
  // All outlive this.
  TitlePosting(toolkit::Application& app, settings::Store& store);

  // The list of the mode that posts into chosen windows only.
  void SetLines(const TitleLines& lines);

  // Posts by the mode in "WindowTitle": 1 into all top-level windows, this program's too, 2 into
  // those whose title holds a line of the list, 3 into the one that the user works in, after the
  // markers of all others were taken away; another mode posts nowhere. Takes at most 250 ms,
  // however many programs do not answer. What did not get its turn does the next time.
  void PostTitles(std::string_view text);

  // At the program's end, which a change of the mode is not: takes the marker from every title, if
  // anything was posted in this run. Otherwise only the markers go that a run left behind which was
  // ended by force: those that have the form of the numeric line.
  void RestoreTitles();

 private:
  class Turn;

  void PostToMany(Turn& turn, std::string_view text, bool only_listed);
  void PostToForeground(Turn& turn, std::string_view text);
  void PostInto(Turn& turn, platform::WindowId window, const platform::WindowTitle& present,
                std::string_view text);
  // Takes the marker from every window but one.
  void StripAll(Turn& turn, platform::WindowId except);
  void StripLeftBehind(Turn& turn);
  // Gives the window another title, unless it does not answer these days. True when it has it now.
  bool Set(Turn& turn, platform::WindowId window, const std::string& title);
  // Forgets windows that are gone.
  void ForgetAllBut(const std::vector<platform::WindowId>& windows);
  [[nodiscard]] bool Listed(std::string_view own_title);

  toolkit::Application& app_;
  settings::Store& store_;
  TitleList list_;

  bool has_posted_ = false;  // in this run
  // What was set, by window: tells titles that are longer than what is read of them.
  std::unordered_map<platform::WindowId, std::string> posted_;
  // Windows that did not answer, and when they are tried again, in ms of the steady clock.
  std::unordered_map<platform::WindowId, std::int64_t> silent_until_;
  // Whether the list occurs in a title: titles stay the same for long, and the list may be long.
  std::unordered_map<std::string, bool> listed_;
  // The window whose turn comes first, when the time was up before it.
  platform::WindowId next_ = 0;
};

}  // namespace display
