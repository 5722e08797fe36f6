#include "display/graph/kxintermeter.h"

#include <algorithm>
#include <limits>
#include <vector>

#include "toolkit/application.h"

namespace display {
namespace {

constexpr int kScanPeriodMs = 1000;
// Samples; wider than any screen with bars of one pixel.
constexpr std::size_t kLongestHistory = 4096;
// Design pixels; beyond it nothing changes any more.
constexpr int kWidestDrawn = 1000;
const platform::FontStyle kScaleFont{"Small Fonts", 9, true};

// More than the 31 bits of an input can hold, 2 GiB a second, arrives as less than nothing.
std::int32_t Drawn(std::int32_t input) {
  return input < 0 ? std::numeric_limits<std::int32_t>::max() : input;
}

// Returns the colour of letters, or what can be read instead where it is lost on the background,
// which the user chooses.
platform::Colour Readable(platform::Colour letters, platform::Colour background) {
  if (platform::IsReadable(letters, background)) return letters;
  const bool dark = platform::IsReadable(platform::colour::kWhite, background);
  return dark ? platform::colour::kWhite : platform::colour::kBlack;
}

}  // namespace

TKxInterMeter::TKxInterMeter(toolkit::Control& parent, std::string_view name)
    : Control(parent, name), timer_(parent.App(), kScanPeriodMs, [this] {
        if (OnScan) OnScan();
      }) {
  AttachSurface(name);
  SetFont(kScaleFont);
}

void TKxInterMeter::Clear() {
  history_.clear();
  Changed();
}

void TKxInterMeter::SetTestWrite(std::int32_t bytes) {
  history_.push_back({Drawn(test_read_), Drawn(bytes)});
  if (history_.size() > kLongestHistory) history_.pop_front();
  test_read_ = 0;
  Changed();
}

int TKxInterMeter::FramePixels() { return FrameWidth(PixelLook()); }

void TKxInterMeter::Rescale() {
  Control::Rescale();
  Changed();
}

void TKxInterMeter::Changed() {
  picture_is_old_ = true;
  Invalidate();
  if (OnChange) OnChange();
}

void TKxInterMeter::Paint(platform::Canvas& canvas) {
  if (Picture() != nullptr) canvas.Draw(*picture_, {0, 0});
}

const platform::Bitmap* TKxInterMeter::Picture() {
  const platform::Size size = ClientPixels();
  if (size.width <= 0 || size.height <= 0) return nullptr;
  if (picture_is_old_ || picture_ == nullptr || picture_->Extent() != size) Compose(size);
  return picture_.get();
}

void TKxInterMeter::Compose(platform::Size size) {
  if (picture_ == nullptr || picture_->Extent() != size) {
    picture_ = App().Platform().graphics.CreateBitmap(size);
    if (picture_ == nullptr) return;
  }
  picture_is_old_ = false;
  const GraphLook look = PixelLook();
  const std::size_t fit = std::min(SamplesThatFit(look, size.width), history_.size());
  const std::vector<GraphSample> samples(history_.end() - static_cast<std::ptrdiff_t>(fit),
                                         history_.end());
  platform::Canvas& canvas = picture_->GetCanvas();
  PaintGraph(canvas, look, samples, App().Platform().locale.DecimalSeparator());
  if (OnDisplay) OnDisplay(canvas);
}

GraphLook TKxInterMeter::PixelLook() {
  GraphLook look = look_;
  for (int GraphLook::*width :
       {&GraphLook::BevelWidth, &GraphLook::BorderWidth, &GraphLook::PulseWidth,
        &GraphLook::PulseSpace, &GraphLook::FlatPulseWidth}) {
    look.*width = Scale(std::clamp(look.*width, -kWidestDrawn, kWidestDrawn));
  }
  // Told apart from what has almost this colour.
  platform::Screen& screen = App().Platform().screen;
  look.DisplayColor = screen.Resolve(look.DisplayColor);
  look.Font = Scale(Font());
  look.FontColour = Readable(screen.Resolve(FontColour()), look.DisplayColor);
  return look;
}

platform::Spoken TKxInterMeter::Describe() const {
  platform::Spoken spoken = Control::Describe();
  if (OnDescribe) spoken.value = OnDescribe();
  spoken.role = platform::SpokenRole::kChart;
  return spoken;
}

}  // namespace display
