#include "toolkit/controls/track_bar.h"

#include <algorithm>
#include <utility>

#include "toolkit/application.h"

namespace toolkit {

TrackBar::TrackBar(Control& parent, std::string_view name) : Control(parent.App(), &parent, name) {
  auto bar = App().Platform().windowing.CreateTrackBar(PeerOf(parent), name, *this);
  bar_ = bar.get();
  Attach(std::move(bar));
}

void TrackBar::SetRange(int lowest, int highest, int page) {
  lowest_ = lowest;
  highest_ = std::max(lowest, highest);
  bar_->SetRange(lowest_, highest_, page);
  SetPosition(position_);
}

void TrackBar::SetPosition(int position) {
  const int wanted = std::clamp(position, lowest_, highest_);
  if (wanted == position_) return;
  position_ = wanted;
  bar_->SetPosition(position_);
  Fire(OnChange);
}

void TrackBar::OnChanged() {
  if (std::exchange(position_, bar_->Position()) != position_) Fire(OnChange);
}

}  // namespace toolkit
