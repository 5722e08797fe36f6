#include "toolkit/menus/short_cut.h"

namespace toolkit {
namespace {

std::string KeyName(unsigned key) {
  constexpr unsigned kF1 = 0x70;
  constexpr unsigned kF24 = 0x87;
  if ((key >= '0' && key <= '9') || (key >= 'A' && key <= 'Z')) {
    return std::string(1, static_cast<char>(key));
  }
  if (key >= kF1 && key <= kF24) return "F" + std::to_string(key - kF1 + 1);
  return {};
}

}  // namespace

platform::KeyCombination CombinationOf(ShortCut short_cut) {
  return {static_cast<std::uint8_t>(short_cut & 0xFF), (short_cut & kShift) != 0,
          (short_cut & kCtrl) != 0, (short_cut & kAlt) != 0};
}

std::string ShortCutText(ShortCut short_cut) {
  const std::string key = KeyName(short_cut & 0xFFU);
  if (key.empty()) return {};
  std::string text;
  if ((short_cut & kShift) != 0) text += "Shift+";
  if ((short_cut & kCtrl) != 0) text += "Ctrl+";
  if ((short_cut & kAlt) != 0) text += "Alt+";
  return text + key;
}

}  // namespace toolkit
