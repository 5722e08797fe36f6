// The user's conventions as the system knows them.
#pragma once

#include "platform/locale.h"

namespace platform::windows {

class Locale : public platform::Locale {
 public:
  [[nodiscard]] std::string DecimalSeparator() override;
  [[nodiscard]] std::string ShortDate(DateTime moment) override;
  [[nodiscard]] std::string LongTime(DateTime moment) override;
  [[nodiscard]] std::string Lower(std::string_view text) override;
  [[nodiscard]] std::string FromCodePage(std::string_view bytes) override;
};

}  // namespace platform::windows
