// Copies a text to the clipboard.
#pragma once

#include <string_view>

#include "platform/clipboard.h"
#include "platform/text.h"

namespace toolkit {

// Puts the first 255 characters on the clipboard. Does nothing when another program holds the
// clipboard.
inline void CopyText(platform::Clipboard& clipboard, std::string_view text) {
  clipboard.SetText(platform::CutCharacters(text, 255));
}

}  // namespace toolkit
