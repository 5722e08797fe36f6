#include "platform/windows/widgets/tabs_widget.h"

#include <uxtheme.h>
#include <vssym32.h>

#include <algorithm>

#include "platform/windows/dpi.h"
#include "platform/windows/drawing/graphics.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/win32.h"

namespace platform::windows {

TabsWidget::TabsWidget(const NewWidget& widget) : WidgetOf(widget) {
  MakeControl(WC_TABCONTROLW, {kStopChild | WS_CLIPCHILDREN, 0}, widget);
  Send(TCM_SETMINTABWIDTH, 0, 0);  // as wide as its text, so that more of them are in view
}

void TabsWidget::SetItems(std::span<const std::string> captions) {
  const int before = Index();
  Send(TCM_DELETEALLITEMS);
  for (std::size_t tab = 0; tab < captions.size(); ++tab) {
    std::wstring text = ToWide(captions[tab]);
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = text.data();
    Send(TCM_INSERTITEMW, tab, reinterpret_cast<LPARAM>(&item));
  }
  if (Count() > 0) SetIndex(before >= 0 && before < Count() ? before : 0);
}

int TabsWidget::Count() const { return static_cast<int>(Send(TCM_GETITEMCOUNT)); }

void TabsWidget::SetIndex(int index) {
  if (index != Index()) Send(TCM_SETCURSEL, static_cast<WPARAM>(index));
}

// The room around the text of a tab, which the system does not enlarge with the font. It takes it
// over together with the next font.
void TabsWidget::SetFont(const FontStyle& font) {
  constexpr int kBeside = 6;  // design pixels, as the next one
  constexpr int kAbove = 3;
  Send(TCM_SETPADDING, 0, MAKELPARAM(ScaledFor(hwnd(), kBeside), ScaledFor(hwnd(), kAbove)));
  WidgetOf::SetFont(font);
}

int TabsWidget::Index() const { return static_cast<int>(Send(TCM_GETCURSEL)); }

Rect TabsWidget::PageArea() const {
  const Size size = ClientSize();
  RECT area{0, 0, size.width, size.height};
  Send(TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&area));
  const Rect page = FromRect(area);
  return {page.left, page.top, std::max(page.width, 0), std::max(page.height, 0)};
}

Colour TabsWidget::PageColour() const {
  const HTHEME theme = ::OpenThemeData(hwnd(), L"TAB");
  if (theme == nullptr) return colour::kButtonFace;
  Colour filling = colour::kButtonFace;
  constexpr int kSide = 64;  // its edges may be shaded
  if (const std::unique_ptr<Dib> picture = Dib::Make({kSide, kSide})) {
    const RECT whole{0, 0, kSide, kSide};
    FillArea(picture->dc(), whole, colour::kButtonFace);
    ::DrawThemeBackground(theme, picture->dc(), TABP_BODY, 0, &whole, nullptr);
    filling = picture->Pixel({kSide / 2, kSide / 2});
  }
  ::CloseThemeData(theme);
  return filling;
}

std::optional<LRESULT> TabsWidget::HandleNotification(const Message& message) {
  if (message.id != WM_NOTIFY) return WidgetOf::HandleNotification(message);
  if (reinterpret_cast<const NMHDR*>(message.l)->code == TCN_SELCHANGE) events().OnChanged();
  return std::nullopt;
}

}  // namespace platform::windows
