// What a row of the interface table says about its adapter.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "platform/interface_table.h"
#include "platform/locale.h"
#include "settings/store.h"

namespace engine {

// The description, which is the adapter's identity everywhere in the program. May be empty.
[[nodiscard]] std::string AdapterDescription(const platform::InterfaceRow& row,
                                             platform::Locale& locale);

// Whether this is the loopback, which neither counts nor is persisted. The case of A to Z does not
// matter, a blank at an end does.
[[nodiscard]] bool IsLoopback(std::string_view description);

// "00-1A-2B-3C-4D-5E"; "00-00-00-00-00-00" for no bytes at all.
[[nodiscard]] std::string FormatMacAddress(std::span<const std::uint8_t> address);
[[nodiscard]] std::string FormatMacAddress(const platform::InterfaceRow& row);

// Stores hardware address, speed and MTU.
void WriteAdapterData(settings::Store& store, std::string_view description,
                      const platform::InterfaceRow& row);

}  // namespace engine
