// Draws menus in a flat style: a column for pictures and checks, the text, the shortcut.
#pragma once

#include "platform/menus.h"
#include "toolkit/menus/image_list.h"

namespace toolkit {

class Application;

class MenuPainter final : public platform::MenuPainter {
 public:
  MenuPainter(Application& app, const ImageList& images) : app_(app), images_(images) {}

  [[nodiscard]] platform::Size Measure(const platform::MenuEntry& entry, platform::Canvas& canvas,
                                       int dpi) override;
  void Paint(const platform::MenuEntry& entry, const platform::MenuEntryState& state,
             platform::Canvas& canvas, const platform::Rect& area) override;
  void Highlighted(const platform::MenuEntry* entry, const platform::Rect& area) override;

 private:
  void PaintMark(const platform::MenuEntry& entry, const platform::MenuEntryState& state,
                 platform::Canvas& canvas, const platform::Rect& column);

  Application& app_;
  const ImageList& images_;
};

}  // namespace toolkit
