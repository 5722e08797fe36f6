// The program in use, for pictures of it.
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

// Where the pictures go.
struct Album {
  std::wstring folder;
  std::string suffix;  // of the files' names, such as "-german"
};

// A started program with default settings and traffic. What the user's own copy has stored comes
// back at the end. What is waited for in vain is thrown as std::runtime_error.
class Scene {
 public:
  // `language` is one that the program offers.
  Scene(const std::string& language, Album album);

  [[nodiscard]] Meter& meter() { return *meter_; }
  [[nodiscard]] Waves& waves() { return waves_; }

  // A text of the program in the language of the scene.
  [[nodiscard]] std::string Text(const language::TextEntry& entry) const { return texts_(entry); }

  [[nodiscard]] MenuPath Path(std::initializer_list<language::TextEntry> entries) const;

  // Ends the program and starts it again; `meanwhile` stores what it reads only then, or what its
  // scans change.
  void Restart(const std::function<void()>& meanwhile);
  // Waits until the graph is full of bars.
  void FillGraph();
  // Waits until what was changed is on the screen.
  static void AwaitPainted();

  // Opens the menu and chooses from it; the pointer is out of the way afterwards.
  void Choose(std::initializer_list<language::TextEntry> path);
  // The window of this class, once it is shown and painted.
  [[nodiscard]] HWND AwaitWindow(const wchar_t* window_class);
  // Chooses what opens that window.
  HWND Open(std::initializer_list<language::TextEntry> path, const wchar_t* window_class);
  // Clicks a control that has published this name; the pointer is out of the way afterwards.
  void Press(HWND window, const wchar_t* control);
  // Closes a window by its close box.
  void Close(HWND window);
  // The balloon of the icon in the notification area, once it is shown and painted. Under Wine
  // only.
  [[nodiscard]] HWND AwaitBalloon();
  void CloseBalloon(HWND balloon);

  // A picture of all windows that the program shows, with what is between them.
  [[nodiscard]] Picture OfAll();
  [[nodiscard]] static Picture Of(HWND window);
  // `name` without folder and ending.
  void Save(std::string_view name, const Picture& picture) const;

 private:
  RegistryGuard guard_;
  language::Translation texts_;
  Album album_;
  Waves waves_;
  std::optional<Meter> meter_;
};

}  // namespace desktop
