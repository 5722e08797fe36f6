// Fills the registry at the first start.
#pragma once

#include "platform/date_time.h"
#include "settings/store.h"

namespace settings {

// Reads every integer, boolean, colour and date of the schema once with its read default, so that
// all of them exist afterwards with the right type. Texts and counters stay absent until something
// writes them.
//   today  midnight of the local date
void CreateMissingValues(Store& store, platform::DateTime today);

}  // namespace settings
