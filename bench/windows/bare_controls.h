// Windows of the system's own, empty, of the same kinds and sizes as those of a form.
#pragma once

#include <string>
#include <vector>

#include "platform/windows/win32.h"

namespace bench {

class BareControls {
 public:
  // As the form of this class in this process has them now.
  explicit BareControls(const wchar_t* form);

  // A hidden window with all of them; DestroyWindow takes them away.
  [[nodiscard]] HWND Make() const;

  [[nodiscard]] std::size_t Count() const { return controls_.size(); }

 private:
  struct Control {
    std::wstring window_class;
    std::wstring text;
    DWORD style;
    DWORD extended_style;
    RECT area;           // in its parent
    std::size_t parent;  // 0: the form, else the number of a control, counted from 1
  };

  static BOOL CALLBACK Collect(HWND window, LPARAM self);

  std::vector<Control> controls_;
  std::vector<HWND> copied_;  // the form, then its controls
};

}  // namespace bench
