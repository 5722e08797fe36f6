// Language conventions that a test chooses.
#pragma once

#include "platform/locale.h"

namespace platform::memory {

// Writes dates as 31.12.2024 and times as 13:05:09; the code page is Latin-1.
class Locale : public platform::Locale {
 public:
  [[nodiscard]] std::string DecimalSeparator() override { return decimal_separator; }
  [[nodiscard]] std::string ShortDate(DateTime moment) override;
  [[nodiscard]] std::string LongTime(DateTime moment) override;
  // Changes the letters that FoldCase knows.
  [[nodiscard]] std::string Lower(std::string_view text) override;
  [[nodiscard]] std::string FromCodePage(std::string_view bytes) override;

  std::string decimal_separator = ",";
};

}  // namespace platform::memory
