#include "platform/windows/widgets/bar_widgets.h"

#include <algorithm>
#include <utility>

#include "platform/windows/win32.h"

namespace platform::windows {

TrackBarWidget::TrackBarWidget(const NewWidget& widget) : WidgetOf(widget) {
  MakeControl(TRACKBAR_CLASSW, {kStopChild | TBS_HORZ | TBS_AUTOTICKS, 0}, widget);
}

void TrackBarWidget::SetRange(int lowest, int highest, int page) {
  Send(TBM_SETRANGEMIN, FALSE, lowest);
  Send(TBM_SETRANGEMAX, FALSE, highest);
  Send(TBM_SETPAGESIZE, 0, page);
  Send(TBM_SETTICFREQ, static_cast<WPARAM>(std::max(page, 1)));
  SetPosition(std::clamp(Position(), lowest, std::max(lowest, highest)));
}

void TrackBarWidget::SetPosition(int position) {
  Send(TBM_SETPOS, TRUE, position);
  reported_ = Position();
}

int TrackBarWidget::Position() const { return static_cast<int>(Send(TBM_GETPOS)); }

std::optional<LRESULT> TrackBarWidget::HandleNotification(const Message& message) {
  if (message.id != WM_HSCROLL) return WidgetOf::HandleNotification(message);
  // Told at the end of a movement as well.
  const int position = Position();
  if (std::exchange(reported_, position) != position) events().OnChanged();
  return 0;
}

ProgressBarWidget::ProgressBarWidget(const NewWidget& widget) : WidgetOf(widget) {
  MakeControl(PROGRESS_CLASSW, {kChild | WS_GROUP | PBS_SMOOTH, 0}, widget);
}

void ProgressBarWidget::SetRange(int lowest, int highest) {
  Send(PBM_SETRANGE32, static_cast<WPARAM>(lowest), highest);
}

void ProgressBarWidget::SetPosition(int position) {
  Send(PBM_SETPOS, static_cast<WPARAM>(position));
}

}  // namespace platform::windows
