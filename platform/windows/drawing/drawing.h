// The objects that all drawing code shares.
#pragma once

#include "platform/windows/drawing/back_buffer.h"
#include "platform/windows/drawing/font_cache.h"

namespace platform::windows {

struct Drawing {
  FontCache fonts;
  BackBuffer back_buffer{fonts};
};

}  // namespace platform::windows
