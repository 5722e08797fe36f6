// Shows traffic on the keyboard's lights: Scroll Lock for download, Num Lock for upload.
#pragma once

#include "alerts/system_manager.h"
#include "engine/traffic_state.h"
#include "settings/store.h"

namespace alerts {

// Sets the lights that the user gave to the traffic, by comparing the bytes of the scan with
// "spnKeyLedsLimit" (bytes). The other lights are never touched.
void UpdateKeyboardLeds(settings::Store& store, TQelSysKeys& keys, const engine::ScanAmounts& scan);

}  // namespace alerts
