// A progress bar, which shows how far something has come.
#pragma once

#include "platform/controls.h"
#include "toolkit/controls/control.h"

namespace toolkit {

// The range is 0 to 100 at first.
class ProgressBar : public Control {
 public:
  ProgressBar(Control& parent, std::string_view name);

  void SetRange(int lowest, int highest);
  [[nodiscard]] int Position() const { return position_; }
  void SetPosition(int position);

 protected:
  void Realised() override;

 private:
  platform::ProgressBar* bar_ = nullptr;  // the peer, owned by Control
  int lowest_ = 0;
  int highest_ = 100;
  int position_ = 0;
};

}  // namespace toolkit
