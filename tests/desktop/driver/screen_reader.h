// A screen reader: what it is told of a window (IAccessible).
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "tests/desktop/driver/win.h"

struct IAccessible;

namespace desktop {

// Of what the window says nothing, the text is empty and the role 0.
struct Heard {
  std::string name;
  std::string value;
  std::string description;
  LONG role = 0;  // ROLE_SYSTEM_...
};

class ScreenReader {
 public:
  ScreenReader();
  ~ScreenReader();
  ScreenReader(const ScreenReader&) = delete;
  ScreenReader& operator=(const ScreenReader&) = delete;

  struct Releases {
    void operator()(IAccessible* object) const;
  };
  using Object = std::unique_ptr<IAccessible, Releases>;
  // Returns the window's object for screen readers; throws when it has none.
  [[nodiscard]] static Object Reach(HWND window);

  [[nodiscard]] static Heard Hear(IAccessible& object);
  [[nodiscard]] static Heard Hear(HWND window) { return Hear(*Reach(window)); }
  // The visible controls of a window that the keyboard can be in.
  [[nodiscard]] static std::vector<HWND> Stops(HWND window);
};

}  // namespace desktop
