// Reads what a row of the interface table says about its adapter.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "platform/interface_table.h"
#include "platform/locale.h"
#include "settings/store.h"

namespace engine {

// Returns the description, which is the adapter's identity everywhere in the program. It may be
// empty.
[[nodiscard]] std::string AdapterDescription(const platform::InterfaceRow& row,
                                             platform::Locale& locale);

// Returns whether this is the loopback, which is neither counted nor persisted. The case of A to Z
// does not matter; a blank at either end does.
[[nodiscard]] bool IsLoopback(std::string_view description);

// Returns a text like "00-1A-2B-3C-4D-5E", or "00-00-00-00-00-00" when there are no bytes.
[[nodiscard]] std::string FormatMacAddress(std::span<const std::uint8_t> address);
[[nodiscard]] std::string FormatMacAddress(const platform::InterfaceRow& row);

// Stores the adapter's hardware address, speed and MTU. Throws std::runtime_error when a write is
// refused.
void WriteAdapterData(settings::Store& store, std::string_view description,
                      const platform::InterfaceRow& row);

}  // namespace engine
