#include "platform/windows/widgets/late_widgets.h"

#include <algorithm>
#include <stdexcept>

#include "platform/windows/win32.h"

namespace platform::windows {
namespace {

// The system tells of a timer when there is nothing else to tell of.
constexpr int kIdleMs = 10;

// Whether the user or the system wants something done, or painted.
bool SomethingWaits() {
  return HIWORD(::GetQueueStatus(QS_INPUT | QS_PAINT | QS_POSTMESSAGE | QS_SENDMESSAGE)) != 0;
}

}  // namespace

void LateWidgets::Add(LateWidget& widget) {
  waiting_.push_back(&widget);
  if (!idle_) idle_ = timers_.Start(kIdleMs, [this] { MakeSome(); });
}

void LateWidgets::MakeAllOf(const Surface& page) {
  // Searched anew each time: what is made may report a size, and that may make or end others.
  for (;;) {
    const auto next =
        std::find_if(waiting_.begin(), waiting_.end(),
                     [&page](const LateWidget* late) { return late->page_ == &page; });
    if (next == waiting_.end()) return;
    Make(**next);
  }
}

void LateWidgets::Forget(const Surface& page) {
  std::erase_if(waiting_, [&page](LateWidget* late) {
    if (late->page_ != &page) return false;
    late->page_ = nullptr;
    return true;
  });
}

void LateWidgets::MakeSome() {
  while (!waiting_.empty()) {
    Make(*waiting_.front());
    if (SomethingWaits()) return;
  }
  idle_.reset();
}

void LateWidgets::Make(LateWidget& widget) {
  Remove(widget);  // first: one that fails is not tried for ever
  widget.Make();
}

void LateWidget::Need() const {
  if (Made() == nullptr && page_ != nullptr) queue_.MakeAllOf(*page_);
  if (Made() == nullptr) throw std::runtime_error("a control has no window");
}

}  // namespace platform::windows
