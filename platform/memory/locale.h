// Language conventions that a test chooses.
#pragma once

#include <cstdio>

#include "platform/locale.h"
#include "platform/memory/case_fold.h"

namespace platform::memory {

// Writes dates as 31.12.2024 and times as 13:05:09; the code page is Latin-1.
class Locale : public platform::Locale {
 public:
  std::string DecimalSeparator() override { return decimal_separator; }
  // The system's calendar begins with the year 1601.
  std::string ShortDate(DateTime moment) override {
    const CivilDate date = DecodeDate(moment);
    return date.year < 1601 ? "" : Written("%02d.%02d.%04d", date.day, date.month, date.year);
  }
  std::string LongTime(DateTime moment) override {
    const ClockTime time = DecodeTime(moment);
    return Written("%02d:%02d:%02d", time.hour, time.minute, time.second);
  }
  // Changes the letters that FoldCase knows.
  std::string Lower(std::string_view text) override { return FoldCase(text); }
  std::string FromCodePage(std::string_view bytes) override {
    std::u16string wide;
    for (const char byte : bytes) wide += static_cast<unsigned char>(byte);
    return ToUtf8(wide);
  }

  std::string decimal_separator = ",";

 private:
  static std::string Written(const char* format, int first, int second, int third) {
    char text[40];
    std::snprintf(text, sizeof text, format, first, second, third);
    return text;
  }
};

}  // namespace platform::memory
