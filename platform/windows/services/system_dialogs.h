// The system's own dialogs.
#pragma once

#include <array>
#include <vector>

#include "platform/system_dialogs.h"
#include "platform/windows/library.h"

namespace platform::windows {

class SystemDialogs final : public platform::SystemDialogs {
 public:
  SystemDialogs();

  [[nodiscard]] std::optional<std::string> OpenFile(const OpenFileRequest& request,
                                                    platform::TopWindow& owner) override;
  [[nodiscard]] std::optional<Colour> ChooseColour(Colour present,
                                                   platform::TopWindow& owner) override;
  void SetEnabled(bool enabled) override;

 private:
  // The library with the dialogs, loaded at the first use: it costs more than the rest of the start
  // of the program. Null when there is none.
  [[nodiscard]] HMODULE Dialogs();

  Library library_;
  std::array<COLORREF, 16> mixed_;  // the user's own colours
  std::vector<HWND> disabled_;      // by SetEnabled
};

}  // namespace platform::windows
