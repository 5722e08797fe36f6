#include "toolkit/controls/progress_bar.h"

#include <utility>

#include "toolkit/application.h"

namespace toolkit {

ProgressBar::ProgressBar(Control& parent, std::string_view name)
    : Control(parent.App(), &parent, name) {
  Attach([this](platform::Windowing& windowing, platform::Widget& on) {
    return Remember(windowing.CreateProgressBar(on, Name(), *this), bar_);
  });
}

void ProgressBar::Realised() {
  bar_->SetRange(lowest_, highest_);
  bar_->SetPosition(position_);
}

void ProgressBar::SetRange(int lowest, int highest) {
  lowest_ = lowest;
  highest_ = highest;
  if (bar_ != nullptr) bar_->SetRange(lowest, highest);
}

void ProgressBar::SetPosition(int position) {
  const bool changes = std::exchange(position_, position) != position;
  if (changes && bar_ != nullptr) bar_->SetPosition(position);
}

}  // namespace toolkit
