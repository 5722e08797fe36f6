#include "settings/language.h"

namespace settings {

std::string Language::Text(std::string_view /*section*/, std::string_view /*key*/,
                           std::string_view fallback) const {
  return std::string(fallback);
}

}  // namespace settings
