// What everything that draws shares.
#pragma once

#include "platform/windows/back_buffer.h"
#include "platform/windows/font_cache.h"

namespace platform::windows {

struct Drawing {
  FontCache fonts;
  BackBuffer back_buffer{fonts};
};

}  // namespace platform::windows
