#include "display/transparency.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "display/graph/picture.h"
#include "platform/scoped_value.h"
#include "toolkit/application.h"

namespace display {
namespace {

namespace setting = settings::setting;

constexpr int kOpaque = 255;
// Milliseconds of one step. A fade from the usual opacity to opaque takes a quarter of a second.
constexpr std::int64_t kFadeStep = 4;

int Alpha(std::int64_t stored) {
  return static_cast<int>(std::clamp<std::int64_t>(stored, 0, kOpaque));
}

// The frame that a window has around its client area, counted from the window's corner.
void AddFrame(std::vector<platform::Rect>& shape, platform::Size window,
              const platform::Rect& client) {
  const platform::Rect sides[] = {
      {0, 0, window.width, client.top},
      {0, client.Bottom(), window.width, window.height - client.Bottom()},
      {0, client.top, client.left, client.height},
      {client.Right(), client.top, window.width - client.Right(), client.height}};
  for (const platform::Rect& side : sides) {
    if (!side.Empty()) shape.push_back(side);
  }
}

}  // namespace

Transparency::Transparency(toolkit::Form& window, settings::Store& store, MainMenu& menu,
                           TKxInterMeter& meter, const toolkit::Panel& line)
    : window_(window), store_(store), menu_(menu), meter_(meter), line_(line) {}

void Transparency::ApplyStored() {
  const bool was_on = menu_.mnuTransparent2k->Checked();
  // A new meter is opaque, although later readers take "on" for the default.
  const bool on = store_.Read(setting::Transparent2k);
  if (on) {
    const std::int64_t ratio = store_.Read(setting::Win2kTransparentRatio);
    if (!was_on || !hovered_) SetWindowAlpha(ratio);
  } else if (was_on) {
    SetWindowAlpha(kOpaque);
  }
  menu_.mnuTransparent2k->SetChecked(on);
  SetTransparent(store_.Read(setting::Transparent));
}

void Transparency::ChangeRatio(std::int64_t ratio) {
  if (!menu_.mnuTransparent2k->Checked()) return;
  if (!hovered_ || !store_.Read(setting::AutoTransparentONOFF)) SetWindowAlpha(ratio);
}

void Transparency::ChangeAutomatic(bool on) {
  if (!menu_.mnuTransparent2k->Checked()) return;
  SetWindowAlpha(on && hovered_ ? kOpaque : store_.Read(setting::Win2kTransparentRatio));
}

void Transparency::mnuTransparent2kClick() {
  const bool on = !menu_.mnuTransparent2k->Checked();
  menu_.mnuTransparent2k->SetChecked(on);
  store_.Write(setting::Transparent2k, on);
  SetWindowAlpha(on ? store_.Read(setting::Win2kTransparentRatio) : kOpaque);
  if (OnToggled) OnToggled();
}

void Transparency::mnuTransparentClick() {
  const bool on = !menu_.mnuTransparent->Checked();
  store_.Write(setting::Transparent, on);
  SetTransparent(on);
}

void Transparency::SetTransparent(bool on) {
  menu_.mnuTransparent->SetChecked(on);
  for (toolkit::MenuItem* mode : {menu_.mnuGraphMode, menu_.mnuTextMode, menu_.mnuTextandGraph}) {
    mode->Enabled = !on;
  }
  meter_.Set(&GraphLook::Transparent, on);
}

void Transparency::SetWindowAlpha(std::int64_t alpha) {
  fade_target_.reset();
  ShowAlpha(Alpha(alpha));
}

void Transparency::ShowAlpha(int alpha) {
  alpha_ = alpha;
  window_.Window().SetAlpha(static_cast<std::uint8_t>(alpha));
}

void Transparency::PointerChanged() {
  const bool inside = window_.Window().UnderPointer();
  if (inside == hovered_) return;
  hovered_ = inside;
  if (!store_.Read(setting::AutoTransparentONOFF)) return;
  if (!store_.ReadWith(setting::Transparent2k, true)) return;
  const std::int64_t ratio = store_.Read(setting::Win2kTransparentRatio);
  if (!store_.Read(setting::TransparentFade)) {
    SetWindowAlpha(inside ? kOpaque : ratio);
  } else if (ratio <= kOpaque) {  // otherwise there is no step between the two
    Fade(inside ? Alpha(ratio) : kOpaque, inside ? kOpaque : Alpha(ratio));
  }
}

// There is one loop, however often the pointer comes and goes meanwhile: a nested loop for each
// time would use up the stack.
void Transparency::Fade(int from, int to) {
  fade_target_ = to;
  if (fading_) return;
  const platform::ScopedValue scope(fading_, true);
  std::int64_t due = window_.App().Platform().clock.SteadyMilliseconds();
  for (bool first = true; LetMessagesThrough(due) && fade_target_; first = false) {
    const int towards = alpha_ < *fade_target_ ? 1 : -1;
    if (first) {
      ShowAlpha(from);
    } else if (alpha_ != *fade_target_) {
      ShowAlpha(alpha_ + towards);
    }
    if (alpha_ == *fade_target_) break;
    due += kFadeStep;
  }
  fade_target_.reset();
}

bool Transparency::LetMessagesThrough(std::int64_t due) {
  toolkit::Application& app = window_.App();
  if (!app.ProcessMessages()) return false;
  const std::int64_t wait = due - app.Platform().clock.SteadyMilliseconds();
  ++steps_;
  return wait <= 0 || app.Platform().message_loop.ProcessFor(static_cast<int>(wait));
}

void Transparency::Check() {
  PointerChanged();
  const bool stands = std::exchange(steps_seen_, steps_) == steps_;
  if (stands && fading_ && fade_target_) SetWindowAlpha(*fade_target_);
}

void Transparency::ApplyShape() {
  platform::TopWindow& window = window_.Window();
  const platform::Bitmap* picture =
      meter_.Look().Transparent && meter_.Visible() ? meter_.Picture() : nullptr;
  if (picture == nullptr) {
    window.ResetShape();
    return;
  }
  const platform::Rect bounds = window.Bounds();
  const platform::Point origin = window.ToScreen({0, 0});
  const platform::Size size = window.ClientSize();
  const platform::Rect client{origin.x - bounds.left, origin.y - bounds.top, size.width,
                              size.height};
  std::vector<platform::Rect> shape;
  AddFrame(shape, {bounds.width, bounds.height}, client);
  const platform::Colour background =
      window_.App().Platform().screen.Resolve(meter_.Look().DisplayColor);
  // The graph fills the client area down to the line below it.
  for (platform::Rect part : VisibleParts(*picture, background)) {
    part.left += client.left;
    part.top += client.top;
    shape.push_back(part);
  }
  const int graph = picture->Extent().height;
  if (line_.Visible() && graph < size.height) {
    shape.push_back({client.left, client.top + graph, size.width, size.height - graph});
  }
  window.SetShape(shape);
}

}  // namespace display
