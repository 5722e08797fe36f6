#include "toolkit/controls/progress_bar.h"

#include <utility>

#include "toolkit/application.h"

namespace toolkit {

ProgressBar::ProgressBar(Control& parent, std::string_view name)
    : Control(parent.App(), &parent, name) {
  auto bar = App().Platform().windowing.CreateProgressBar(PeerOf(parent), name, *this);
  bar_ = bar.get();
  Attach(std::move(bar));
}

void ProgressBar::SetPosition(int position) {
  if (std::exchange(position_, position) != position) bar_->SetPosition(position);
}

}  // namespace toolkit
