// A window while the user moves or sizes it.
#pragma once

#include <optional>

#include "platform/geometry.h"
#include "platform/windows/win32.h"

namespace platform::windows {

class DragWatch {
 public:
  [[nodiscard]] bool Active() const { return active_; }

  // `grip`: where on the screen the pointer has hold of the window; nothing: where it is now, as
  // when the system began the drag.
  void Begin(const Rect& bounds, const std::optional<POINT>& grip) {
    active_ = true;
    heard_moves_ = false;
    start_ = bounds;
    if (grip) {
      grip_ = *grip;
    } else {
      ::GetCursorPos(&grip_);
    }
  }
  void End() { active_ = false; }

  // The bounds that the pointer asks for, when the system proposes `proposed`. The system counts on
  // from the bounds that it was last given back: a window that was pulled to an edge would never
  // come away from it.
  [[nodiscard]] Rect Moving(const Rect& proposed) {
    POINT pointer{};
    if (!active_ || !::GetCursorPos(&pointer)) return proposed;
    heard_moves_ = true;
    return {start_.left + static_cast<int>(pointer.x - grip_.x),
            start_.top + static_cast<int>(pointer.y - grip_.y), proposed.width, proposed.height};
  }

  // Whether the window is elsewhere now without having been asked on the way, as where a window
  // manager (under Wine) does the moving.
  [[nodiscard]] bool MovedByOthers(const Rect& bounds) const {
    return active_ && !heard_moves_ && bounds != start_ && bounds.width == start_.width &&
           bounds.height == start_.height;
  }

 private:
  bool active_ = false;
  bool heard_moves_ = false;
  Rect start_;
  POINT grip_{};
};

}  // namespace platform::windows
