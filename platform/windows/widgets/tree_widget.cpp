#include "platform/windows/widgets/tree_widget.h"

#include <algorithm>

#include "platform/windows/wide.h"

namespace platform::windows {

TreeWidget::TreeWidget(HWND parent, std::string_view name, Drawing& drawing, WidgetEvents& events)
    : WidgetOf(drawing, events) {
  constexpr DWORD kTree = TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT | TVS_SHOWSELALWAYS;
  CreateControl(WC_TREEVIEWW, {kStopChild | kTree, WS_EX_CLIENTEDGE}, parent);
  PublishName(name);
  StartReporting();
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

std::optional<LRESULT> TreeWidget::HandleNotification(const Message& message) {
  if (message.id != WM_NOTIFY) return WidgetOf::HandleNotification(message);
  const auto* notification = reinterpret_cast<const NMHDR*>(message.l);
  if (notification->code == TVN_SELCHANGEDW && !IsQuiet()) events().OnChanged();
  return std::nullopt;
}

}  // namespace platform::windows
