#include "settings/autostart.h"

namespace settings {

void StartWithWindows(Store& store, std::string_view program_path, bool on) {
  constexpr std::string_view kRunValue = "BrisantoXP";
  if (on) {
    store.WriteString(KeyIndex::kRun, kRunValue, program_path);  // no quotes, no arguments
  } else {
    store.DeleteRunValue(kRunValue);
  }
}

}  // namespace settings
