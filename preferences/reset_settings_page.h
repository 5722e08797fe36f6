// The page "ResetSettings".
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "preferences/page.h"
#include "toolkit/controls/button.h"
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
  static constexpr int kStepMs = 5;

  using Boxes = std::vector<std::unique_ptr<toolkit::CheckBox>>;

  [[nodiscard]] static Boxes MakeBoxes(toolkit::Control& parent);
  void SelectAllClick();
  void GroupClick();
  void btnResetSettingsClick();
  void ShowInMeter(bool line_was_reset);
  void Progress();
  void EndProgress();

  std::function<void()> read_settings_;

  toolkit::Label lblReset{*this, "lblReset", toolkit::kCaptionText};
  const Boxes groups_ = MakeBoxes(*this);  // R1 to R12
  toolkit::CheckBox SelectAll{*this, "SelectAll"};
  toolkit::Button btnResetSettings{*this, "btnResetSettings"};
  toolkit::ProgressBar ResetSettingPrg{*this, "ResetSettingPrg"};

  // The progress is for the eye; it goes on, hidden, when the window is closed, and ends with it.
  toolkit::Timer timer_{App(), kStepMs, [this] { Progress(); }};
  std::int64_t started_ = 0;  // ms of the steady clock
};

}  // namespace preferences
