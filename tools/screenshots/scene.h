// Drives the program, so that pictures of it can be taken.
#pragma once

#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

#include "language/language.h"
#include "tests/desktop/driver/meter.h"
#include "tests/desktop/driver/registry_guard.h"
#include "tests/desktop/driver/screen.h"
#include "tools/screenshots/waves.h"

namespace desktop {

// A started program with default settings and traffic. The stored values of the user's own copy are
// put back at the end. A wait that times out throws std::runtime_error.
class Scene {
 public:
  // `language` is one that the program offers; the pictures go to `folder`, which is there.
  Scene(const std::string& language, std::wstring folder);

  [[nodiscard]] Meter& meter() { return *meter_; }
  [[nodiscard]] Waves& waves() { return waves_; }

  // Returns a text of the program in the language of the scene.
  [[nodiscard]] std::string Text(const language::TextEntry& entry) const { return texts_(entry); }

  [[nodiscard]] MenuPath Path(std::initializer_list<language::TextEntry> entries) const;

  // Ends the program and starts it again. In between it calls `meanwhile`, which stores values that
  // the program reads only at its start, or that its scans change.
  void Restart(const std::function<void()>& meanwhile);
  // Waits until the graph is full of bars.
  void FillGraph();
  // Waits until the latest changes are on the screen.
  static void AwaitPainted();

  // Opens the menu and chooses an item; the pointer is out of the way afterwards.
  void Choose(std::initializer_list<language::TextEntry> path);
  // Waits until the window of this class is shown and painted, and returns it.
  [[nodiscard]] HWND AwaitWindow(const wchar_t* window_class);
  // Chooses the menu item that opens a window, waits for that window and returns it.
  HWND Open(std::initializer_list<language::TextEntry> path, const wchar_t* window_class);
  // Clicks a control that has published this name; the pointer is out of the way afterwards.
  void Press(HWND window, const wchar_t* control);
  // Closes a window by its close box.
  void Close(HWND window);
  // Waits until the balloon of the icon in the notification area is shown and painted, and returns
  // it. It works under Wine only.
  [[nodiscard]] HWND AwaitBalloon();
  void CloseBalloon(HWND balloon);

  // Returns a picture of all windows that the program shows, with the space between them.
  [[nodiscard]] Picture OfAll();
  [[nodiscard]] static Picture Of(HWND window);
  // Saves a picture of a window, and notes what of its layout does not fit (LayoutFaults).
  void Save(std::string_view name, HWND window);
  // Notes what of a window's layout does not fit, under the name of its picture.
  void CheckLayout(std::string_view name, HWND window);
  // Returns whether everything did that was saved so far.
  [[nodiscard]] bool Fits() const { return fits_; }
  // Saves a picture in the folder. `name` has no folder and no ending.
  void Save(std::string_view name, const Picture& picture) const;

 private:
  RegistryGuard guard_;
  language::Translation texts_;
  std::wstring folder_;
  Waves waves_;
  std::optional<Meter> meter_;
  bool fits_ = true;
};

}  // namespace desktop
