#include "settings/administrator_lock.h"

namespace settings {

bool LockEngaged(Store& store) { return store.Read(setting::zdP1); }

bool PasswordMatches(Store& store, std::string_view typed, std::string_view if_none) {
  return store.ReadWith(setting::zdP, if_none) == typed;
}

}  // namespace settings
