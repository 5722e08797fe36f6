#include "platform/windows/drawing/font_cache.h"

#include <algorithm>
#include <cwchar>
#include <string>
#include <utility>

#include "platform/windows/wide.h"

namespace platform::windows {
namespace {

// This is enough for all fonts that are visible at once. A list that shows each font in its own
// face uses more, and must not keep them all.
constexpr std::size_t kKept = 16;

Font Make(const FontSpec& spec) {
  LOGFONTW description{};
  description.lfHeight = -std::max(spec.height, 1);  // negative: without internal leading
  description.lfWeight = spec.bold ? FW_BOLD : FW_NORMAL;
  description.lfCharSet = DEFAULT_CHARSET;
  description.lfQuality = DEFAULT_QUALITY;  // the smoothing that the user has chosen
  const std::wstring face = ToWide(spec.face).substr(0, LF_FACESIZE - 1);
  std::copy(face.begin(), face.end(), description.lfFaceName);
  return Font(::CreateFontIndirectW(&description));
}

}  // namespace

SharedFont FontCache::Get(const FontSpec& spec) {
  const auto found = std::find_if(entries_.begin(), entries_.end(),
                                  [&spec](const Entry& entry) { return entry.spec == spec; });
  if (found != entries_.end()) {
    std::rotate(found, found + 1, entries_.end());
    return entries_.back().font;
  }
  Font font = Make(spec);
  if (!font) return nullptr;
  if (entries_.size() == kKept) entries_.erase(entries_.begin());
  entries_.push_back({spec, std::make_shared<const Font>(std::move(font))});
  return entries_.back().font;
}

}  // namespace platform::windows
