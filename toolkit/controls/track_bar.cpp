#include "toolkit/controls/track_bar.h"

#include <algorithm>
#include <utility>

#include "toolkit/application.h"

namespace toolkit {

TrackBar::TrackBar(Control& parent, std::string_view name) : Control(parent.App(), &parent, name) {
  Attach([this](platform::Windowing& windowing, platform::Widget& on) {
    return Remember(windowing.CreateTrackBar(on, Name(), *this), bar_);
  });
}

void TrackBar::Realised() {
  if (page_ > 0) bar_->SetRange(lowest_, highest_, page_);
  bar_->SetPosition(position_);
}

void TrackBar::SetRange(int lowest, int highest, int page) {
  lowest_ = lowest;
  highest_ = std::max(lowest, highest);
  page_ = page;
  if (bar_ != nullptr) bar_->SetRange(lowest_, highest_, page_);
  SetPosition(position_);
}

void TrackBar::SetPosition(int position) {
  const int wanted = std::clamp(position, lowest_, highest_);
  if (wanted == position_) return;
  position_ = wanted;
  if (bar_ != nullptr) bar_->SetPosition(position_);
  Fire(OnChange);
}

void TrackBar::OnChanged() {
  if (std::exchange(position_, bar_->Position()) != position_) Fire(OnChange);
}

}  // namespace toolkit
