// The system's own dialogs.
#pragma once

#include <array>
#include <vector>

#include "platform/system_dialogs.h"
#include "platform/windows/system_handles.h"

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
  // Returns the library with the dialogs, or null when there is none. It is loaded at the first
  // use, since loading it takes longer than the rest of the program's start.
  [[nodiscard]] HMODULE Dialogs();

  Library library_;
  std::array<COLORREF, 16> mixed_;  // the user's own colours
  std::vector<HWND> disabled_;      // the dialogs that SetEnabled has disabled
};

}  // namespace platform::windows
