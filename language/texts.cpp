#include "language/texts.h"

namespace language {
namespace {

constexpr std::string_view kPlaceHolder = "%s";

constexpr TextEntry kTexts[] = {
// clang-format off
#define UI_HEADING(words) {"", "", words},
#define UI_TEXT(section, key, english) {#section, #key, english},
// clang-format on
#include "language/texts.inc"
};

}  // namespace

std::span<const TextEntry> TextCatalogue() { return kTexts; }

const TextEntry* FindText(std::string_view section, std::string_view key) {
  for (const TextEntry& entry : kTexts) {
    if (entry.key == key && entry.section == section) return &entry;
  }
  return nullptr;
}

int PlaceHolders(std::string_view text) {
  int count = 0;
  for (std::size_t at = text.find(kPlaceHolder); at != std::string_view::npos;
       at = text.find(kPlaceHolder, at + kPlaceHolder.size())) {
    ++count;
  }
  return count;
}

std::string Filled(std::string_view format, std::initializer_list<std::string_view> values) {
  std::string filled;
  for (const std::string_view value : values) {
    const std::size_t at = format.find(kPlaceHolder);
    if (at == std::string_view::npos) break;
    filled.append(format.substr(0, at)).append(value);
    format.remove_prefix(at + kPlaceHolder.size());
  }
  return filled.append(format);
}

}  // namespace language
