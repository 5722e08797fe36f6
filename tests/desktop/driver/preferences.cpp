#include "tests/desktop/driver/preferences.h"

#include "tests/desktop/driver/windows_of.h"
// Behind the system's own header, which it needs.
#include <commctrl.h>

namespace desktop {

void ChoosePage(HWND preferences, PageRow row) {
  const HWND tree = FindControl(preferences, L"TreeItems");
  LRESULT item = ::SendMessageW(tree, TVM_GETNEXTITEM, TVGN_ROOT, 0);
  for (int left = static_cast<int>(row); left > 0; --left) {
    item = ::SendMessageW(tree, TVM_GETNEXTITEM, TVGN_NEXTVISIBLE, item);
  }
  ::SendMessageW(tree, TVM_SELECTITEM, TVGN_CARET, item);
}

}  // namespace desktop
