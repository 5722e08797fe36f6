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

// Returns a title without its marker, which is the last "|" and what follows it.
[[nodiscard]] std::string_view StripMarker(std::string_view title);

// A posted title is the window's own title, "|" and the text. A "|" in the window's own title is
// lost together with what follows it, and is not restored.
class TitlePosting {
 public:
  // All arguments outlive the posting.
  TitlePosting(toolkit::Application& app, settings::Store& store);

  // Sets the list of titles for the mode that posts into chosen windows only.
  void SetLines(const TitleLines& lines);

  // Posts by the mode in "WindowTitle". Mode 1 posts into all top-level windows, this program's
  // too; mode 2 into those whose title contains a line of the list; mode 3 into the window that the
  // user works in, after the markers of all others were taken away; any other mode posts nowhere.
  // Takes at most 250 ms, however many programs do not answer. A window that did not get its turn
  // gets it at the next call.
  void PostTitles(std::string_view text);

  // Runs at the program's end, not when the mode changes. If anything was posted in this run, takes
  // the marker from every title. Otherwise takes away only the markers that have the form of the
  // numeric line: those that a run left behind which was ended by force.
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
  // Gives the window another title, unless it did not answer lately. Returns true when the window
  // has the title now.
  bool Set(Turn& turn, platform::WindowId window, const std::string& title);
  // Forgets windows that are gone.
  void ForgetAllBut(const std::vector<platform::WindowId>& windows);
  [[nodiscard]] bool Listed(std::string_view own_title);

  toolkit::Application& app_;
  settings::Store& store_;
  TitleList list_;

  bool has_posted_ = false;  // in this run
  // The title that was set, by window. It is needed for titles that are longer than the part that
  // is read.
  std::unordered_map<platform::WindowId, std::string> posted_;
  // Windows that did not answer, and when they are tried again, in ms of the steady clock.
  std::unordered_map<platform::WindowId, std::int64_t> silent_until_;
  // Whether a line of the list occurs in a title. It is remembered, since titles stay the same for
  // long, and the list may be long.
  std::unordered_map<std::string, bool> listed_;
  // The window whose turn comes first, when the time was up before it.
  platform::WindowId next_ = 0;
};

}  // namespace display
