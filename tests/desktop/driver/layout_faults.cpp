#include "tests/desktop/driver/layout_faults.h"

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

bool IsOf(HWND window, const wchar_t* window_class) {
  wchar_t name[32] = {};
  ::GetClassNameW(window, name, 32);
  return ::lstrcmpiW(name, window_class) == 0;
}

LONG_PTR StyleOf(HWND window) { return ::GetWindowLongPtrW(window, GWL_STYLE); }

bool IsShown(HWND control) { return (StyleOf(control) & WS_VISIBLE) != 0; }

std::string PixelsBeyond(LONG pixels, const char* how) { return std::to_string(pixels) + how; }

// How a control shows its text.
struct Room {
  LONG beside = -1;    // pixels of the width that frame, box or indent take; below 0: has no text
  bool wraps = false;  // what is too wide goes on in a line below
};

// The room that a framed text has on both sides together.
LONG BesideInFrame(int dpi) { return ::MulDiv(kFontHeight, dpi, 96) / 4 * 2; }

Room RoomOf(HWND control, int dpi) {
  const LONG_PTR style = StyleOf(control);
  if (IsOf(control, WC_STATICW)) {
    const bool framed = (::GetWindowLongPtrW(control, GWL_EXSTYLE) & WS_EX_STATICEDGE) != 0;
    return {framed ? BesideInFrame(dpi) : 0, (style & SS_CENTERIMAGE) == 0};
  }
  if (!IsOf(control, WC_BUTTONW)) return {};
  switch (style & BS_TYPEMASK) {
    case BS_GROUPBOX:
      return {::MulDiv(8, dpi, 96)};  // on the left; on the right a title may cover the frame
    case BS_AUTOCHECKBOX:
    case BS_AUTORADIOBUTTON:
      return {::MulDiv(18, dpi, 96), true};
    case BS_OWNERDRAW:
      return {};
    default:
      return {6};
  }
}

class Measure {
 public:
  // Fonts belong to their process, so this is another one of the same kind.
  explicit Measure(int dpi)
      : dpi_(dpi),
        font_(::CreateFontW(-::MulDiv(kFontHeight, dpi, 96), 0, 0, 0, FW_NORMAL, 0, 0, 0,
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

  // Tells what of the control's text is cut; empty when nothing is.
  [[nodiscard]] std::string Cut(HWND control) const {
    if (IsOf(control, WC_COMBOBOXW)) return CutRows(control);
    const Room room = RoomOf(control, dpi_);
    const std::string text = TextOf(control);
    if (room.beside < 0 || text.empty()) return {};
    RECT client{};
    ::GetClientRect(control, &client);
    return CutIn({client.right - room.beside, client.bottom}, text, room.wraps);
  }

 private:
  [[nodiscard]] std::string CutIn(SIZE room, const std::string& text, bool wraps) const {
    RECT needed{0, 0, room.cx, 0};
    ::DrawTextW(dc_, ToWide(text).c_str(), -1, &needed,
                DT_CALCRECT | (wraps ? DT_WORDBREAK : DT_SINGLELINE));
    std::string cut;
    if (needed.right > room.cx) cut += PixelsBeyond(needed.right - room.cx, " too wide");
    if (needed.bottom > room.cy) cut += PixelsBeyond(needed.bottom - room.cy, " too high");
    return cut;
  }

  // A list that opens has its rows' text beside an arrow while it is closed.
  [[nodiscard]] std::string CutRows(HWND list) const {
    constexpr LONG kFrames = 6;
    std::string cut;
    if (::GetPropW(list, L"FontChoose") != nullptr) return cut;  // each row in a font of its own
    RECT client{};
    ::GetClientRect(list, &client);
    const LONG arrow = ::GetSystemMetricsForDpi(SM_CXVSCROLL, static_cast<UINT>(dpi_));
    const SIZE room{client.right - arrow - kFrames - BesideInFrame(dpi_), client.bottom};
    const auto rows = static_cast<WPARAM>(::SendMessageW(list, CB_GETCOUNT, 0, 0));
    for (WPARAM row = 0; row < rows; ++row) {
      std::wstring text(256, L'\0');
      ::SendMessageW(list, CB_GETLBTEXT, row, reinterpret_cast<LPARAM>(text.data()));
      const std::string one = CutIn(room, FromWide(text.c_str()), false);
      if (!one.empty()) cut += "row " + std::to_string(row) + ' ' + one + ' ';
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

// The name that a control has published, and its text.
std::string NameOf(HWND control) {
  std::string name;
  ::EnumPropsExW(control, &TakeName, reinterpret_cast<LPARAM>(&name));
  if (name.empty()) return name;
  const std::string text = TextOf(control);
  return text.empty() ? name : name + '"' + text + "\" ";
}

RECT InsideOf(HWND window) {
  RECT inside{};
  ::GetClientRect(window, &inside);
  ::MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&inside), 2);
  return inside;
}

std::string Outside(HWND control) {
  const RECT place = AreaOf(control);
  const RECT room = InsideOf(::GetParent(control));
  std::string outside;
  if (place.left < room.left) outside += PixelsBeyond(room.left - place.left, " beyond the left ");
  if (place.top < room.top) outside += PixelsBeyond(room.top - place.top, " beyond the top ");
  if (place.right > room.right) {
    outside += PixelsBeyond(place.right - room.right, " beyond the right ");
  }
  if (place.bottom > room.bottom) {
    outside += PixelsBeyond(place.bottom - room.bottom, " beyond the bottom ");
  }
  return outside;
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
    if (name.empty()) continue;  // a part of a control that the system makes
    overlapped +=
        std::to_string(WidthOf(both)) + " x " + std::to_string(HeightOf(both)) + " over " + name;
  }
  return overlapped;
}

std::string ScrollsSideways(HWND control) {
  const bool is_list = IsOf(control, WC_TREEVIEWW) || IsOf(control, WC_LISTVIEWW);
  const HWND arrows = IsOf(control, WC_TABCONTROLW)
                          ? ::FindWindowExW(control, nullptr, UPDOWN_CLASSW, nullptr)
                          : nullptr;
  const bool scrolls =
      (is_list && (StyleOf(control) & WS_HSCROLL) != 0) || (arrows != nullptr && IsShown(arrows));
  return scrolls ? "scrolls sideways" : "";
}

struct Search {
  Measure measure;
  std::string faults;
};

BOOL CALLBACK CheckChild(HWND control, LPARAM search_pointer) {
  auto& search = *reinterpret_cast<Search*>(search_pointer);
  const std::string name = NameOf(control);
  if (name.empty()) return TRUE;  // a part of a control that the system makes
  std::string fault = search.measure.Cut(control);
  if (IsShown(control)) fault += Outside(control) + Overlapped(control) + ScrollsSideways(control);
  if (!fault.empty()) search.faults += name + ": " + fault + "; ";
  return TRUE;
}

}  // namespace

std::string LayoutFaults(HWND window) {
  Search search{Measure(static_cast<int>(::GetDpiForWindow(window))), {}};
  ::EnumChildWindows(window, &CheckChild, reinterpret_cast<LPARAM>(&search));
  return search.faults;
}

}  // namespace desktop
