// Fonts that are made once and used often.
#pragma once

#include <memory>
#include <vector>

#include "platform/canvas.h"
#include "platform/windows/drawing/gdi.h"

namespace platform::windows {

using SharedFont = std::shared_ptr<const Font>;

class FontCache {
 public:
  // Returns the font for `spec`, or the system's nearest one, or null when the system is out of
  // memory. A control that goes on using a font keeps the returned pointer, since the cache drops
  // the font that has not been asked for longest.
  [[nodiscard]] SharedFont Get(const FontSpec& spec);

 private:
  struct Entry {
    FontSpec spec;
    SharedFont font;
  };

  std::vector<Entry> entries_;  // the font that was asked for last stands at the end
};

}  // namespace platform::windows
