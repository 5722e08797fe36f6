// The administrator lock, which protects the settings and the exit of the program with a password.
#pragma once

#include <string_view>

#include "settings/store.h"

namespace settings {

// Returns whether the lock is on. The password stays stored while the lock is off.
[[nodiscard]] bool LockEngaged(Store& store);

// Returns whether a text is the stored password; the case of the letters matters.
//   if_none  the text that counts as the password when none is stored
[[nodiscard]] bool PasswordMatches(Store& store, std::string_view typed,
                                   std::string_view if_none = {});

}  // namespace settings
