// The windows on the desktop and their titles.
#pragma once

#include "platform/other_windows.h"

namespace platform::windows {

class OtherWindows final : public platform::OtherWindows {
 public:
  [[nodiscard]] std::vector<WindowId> TopLevel() override;
  [[nodiscard]] WindowTitle Title(WindowId window, std::size_t characters) override;
  TitleOutcome SetTitle(WindowId window, std::string_view title, int patience_ms) override;
  [[nodiscard]] WindowId Foreground() override;
};

}  // namespace platform::windows
