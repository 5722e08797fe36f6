#include "toolkit/controls/bars.h"

#include <algorithm>

#include "toolkit/application.h"

namespace toolkit {

TrackBar::TrackBar(Control& parent, std::string_view name) : ControlOf(parent, name) {
  Attach([this](platform::Windowing& windowing, platform::Widget& on) {
    return windowing.CreateTrackBar(on, Name(), *this);
  });
}

void TrackBar::Realised() {
  if (page_ > 0) Peer()->SetRange(lowest_, highest_, page_);
  Peer()->SetPosition(position_);
}

void TrackBar::SetRange(int lowest, int highest, int page) {
  lowest_ = lowest;
  highest_ = std::max(lowest, highest);
  page_ = page;
  if (Peer() != nullptr) Peer()->SetRange(lowest_, highest_, page_);
  SetPosition(position_);
}

void TrackBar::SetPosition(int position) {
  if (!Assign(position_, std::clamp(position, lowest_, highest_))) return;
  if (Peer() != nullptr) Peer()->SetPosition(position_);
  Fire(OnChange);
}

void TrackBar::OnChanged() {
  if (Assign(position_, Peer()->Position())) Fire(OnChange);
}

ProgressBar::ProgressBar(Control& parent, std::string_view name) : ControlOf(parent, name) {
  Attach([this](platform::Windowing& windowing, platform::Widget& on) {
    return windowing.CreateProgressBar(on, Name(), *this);
  });
}

void ProgressBar::Realised() {
  Peer()->SetRange(lowest_, highest_);
  Peer()->SetPosition(position_);
}

void ProgressBar::SetRange(int lowest, int highest) {
  lowest_ = lowest;
  highest_ = highest;
  if (Peer() != nullptr) Peer()->SetRange(lowest, highest);
}

void ProgressBar::SetPosition(int position) {
  if (Assign(position_, position) && Peer() != nullptr) Peer()->SetPosition(position);
}

}  // namespace toolkit
