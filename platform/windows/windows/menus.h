// Popup menus, drawn by the program.
#pragma once

#include "platform/menus.h"
#include "platform/windows/drawing/drawing.h"
#include "platform/windows/windows/native_window.h"

namespace platform::windows {

// Gets the messages of the open menu. It is a window of its own, so that a menu that is opened from
// the notification area brings none of the program's windows to the front.
class MenuWindow final : public NativeWindow {
 public:
  MenuWindow(const WindowClass& window_class, Drawing& drawing);

  // Does what Menus::Popup does. `dpi` is the resolution at the place.
  [[nodiscard]] int Popup(Point at, const std::vector<MenuEntry>& entries, MenuPainter& painter,
                          int dpi);
  void Cancel();
  // Chooses the entry that has these keys. Returns false when none has.
  bool ChooseByKeys(const KeyCombination& keys);

 protected:
  std::optional<LRESULT> Handle(const Message& message) override;

 private:
  // The menu that is open.
  struct Session {
    MenuPainter& painter;
    int dpi;
    const std::vector<MenuEntry>& entries;
    const MenuEntry* highlighted = nullptr;
    int chosen_by_keys = 0;
  };

  void Measure(MEASUREITEMSTRUCT& item);
  void Draw(const DRAWITEMSTRUCT& item);
  void Select(const Message& message);
  void Highlight(const MenuEntry* entry, const Rect& area);

  Drawing& drawing_;
  Session* session_ = nullptr;  // on the stack of Popup
};

class Menus final : public platform::Menus {
 public:
  // `drawing` outlives the object.
  explicit Menus(Drawing& drawing) : window_(window_class_, drawing) {}

  // Returns 0 at once, without a menu, while another menu is open.
  [[nodiscard]] int Popup(Point at, const std::vector<MenuEntry>& entries,
                          MenuPainter& painter) override;
  void Cancel() override { window_.Cancel(); }

 private:
  WindowClass window_class_{"TremoluxMenu"};
  MenuWindow window_;
};

}  // namespace platform::windows
