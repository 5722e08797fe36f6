// Windows of their own on the desktop.
#pragma once

#include <optional>

#include "platform/geometry.h"
#include "platform/top_window.h"
#include "platform/windows/widgets/widget_window.h"
#include "platform/windows/win32.h"
#include "platform/windows/windows/bare_frame.h"
#include "platform/windows/windows/window_effects.h"

namespace platform::windows {

// Watches a window while the user moves or sizes it.
class DragWatch {
 public:
  [[nodiscard]] bool Active() const { return active_; }

  // Begins a drag of a window with these bounds. `grip` is where on the screen the pointer has hold
  // of the window; without one it is where the pointer is now, as when the system began the drag.
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

  // Returns the bounds that the pointer asks for, when the system proposes `proposed`. The system
  // counts on from the bounds that it was last given back: a window that was pulled to an edge
  // would never come away from it.
  [[nodiscard]] Rect Moving(const Rect& proposed) {
    POINT pointer{};
    if (!active_ || !::GetCursorPos(&pointer)) return proposed;
    heard_moves_ = true;
    return {start_.left + static_cast<int>(pointer.x - grip_.x),
            start_.top + static_cast<int>(pointer.y - grip_.y), proposed.width, proposed.height};
  }

  // Returns whether the window is elsewhere now without having been asked on the way, as where a
  // window manager (under Wine) does the moving.
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

class TopWindow final : public WidgetOf<platform::TopWindow> {
 public:
  // `owner`, never null, stays below the window.
  TopWindow(const WindowClass& window_class, const TopWindowParams& params, HWND owner,
            Drawing& drawing, TopWindowEvents& events);

  void SetVisible(bool visible) override;
  void Show(Activation activation) override;
  void SetTopmost(bool topmost) override;
  [[nodiscard]] bool Topmost() const override;
  void SetSizeLimits(Size smallest, Size largest) override;
  void SetClientSize(Size client) override;
  void SetScroll(const Scroll& scroll) override;
  void BeginDrag() override;
  [[nodiscard]] bool Dragging() const override { return drag_.Active(); }
  void SetAlpha(std::uint8_t alpha) override;
  void SetShape(std::span<const Rect> parts) override { shape_.Set(hwnd(), parts); }
  void ResetShape() override { shape_.Reset(hwnd()); }
  [[nodiscard]] bool UnderPointer() const override;
  void Raise() override;
  void ShowKeyMarks() override;
  [[nodiscard]] int Dpi() const override;

  // Returns whether the window has the keys of a dialog: it has a caption and may have the
  // keyboard.
  [[nodiscard]] bool TakesDialogKeys() const { return takes_dialog_keys_; }
  // Returns true when the key is done with; the window may be gone then.
  [[nodiscard]] bool Press(const DialogKey& key) { return events_.OnDialogKey(key); }
  // Is called when the focus came to this control of the window.
  void FocusMoved(HWND control);
  void HearMouse(HWND hwnd, const Message& message) override;

 protected:
  std::optional<LRESULT> Handle(const Message& message) override;

 private:
  // Each returns nullopt for a message of another kind.
  [[nodiscard]] std::optional<LRESULT> HandleKind(const Message& message);
  [[nodiscard]] std::optional<LRESULT> HandleWindow(const Message& message);
  [[nodiscard]] std::optional<LRESULT> HandleSystem(const Message& message);
  [[nodiscard]] std::optional<LRESULT> HandleDrag(const Message& message);
  [[nodiscard]] std::optional<LRESULT> HandleScroll(const Message& message);
  // Keep in mind where the keyboard was, and put it there again.
  void RememberFocus();
  void RestoreFocus();
  void FollowPointer();
  LRESULT HandlePlaced(const Message& message);
  void EndDrag();
  LRESULT HandleDpi(const Message& message);
  // Returns true once after the window was shown without taking the focus.
  [[nodiscard]] bool DeclinesFocus();
  void LimitSize(MINMAXINFO& info) const;

  TopWindowEvents& events_;
  const Frame frame_;
  const bool draws_frame_;  // sizeable and without a caption: draws its own frame
  const bool takes_dialog_keys_;
  HWND last_focus_ = nullptr;  // the child that had the keyboard when the window was last active
  HWND foreground_before_ = nullptr;  // what had the keyboard when this was shown with it
  SizeLimits limits_;
  Scroll scroll_;
  Rect reported_bounds_;
  ULONGLONG declines_focus_until_ = 0;  // in ticks of the system
  bool dragging_ = false;               // inside BeginDrag
  // Where the left button, still down, went down in the client area; nothing when that was
  // elsewhere.
  std::optional<POINT> pressed_;
  std::optional<POINT> grip_;  // inside BeginDrag: where on the screen the pointer has hold of it
  DragWatch drag_;
  WindowShape shape_;
};

}  // namespace platform::windows
