#include "platform/windows/drawing/gdi.h"

namespace platform::windows {

COLORREF ToColorref(Colour colour) {
  if (IsSystemColour(colour)) return ::GetSysColor(static_cast<int>(colour & 0xFFU));
  return colour & 0xFFFFFFU;
}

void FillArea(HDC dc, const RECT& area, Colour colour) {
  ::SetDCBrushColor(dc, ToColorref(colour));
  ::FillRect(dc, &area, static_cast<HBRUSH>(::GetStockObject(DC_BRUSH)));
}

}  // namespace platform::windows
