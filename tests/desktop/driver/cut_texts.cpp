#include "tests/desktop/driver/cut_texts.h"

#include "platform/windows/drawing/gdi.h"
#include "platform/windows/wide_text.h"
#include "tests/desktop/driver/windows_of.h"

namespace desktop {
namespace {

using platform::windows::Font;
using platform::windows::MemoryDc;
using platform::windows::Selection;
using platform::windows::ToWide;

struct Room {
  LONG beside = -1;    // pixels of the width that frame, box or indent take; below 0: has no text
  bool wraps = false;  // what is too wide goes on in a line below
};

Room RoomOf(HWND control) {
  const LONG_PTR style = ::GetWindowLongPtrW(control, GWL_STYLE);
  if (HasClass(control, L"Static")) return {0, (style & SS_CENTERIMAGE) == 0};
  if (!HasClass(control, L"Button")) return {};
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

// How the text of a control is cut; empty when it is not.
std::string CutIn(HDC dc, HWND control) {
  const Room room = RoomOf(control);
  const std::string text = TextOf(control);
  if (room.beside < 0 || text.empty()) return {};
  RECT client{};
  ::GetClientRect(control, &client);
  const LONG width = client.right - room.beside;
  RECT needed{0, 0, width, 0};
  ::DrawTextW(dc, ToWide(text).c_str(), -1, &needed,
              DT_CALCRECT | (room.wraps ? DT_WORDBREAK : DT_SINGLELINE));
  const LONG too_wide = needed.right - width;
  const LONG too_high = room.wraps ? needed.bottom - client.bottom : 0;
  if (too_wide <= 0 && too_high <= 0) return {};
  return text + ": " + std::to_string(too_wide) + " too wide, " + std::to_string(too_high) +
         " too high; ";
}

}  // namespace

std::string CutTexts(HWND window, LONG font_height) {
  // Fonts belong to their process, so this is another one of the same kind.
  const Font font(::CreateFontW(-static_cast<int>(font_height), 0, 0, 0, FW_NORMAL, 0, 0, 0,
                                DEFAULT_CHARSET, 0, 0, DEFAULT_QUALITY, 0, L"Tahoma"));
  const MemoryDc dc(::CreateCompatibleDC(nullptr));
  const Selection selected(dc.get(), font.get());
  std::string cut;
  for (const HWND control : ControlsIn(window)) cut += CutIn(dc.get(), control);
  return cut;
}

}  // namespace desktop
