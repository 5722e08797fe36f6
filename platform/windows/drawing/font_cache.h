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
  // The font for `spec`, or the system's nearest one. Null when the system is out of memory. A
  // control that goes on using a font keeps what this returns: the cache forgets the font that has
  // not been asked for longest.
  [[nodiscard]] SharedFont Get(const FontSpec& spec);

 private:
  struct Entry {
    FontSpec spec;
    SharedFont font;
  };

  std::vector<Entry> entries_;  // the one asked for last at the end
};

}  // namespace platform::windows
