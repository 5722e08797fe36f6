// The administrator lock: the settings and the exit of the program behind a password of the user's.
#pragma once

#include <string_view>

#include "settings/store.h"

namespace settings {

// Whether the lock is on. Off, the password stays stored.
[[nodiscard]] bool LockEngaged(Store& store);

// Whether a text is the stored password: letter by letter, capitals too.
//   if_none  taken for the password when none is stored
[[nodiscard]] bool PasswordMatches(Store& store, std::string_view typed,
                                   std::string_view if_none = {});

}  // namespace settings
