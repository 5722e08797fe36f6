// The page "ResetSettings".
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "preferences/page.h"
#include "toolkit/controls/button.h"
#include "toolkit/controls/check_box.h"
#include "toolkit/controls/label.h"
#include "toolkit/controls/progress_bar.h"
#include "toolkit/timer.h"

namespace preferences {

class ResetSettingsPage final : public Page {
 public:
  // `read_settings` shows what is stored on all pages.
  ResetSettingsPage(toolkit::Notebook& notebook, Context& context,
                    std::function<void()> read_settings);

  void Localise(const language::Translation& say) override;

 private:
  using Boxes = std::vector<std::unique_ptr<toolkit::CheckBox>>;

  [[nodiscard]] static Boxes MakeBoxes(toolkit::Control& parent);
  void PlaceControls();
  void SelectAllClick();
  void GroupClick();
  void btnResetSettingsClick();
  void ShowInMeter(bool line_was_reset);
  void Progress();
  void EndProgress();

  std::function<void()> read_settings_;

  toolkit::Label lblReset;
  Boxes groups_;  // R1 to R12
  toolkit::CheckBox SelectAll;
  toolkit::Button btnResetSettings;
  toolkit::ProgressBar ResetSettingPrg;

  // The progress is for the eye; it goes on, hidden, when the window is closed, and ends with it.
  toolkit::Timer timer_;
  std::int64_t started_ = 0;  // ms of the steady clock
};

}  // namespace preferences
