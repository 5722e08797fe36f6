#include "platform/windows/drawing/gdi_canvas.h"

#include <algorithm>
#include <string>
#include <utility>

#include "platform/windows/drawing/graphics.h"
#include "platform/windows/wide_text.h"

namespace platform::windows {
namespace {

// This is enough for all fonts that are visible at once. A list that shows each font in its own
// face uses more, and must not keep them all.
constexpr std::size_t kKept = 16;

Font Make(const FontStyle& spec) {
  LOGFONTW description{};
  description.lfHeight = -std::max(spec.height, 1);  // negative: without internal leading
  description.lfWeight = spec.bold ? FW_BOLD : FW_NORMAL;
  description.lfCharSet = DEFAULT_CHARSET;
  description.lfQuality = DEFAULT_QUALITY;  // the smoothing that the user has chosen
  const std::wstring face = ToWide(spec.face).substr(0, LF_FACESIZE - 1);
  std::copy(face.begin(), face.end(), description.lfFaceName);
  return Font(::CreateFontIndirectW(&description));
}

}  // namespace

SharedFont FontCache::Get(const FontStyle& spec) {
  const auto found = std::find_if(entries_.begin(), entries_.end(),
                                  [&spec](const Entry& entry) { return entry.spec == spec; });
  if (found != entries_.end()) {
    std::rotate(found, found + 1, entries_.end());
    return entries_.back().font;
  }
  Font font = Make(spec);
  if (!font) return nullptr;
  if (entries_.size() == kKept) entries_.erase(entries_.begin());
  entries_.push_back({spec, std::make_shared<const Font>(std::move(font))});
  return entries_.back().font;
}

namespace {

int GdiStyle(PenStyle style) {
  switch (style) {
    case PenStyle::kDash:
      return PS_DASH;
    case PenStyle::kDot:
      return PS_DOT;
    case PenStyle::kDashDot:
      return PS_DASHDOT;
    case PenStyle::kDashDotDot:
      return PS_DASHDOTDOT;
    case PenStyle::kSolid:
      break;
  }
  return PS_SOLID;
}

void DrawLine(HDC dc, Point from, Point to, HGDIOBJ pen) {
  const Selection selected(dc, pen);
  ::MoveToEx(dc, from.x, from.y, nullptr);
  ::LineTo(dc, to.x, to.y);
}

}  // namespace

UINT GdiAlign(TextAlign align) {
  switch (align) {
    case TextAlign::kCentre:
      return DT_CENTER;
    case TextAlign::kRight:
      return DT_RIGHT;
    case TextAlign::kLeft:
      break;
  }
  return DT_LEFT;
}

void GdiCanvas::Fill(const Rect& area, Colour colour) {
  if (!area.Empty()) FillArea(dc_, ToRect(area), colour);
}

void GdiCanvas::Line(Point from, Point to, Colour colour, PenStyle style) {
  if (style == PenStyle::kSolid) {
    ::SetDCPenColor(dc_, ToColorref(colour));
    DrawLine(dc_, from, to, ::GetStockObject(DC_PEN));
    return;
  }
  const Pen pen(::CreatePen(GdiStyle(style), 1, ToColorref(colour)));
  ::SetBkMode(dc_, TRANSPARENT);  // leaves the gaps as they are
  if (pen) DrawLine(dc_, from, to, pen.get());
}

void GdiCanvas::Text(const Rect& box, std::string_view text, const FontStyle& font, Colour colour,
                     TextAlign align) {
  FormattedText(box, text, font, colour,
                DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | GdiAlign(align));
}

void GdiCanvas::FormattedText(const Rect& box, std::string_view text, const FontStyle& font,
                              Colour colour, UINT format) {
  if (box.Empty() || text.empty()) return;
  const SharedFont shared = fonts_.Get(font);
  if (!shared) return;
  const Selection selected(dc_, shared->get());
  ::SetTextColor(dc_, ToColorref(colour));
  ::SetBkMode(dc_, TRANSPARENT);
  const std::wstring wide = ToWide(text);
  RECT area = ToRect(box);
  ::DrawTextW(dc_, wide.c_str(), static_cast<int>(wide.size()), &area, format);
}

Size GdiCanvas::TextSize(std::string_view text, const FontStyle& font) {
  const SharedFont shared = fonts_.Get(font);
  if (!shared) return {};
  const Selection selected(dc_, shared->get());
  TEXTMETRICW metrics{};
  ::GetTextMetricsW(dc_, &metrics);
  const std::wstring wide = ToWide(text);
  SIZE size{};
  ::GetTextExtentPoint32W(dc_, wide.c_str(), static_cast<int>(wide.size()), &size);
  return {static_cast<int>(size.cx), static_cast<int>(metrics.tmHeight)};
}

void GdiCanvas::Draw(const Bitmap& bitmap, Point at) {
  const Dib& dib = dynamic_cast<const DibBitmap&>(bitmap).dib();
  ::BitBlt(dc_, at.x, at.y, dib.size().width, dib.size().height, dib.dc(), 0, 0, SRCCOPY);
}

}  // namespace platform::windows
