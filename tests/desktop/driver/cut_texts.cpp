#include "tests/desktop/driver/cut_texts.h"

#include "platform/windows/wide_text.h"
#include "tests/desktop/driver/windows_of.h"

namespace desktop {
namespace {

using platform::windows::FromWide;
using platform::windows::ToWide;

struct Room {
  LONG beside = -1;    // pixels of the width that frame, box or indent take; below 0: has no text
  bool wraps = false;  // what is too wide goes on in a line below
};

Room RoomOf(HWND control) {
  wchar_t kind[32] = {};
  ::GetClassNameW(control, kind, 32);
  const LONG_PTR style = ::GetWindowLongPtrW(control, GWL_STYLE);
  if (::lstrcmpiW(kind, L"Static") == 0) return {0, (style & SS_CENTERIMAGE) == 0};
  if (::lstrcmpiW(kind, L"Button") != 0) return {};
  switch (style & BS_TYPEMASK) {
    case BS_GROUPBOX:
      return {16};
    case BS_AUTOCHECKBOX:
    case BS_AUTORADIOBUTTON:
      return {18, true};
    case BS_OWNERDRAW:
      return {};
    default:
      return {6};
  }
}

class Measure {
 public:
  // Fonts belong to their process, so this is another one of the same kind.
  explicit Measure(LONG font_height)
      : font_(::CreateFontW(-static_cast<int>(font_height), 0, 0, 0, FW_NORMAL, 0, 0, 0,
                            DEFAULT_CHARSET, 0, 0, DEFAULT_QUALITY, 0, L"Tahoma")),
        dc_(::CreateCompatibleDC(nullptr)),
        before_(::SelectObject(dc_, font_)) {}
  ~Measure() {
    ::SelectObject(dc_, before_);
    ::DeleteDC(dc_);
    ::DeleteObject(font_);
  }
  Measure(const Measure&) = delete;
  Measure& operator=(const Measure&) = delete;

  void Check(HWND control) {
    const Room room = RoomOf(control);
    const std::string text = TextOf(control);
    if (room.beside < 0 || text.empty()) return;
    RECT client{};
    ::GetClientRect(control, &client);
    const LONG width = client.right - room.beside;
    RECT needed{0, 0, width, 0};
    ::DrawTextW(dc_, ToWide(text).c_str(), -1, &needed,
                DT_CALCRECT | (room.wraps ? DT_WORDBREAK : DT_SINGLELINE));
    if (needed.right > width) Note(text, needed.right - width, " too wide");
    if (room.wraps && needed.bottom > client.bottom) {
      Note(text, needed.bottom - client.bottom, " too high");
    }
  }

  [[nodiscard]] const std::string& Cut() const { return cut_; }

 private:
  void Note(const std::string& text, LONG pixels, const char* how) {
    cut_ += text + ": " + std::to_string(pixels) + how + "; ";
  }

  HFONT font_;
  HDC dc_;
  HGDIOBJ before_;
  std::string cut_;
};

BOOL CALLBACK CheckChild(HWND control, LPARAM measure) {
  reinterpret_cast<Measure*>(measure)->Check(control);
  return TRUE;
}

}  // namespace

std::vector<std::string> OfferedLanguages() {
  std::vector<std::string> names;
  WIN32_FIND_DATAW file{};
  const HANDLE search = ::FindFirstFileW(L"Languages\\*.lng", &file);
  if (search == INVALID_HANDLE_VALUE) return names;
  do {
    const std::string name = FromWide(file.cFileName);
    names.push_back(name.substr(0, name.rfind('.')));
  } while (::FindNextFileW(search, &file));
  ::FindClose(search);
  return names;
}

std::string CutTexts(HWND window, LONG font_height) {
  Measure measure(font_height);
  ::EnumChildWindows(window, &CheckChild, reinterpret_cast<LPARAM>(&measure));
  return measure.Cut();
}

}  // namespace desktop
