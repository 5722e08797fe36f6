// The user's language conventions and the system's code page.
#pragma once

#include <string>
#include <string_view>

#include "platform/date_time.h"

namespace platform {

class Locale {
 public:
  virtual ~Locale() = default;

  // Returns the decimal separator of the user's number format, such as "," (LOCALE_SDECIMAL).
  [[nodiscard]] virtual std::string DecimalSeparator() = 0;
  // Returns a date in the user's short form, or an empty text for a date before 1601, which the
  // system's calendar lacks.
  [[nodiscard]] virtual std::string ShortDate(DateTime moment) = 0;
  // Returns a time of day in the user's long form.
  [[nodiscard]] virtual std::string LongTime(DateTime moment) = 0;
  // Returns the text in small letters, for all scripts and whatever the user's language
  // (LCMapStringEx).
  [[nodiscard]] virtual std::string Lower(std::string_view text) = 0;
  // Converts bytes in the system's code page (CP_ACP) to UTF-8.
  [[nodiscard]] virtual std::string FromCodePage(std::string_view bytes) = 0;
};

}  // namespace platform
