// Track bars (sliders), and progress bars, which show how far something has come.
#pragma once

#include <functional>

#include "platform/controls.h"
#include "toolkit/controls/control.h"

namespace toolkit {

class TrackBar : public ControlOf<platform::TrackBar> {
 public:
  TrackBar(Control& parent, std::string_view name);

  [[nodiscard]] KeyRole Role() const override { return KeyRole::kStop; }
  // Sets the range and the step of the page keys, and moves the position into the range.
  void SetRange(int lowest, int highest, int page);
  [[nodiscard]] int Position() const { return position_; }
  // A position outside the range is moved into it.
  void SetPosition(int position);

  // Runs when the position has changed.
  std::function<void()> OnChange;

 protected:
  void OnChanged() override;
  void Realised() override;

 private:
  int lowest_ = 0;
  int highest_ = 100;
  int page_ = 0;  // until it is set, the system's
  int position_ = 0;
};

// The range is 0 to 100 at first.
class ProgressBar : public ControlOf<platform::ProgressBar> {
 public:
  ProgressBar(Control& parent, std::string_view name);

  void SetRange(int lowest, int highest);
  [[nodiscard]] int Position() const { return position_; }
  void SetPosition(int position);

 protected:
  void Realised() override;

 private:
  int lowest_ = 0;
  int highest_ = 100;
  int position_ = 0;
};

}  // namespace toolkit
