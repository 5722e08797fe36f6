// A track bar (slider).
#pragma once

#include <functional>

#include "platform/controls.h"
#include "toolkit/controls/control.h"

namespace toolkit {

class TrackBar : public Control {
 public:
  TrackBar(Control& parent, std::string_view name);

  [[nodiscard]] KeyRole Role() const override { return KeyRole::kStop; }
  // `page` is the step of the page keys. Moves the position into the range.
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
  platform::TrackBar* bar_ = nullptr;  // the peer, owned by Control
  int lowest_ = 0;
  int highest_ = 100;
  int page_ = 0;  // until it is set, the system's
  int position_ = 0;
};

}  // namespace toolkit
