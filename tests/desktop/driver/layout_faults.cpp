#include "tests/desktop/driver/layout_faults.h"

#include <algorithm>
#include <memory>

#include "platform/windows/wide_text.h"
#include "tests/desktop/driver/windows_of.h"
// This header must follow the system's own header, which it needs.
#include <commctrl.h>

namespace desktop {
namespace {

using platform::windows::FromWide;
using platform::windows::ToWide;

// The height of the program's font in design pixels.
constexpr int kFontHeight = 11;

LONG_PTR StyleOf(HWND window) { return ::GetWindowLongPtrW(window, GWL_STYLE); }

bool IsShown(HWND control) { return (StyleOf(control) & WS_VISIBLE) != 0; }

// How a control shows its text.
struct Room {
  LONG beside = -1;    // pixels of the width that frame, box or indent take; below 0: has no text
  bool wraps = false;  // what is too wide goes on in a line below
};

// What of a window's controls cannot be seen whole. Fonts belong to their process, so texts are
// measured in another one of the same kind.
class Layout {
 public:
  explicit Layout(HWND window)
      : dpi_(static_cast<int>(::GetDpiForWindow(window))),
        font_(::CreateFontW(-Scaled(kFontHeight), 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0,
                            0, DEFAULT_QUALITY, 0, L"Tahoma")),
        dc_(::CreateCompatibleDC(nullptr)),
        before_(::SelectObject(dc_, font_)) {}
  ~Layout() {
    ::SelectObject(dc_, before_);
    ::DeleteDC(dc_);
    ::DeleteObject(font_);
  }
  Layout(const Layout&) = delete;
  Layout& operator=(const Layout&) = delete;

  // Tells what of the control's texts is cut; empty when nothing is.
  [[nodiscard]] std::string Cut(HWND control) const {
    RECT client{};
    ::GetClientRect(control, &client);
    if (HasClass(control, WC_COMBOBOXW)) return CutRows(control, client);
    const Room room = RoomOf(control);
    if (room.beside < 0) return {};
    return CutIn({client.right - room.beside, client.bottom}, ToWide(TextOf(control)), room.wraps);
  }

 private:
  [[nodiscard]] LONG Scaled(int design) const { return ::MulDiv(design, dpi_, 96); }
  // The room that a framed text has on both sides together.
  [[nodiscard]] LONG BesideInFrame() const { return Scaled(kFontHeight) / 4 * 2; }

  [[nodiscard]] Room RoomOf(HWND control) const {
    const LONG_PTR style = StyleOf(control);
    if (HasClass(control, WC_STATICW)) {
      const bool framed = (::GetWindowLongPtrW(control, GWL_EXSTYLE) & WS_EX_STATICEDGE) != 0;
      return {framed ? BesideInFrame() : 0, (style & SS_CENTERIMAGE) == 0};
    }
    if (!HasClass(control, WC_BUTTONW)) return {};
    switch (style & BS_TYPEMASK) {
      case BS_GROUPBOX:
        return {Scaled(8)};  // on the left; on the right a title may cover the frame
      case BS_AUTOCHECKBOX:
      case BS_AUTORADIOBUTTON:
        return {Scaled(18), true};
      case BS_OWNERDRAW:
        return {};
      default:
        return {6};
    }
  }

  [[nodiscard]] std::string CutIn(SIZE room, const std::wstring& text, bool wraps) const {
    RECT needed{0, 0, room.cx, 0};
    ::DrawTextW(dc_, text.c_str(), -1, &needed,
                DT_CALCRECT | (wraps ? DT_WORDBREAK : DT_SINGLELINE));
    std::string cut;
    if (text.empty()) return cut;
    if (needed.right > room.cx) cut += std::to_string(needed.right - room.cx) + " too wide ";
    if (needed.bottom > room.cy) cut += std::to_string(needed.bottom - room.cy) + " too high ";
    return cut;
  }

  // A list that opens has its rows' text beside an arrow while it is closed.
  [[nodiscard]] std::string CutRows(HWND list, const RECT& client) const {
    constexpr LONG kFrames = 6;
    if (::GetPropW(list, L"FontChoose") != nullptr) return {};  // each row in a font of its own
    const LONG arrow = ::GetSystemMetricsForDpi(SM_CXVSCROLL, static_cast<UINT>(dpi_));
    const SIZE room{client.right - arrow - kFrames - BesideInFrame(), client.bottom};
    const auto rows = static_cast<WPARAM>(::SendMessageW(list, CB_GETCOUNT, 0, 0));
    std::string cut;
    for (WPARAM row = 0; row < rows; ++row) {
      std::wstring text(256, L'\0');
      ::SendMessageW(list, CB_GETLBTEXT, row, reinterpret_cast<LPARAM>(text.data()));
      const std::string one = CutIn(room, text, false);
      if (!one.empty()) cut += "row " + std::to_string(row) + ' ' + one;
    }
    return cut;
  }

  int dpi_;
  HFONT font_;
  HDC dc_;
  HGDIOBJ before_;
};

BOOL CALLBACK TakeName(HWND /*window*/, LPWSTR name, HANDLE /*value*/, ULONG_PTR names) {
  const bool is_text = reinterpret_cast<ULONG_PTR>(name) > 0xFFFF;
  if (!is_text) return TRUE;
  const std::string text = FromWide(name);
  const bool of_system = text.starts_with("ux_") || text.starts_with("CC32");
  if (!of_system) *reinterpret_cast<std::string*>(names) += text + ' ';
  return TRUE;
}

// The name that a control has published; empty for a part of a control that the system makes.
std::string NameOf(HWND control) {
  std::string name;
  ::EnumPropsExW(control, &TakeName, reinterpret_cast<LPARAM>(&name));
  return name;
}

std::string Outside(HWND control) {
  RECT room{};
  ::GetClientRect(::GetParent(control), &room);
  ::MapWindowPoints(::GetParent(control), nullptr, reinterpret_cast<POINT*>(&room), 2);
  const RECT place = AreaOf(control);
  const LONG beyond = std::max({room.left - place.left, room.top - place.top,
                                place.right - room.right, place.bottom - room.bottom});
  return beyond > 0 ? std::to_string(beyond) + " beyond its parent " : "";
}

// Tells which of the siblings further down in the order the control covers in part.
std::string Overlapped(HWND control) {
  std::string overlapped;
  const RECT place = AreaOf(control);
  for (HWND next = ::GetWindow(control, GW_HWNDNEXT); next != nullptr;
       next = ::GetWindow(next, GW_HWNDNEXT)) {
    const RECT other = AreaOf(next);
    RECT both{};
    if (!IsShown(next) || ::IntersectRect(&both, &place, &other) == FALSE) continue;
    const std::string name = NameOf(next);
    if (name.empty()) continue;
    overlapped +=
        std::to_string(WidthOf(both)) + " x " + std::to_string(HeightOf(both)) + " over " + name;
  }
  return overlapped;
}

std::string ScrollsSideways(HWND control) {
  const bool is_list = HasClass(control, WC_TREEVIEWW) || HasClass(control, WC_LISTVIEWW);
  const HWND arrows = HasClass(control, WC_TABCONTROLW)
                          ? ::FindWindowExW(control, nullptr, UPDOWN_CLASSW, nullptr)
                          : nullptr;
  const bool scrolls =
      (is_list && (StyleOf(control) & WS_HSCROLL) != 0) || (arrows != nullptr && IsShown(arrows));
  return scrolls ? "scrolls sideways " : "";
}

}  // namespace

std::string LayoutFaults(HWND window) {
  const Layout layout(window);
  std::string faults;
  for (const HWND control : ControlsIn(window)) {
    const std::string name = NameOf(control);
    if (name.empty()) continue;
    std::string fault = layout.Cut(control);
    if (IsShown(control))
      fault += Outside(control) + Overlapped(control) + ScrollsSideways(control);
    if (!fault.empty()) faults += name + '"' + TextOf(control) + "\": " + fault + "; ";
  }
  return faults;
}

}  // namespace desktop
