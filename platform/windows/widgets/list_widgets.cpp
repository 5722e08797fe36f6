#include "platform/windows/widgets/list_widgets.h"

#include <algorithm>
#include <utility>

#include "platform/windows/dpi.h"
#include "platform/windows/wide_text.h"

namespace platform::windows {
namespace {

// While it lives, the window is not repainted; then in one go.
class Frozen {
 public:
  explicit Frozen(HWND hwnd) : hwnd_(hwnd) { ::SendMessageW(hwnd, WM_SETREDRAW, FALSE, 0); }
  ~Frozen() {
    ::SendMessageW(hwnd_, WM_SETREDRAW, TRUE, 0);
    ::InvalidateRect(hwnd_, nullptr, TRUE);
  }
  Frozen(const Frozen&) = delete;
  Frozen& operator=(const Frozen&) = delete;

 private:
  HWND hwnd_;
};

LPARAM Pointer(const std::wstring& text) { return reinterpret_cast<LPARAM>(text.c_str()); }

constexpr ListMessages kListBoxMessages{LB_RESETCONTENT, LB_INSERTSTRING, LB_DELETESTRING,
                                        LB_GETCOUNT,     LB_SETCURSEL,    LB_GETCURSEL,
                                        LBN_SELCHANGE};
constexpr ListMessages kComboMessages{CB_RESETCONTENT, CB_INSERTSTRING, CB_DELETESTRING,
                                      CB_GETCOUNT,     CB_SETCURSEL,    CB_GETCURSEL,
                                      CBN_SELCHANGE};

constexpr int kRowsDropped = 12;

// Whether a font shows pictures in the place of letters.
bool IsSymbolFont(HDC dc, const SharedFont& font) {
  if (!font) return false;
  const Selection selected(dc, font->get());
  TEXTMETRICW metrics{};
  return ::GetTextMetricsW(dc, &metrics) != FALSE && metrics.tmCharSet == SYMBOL_CHARSET;
}

}  // namespace

void PlainListWidget::Replace(int first, int removed, std::span<const std::string> added) {
  const Quiet quiet(*this);
  const Frozen frozen(hwnd());
  auto row = static_cast<WPARAM>(first);
  if (removed == Count()) {
    Send(messages_.reset);
  } else {
    for (int i = 0; i < removed; ++i) Send(messages_.remove, row);
  }
  for (const std::string& item : added) Send(messages_.insert, row++, Pointer(ToWide(item)));
}

void PlainListWidget::SetIndex(int index) {
  if (index != Index()) Send(messages_.select, static_cast<WPARAM>(index));
}

std::optional<LRESULT> PlainListWidget::HandleNotification(const Message& message) {
  if (message.id != WM_COMMAND) return WidgetOf::HandleNotification(message);
  if (HIWORD(message.w) == messages_.chosen && !IsQuiet()) events().OnChanged();
  return 0;
}

ListBoxWidget::ListBoxWidget(const NewWidget& widget) : PlainListWidget(widget, kListBoxMessages) {
  MakeControl(L"LISTBOX",
              {kStopChild | WS_VSCROLL | LBS_NOTIFY | LBS_HASSTRINGS | LBS_NOINTEGRALHEIGHT,
               WS_EX_CLIENTEDGE},
              widget);
}

std::optional<LRESULT> ListBoxWidget::Handle(const Message& message) {
  if (message.id == WM_KEYDOWN && message.w == VK_DELETE && events().OnKey(Key::kDelete)) return 0;
  return PlainListWidget::Handle(message);
}

ComboWidget::ComboWidget(const NewWidget& widget, ListKind kind)
    : PlainListWidget(widget, kComboMessages), kind_(kind) {
  // The system would draw the text at the top of a row, which is higher than the text.
  constexpr DWORD kCombo = CBS_DROPDOWNLIST | CBS_HASSTRINGS | CBS_OWNERDRAWFIXED;
  MakeControl(L"COMBOBOX", {kStopChild | WS_VSCROLL | kCombo, 0}, widget);
  Send(CB_SETMINVISIBLE, kRowsDropped);
}

void ComboWidget::SetBounds(const Rect& bounds) {
  bounds_ = bounds;
  FitHeight();
}

void ComboWidget::SetFont(const FontStyle& font) {
  PlainListWidget::SetFont(font);
  FitHeight();
}

void ComboWidget::FitHeight() {
  constexpr auto kClosedRow = static_cast<WPARAM>(-1);
  // Pixels that a closed list has above and below its row, at every resolution.
  constexpr int kFrame = 6;
  if (bounds_ == Rect{}) return;
  const auto row = static_cast<int>(Send(CB_GETITEMHEIGHT, 0));
  Rect open = bounds_;
  open.height += kRowsDropped * row + 2;
  int closed_row = std::max(bounds_.height - kFrame, 1);
  // Where a theme has another frame, that is learned from the outcome. Each attempt makes the
  // system arrange the list anew, so the first one should do.
  for (int attempt = 0; attempt < 4 && closed_row > 0; ++attempt) {
    Send(CB_SETITEMHEIGHT, kClosedRow, closed_row);
    PlainListWidget::SetBounds(open);
    const int too_low = bounds_.height - Bounds().height;
    if (too_low == 0) break;
    closed_row += too_low;
  }
  Send(CB_SETITEMHEIGHT, 0, Send(CB_GETITEMHEIGHT, kClosedRow));
}

KeyTaker ComboWidget::TakerOf(WPARAM /*key*/) {
  return Send(CB_GETDROPPEDSTATE) != 0 ? KeyTaker::kWindow : KeyTaker::kDialog;
}

std::optional<LRESULT> ComboWidget::HandleNotification(const Message& message) {
  if (message.id == WM_DRAWITEM) {
    DrawRow(*reinterpret_cast<const DRAWITEMSTRUCT*>(message.l));
    return TRUE;
  }
  return PlainListWidget::HandleNotification(message);
}

void ComboWidget::DrawRow(const DRAWITEMSTRUCT& item) {
  const bool selected = (item.itemState & ODS_SELECTED) != 0;
  const Rect area = FromRect(item.rcItem);
  GdiCanvas canvas(item.hDC, {area.Right(), area.Bottom()}, drawing().fonts);
  canvas.Fill(area, selected ? colour::kHighlight : background());
  if (static_cast<int>(item.itemID) < 0) return;
  std::wstring text(static_cast<std::size_t>(Send(CB_GETLBTEXTLEN, item.itemID)) + 1, L'\0');
  const LRESULT length = Send(CB_GETLBTEXT, item.itemID, reinterpret_cast<LPARAM>(text.data()));
  text.resize(static_cast<std::size_t>(length < 0 ? 0 : length));
  const std::string name = FromWide(text);
  FontStyle own = font();
  if (kind_ == ListKind::kFontCombo) {
    own.face = name;
    if (IsSymbolFont(item.hDC, drawing().fonts.Get(own))) own.face = font().face;
  }
  const int room = font().height / 4;  // grows with the screen's dpi as the font does
  const Rect inside{area.left + room, area.top, area.width - 2 * room, area.height};
  const Colour colour = !Enabled() ? colour::kGrayText
                        : selected ? colour::kHighlightText
                                   : text_colour();
  canvas.Text(inside, name, own, colour, TextAlign::kLeft);
}

CheckListWidget::CheckListWidget(const NewWidget& widget) : WidgetOf(widget) {
  constexpr DWORD kList = LVS_REPORT | LVS_NOCOLUMNHEADER | LVS_SINGLESEL | LVS_SHOWSELALWAYS;
  MakeControl(WC_LISTVIEWW, {kStopChild | kList, WS_EX_CLIENTEDGE}, widget);
  constexpr DWORD kExtended = LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER;
  Send(LVM_SETEXTENDEDLISTVIEWSTYLE, kExtended, kExtended);
  LVCOLUMNW column{};
  column.mask = LVCF_WIDTH;
  Send(LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
}

void CheckListWidget::Replace(int first, int removed, std::span<const std::string> added) {
  const Quiet quiet(*this);
  const Frozen frozen(hwnd());
  if (removed == Count()) {
    Send(LVM_DELETEALLITEMS);
  } else {
    for (int i = 0; i < removed; ++i) Send(LVM_DELETEITEM, static_cast<WPARAM>(first));
  }
  LVITEMW item{};
  item.mask = LVIF_TEXT;
  item.iItem = first;
  for (const std::string& row : added) {
    std::wstring text = ToWide(row);
    item.pszText = text.data();
    Send(LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    ++item.iItem;
  }
  reported_index_ = Index();
}

int CheckListWidget::Count() const { return static_cast<int>(Send(LVM_GETITEMCOUNT)); }

void CheckListWidget::SetIndex(int index) {
  const Quiet quiet(*this);
  constexpr UINT kBoth = LVIS_SELECTED | LVIS_FOCUSED;
  LVITEMW state{};
  state.stateMask = kBoth;
  state.state = index < 0 ? 0 : kBoth;
  // To none: all rows lose it.
  Send(LVM_SETITEMSTATE, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&state));
  if (index >= 0) Send(LVM_ENSUREVISIBLE, static_cast<WPARAM>(index), FALSE);
  reported_index_ = Index();
}

int CheckListWidget::Index() const {
  return static_cast<int>(Send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

void CheckListWidget::SetChecked(int row, bool checked) {
  const Quiet quiet(*this);
  LVITEMW state{};
  state.stateMask = LVIS_STATEIMAGEMASK;
  state.state = INDEXTOSTATEIMAGEMASK(checked ? 2U : 1U);
  Send(LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&state));
}

bool CheckListWidget::Checked(int row) const {
  return Send(LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_STATEIMAGEMASK) ==
         static_cast<LRESULT>(INDEXTOSTATEIMAGEMASK(2));
}

std::optional<LRESULT> CheckListWidget::HandleNotification(const Message& message) {
  if (message.id != WM_NOTIFY) return WidgetOf::HandleNotification(message);
  if (!IsQuiet()) RowChanged(*reinterpret_cast<const NMHDR*>(message.l));
  return std::nullopt;
}

void CheckListWidget::RowChanged(const NMHDR& notification) {
  if (notification.code == NM_CLICK) {  // also beside the rows, which deselects
    ReportIndex();
    return;
  }
  if (notification.code != LVN_ITEMCHANGED) return;
  const auto& change = reinterpret_cast<const NMLISTVIEW&>(notification);
  if ((change.uChanged & LVIF_STATE) == 0) return;
  const UINT box_before = change.uOldState & LVIS_STATEIMAGEMASK;
  if (box_before != 0 && box_before != (change.uNewState & LVIS_STATEIMAGEMASK)) {
    events().OnRowChecked(change.iItem);
    return;
  }
  // When the selection moves, a row loses it first.
  if ((change.uNewState & LVIS_SELECTED) != 0) ReportIndex();
}

void CheckListWidget::ReportIndex() {
  const int index = Index();
  if (std::exchange(reported_index_, index) != index) events().OnChanged();
}

std::optional<LRESULT> CheckListWidget::Handle(const Message& message) {
  if (message.id == WM_SIZE && Reporting()) {
    const Lifetime::Watch watch(lifetime());
    const std::optional<LRESULT> answer = WidgetOf::Handle(message);
    if (!watch.Gone()) Send(LVM_SETCOLUMNWIDTH, 0, ClientSize().width);
    return answer;
  }
  return WidgetOf::Handle(message);
}

TreeWidget::TreeWidget(const NewWidget& widget) : WidgetOf(widget) {
  // Without a scroll bar for sideways: Wine shows one although the rows have room.
  constexpr DWORD kTree =
      TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT | TVS_SHOWSELALWAYS | TVS_NOHSCROLL;
  MakeControl(WC_TREEVIEWW, {kStopChild | kTree, WS_EX_CLIENTEDGE}, widget);
}

void TreeWidget::SetItems(std::span<const TreeItem> items) {
  const Quiet quiet(*this);
  Send(WM_SETREDRAW, FALSE);
  Send(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT));
  items_.clear();
  std::vector<HTREEITEM> branch;  // the last item of each level
  for (const TreeItem& item : items) {
    branch.resize(std::min(branch.size(), static_cast<std::size_t>(std::max(item.level, 0))));
    std::wstring text = ToWide(item.text);
    TVINSERTSTRUCTW insertion{};
    insertion.hParent = branch.empty() ? TVI_ROOT : branch.back();
    insertion.hInsertAfter = TVI_LAST;
    insertion.item.mask = TVIF_TEXT | TVIF_PARAM;
    insertion.item.pszText = text.data();
    insertion.item.lParam = static_cast<LPARAM>(items_.size());
    items_.push_back(reinterpret_cast<HTREEITEM>(
        Send(TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insertion))));
    branch.push_back(items_.back());
  }
  ExpandAll();
  Send(WM_SETREDRAW, TRUE);
  Invalidate();
}

void TreeWidget::SetIndex(int index) {
  if (index == Index()) return;
  const Quiet quiet(*this);
  const bool exists = index >= 0 && index < static_cast<int>(items_.size());
  const HTREEITEM item = exists ? items_[static_cast<std::size_t>(index)] : nullptr;
  Send(TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(item));
}

int TreeWidget::Index() const {
  const auto selected = reinterpret_cast<HTREEITEM>(Send(TVM_GETNEXTITEM, TVGN_CARET));
  const auto found = std::find(items_.begin(), items_.end(), selected);
  return selected == nullptr || found == items_.end() ? -1
                                                      : static_cast<int>(found - items_.begin());
}

void TreeWidget::ExpandAll() {
  const Quiet quiet(*this);
  for (const HTREEITEM item : items_) {
    Send(TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(item));
  }
}

// The indent is also that of the boxes, which the system does not enlarge with the font. It comes
// before the font: by a change of the indent the system may measure the texts in another one.
void TreeWidget::SetFont(const FontStyle& font) {
  constexpr int kIndent = 19;  // design pixels
  const int indent = ScaledFor(hwnd(), kIndent);
  if (indent != Send(TVM_GETINDENT)) Send(TVM_SETINDENT, static_cast<WPARAM>(indent));
  WidgetOf::SetFont(font);
}

std::optional<LRESULT> TreeWidget::HandleNotification(const Message& message) {
  if (message.id != WM_NOTIFY) return WidgetOf::HandleNotification(message);
  const auto* notification = reinterpret_cast<const NMHDR*>(message.l);
  if (notification->code == TVN_SELCHANGEDW && !IsQuiet()) events().OnChanged();
  return std::nullopt;
}

}  // namespace platform::windows
