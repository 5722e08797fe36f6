#include "settings/adapter_values.h"

#include "platform/text.h"

namespace settings {

std::string AdapterName(std::string_view description) { return platform::AsciiLower(description); }

std::string TrimmedAdapterName(std::string_view description) {
  return platform::Trim(AdapterName(description));
}

}  // namespace settings
