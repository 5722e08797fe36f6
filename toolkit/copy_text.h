// What the user copies.
#pragma once

#include <string_view>

#include "platform/clipboard.h"
#include "platform/text.h"

namespace toolkit {

// Puts the first 255 characters on the clipboard. Another program that holds the clipboard keeps
// it; then nothing happens.
inline void CopyText(platform::Clipboard& clipboard, std::string_view text) {
  clipboard.SetText(platform::CutCharacters(text, 255));
}

}  // namespace toolkit
