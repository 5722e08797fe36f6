#include "toolkit/controls/layout.h"

namespace toolkit {

void ApplyLayout(std::initializer_list<LayoutRow> rows) {
  for (const LayoutRow& row : rows) {
    row.control.SetBounds(row.bounds);
    if (!row.caption.empty()) row.control.SetCaption(row.caption);
    if (!row.hint.empty()) row.control.SetHint(row.hint);
  }
}

}  // namespace toolkit
