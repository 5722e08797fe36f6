// The graph meter: a scrolling bar graph of download ("In") and upload ("Out") that also beats the
// time of the whole program.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <string_view>

#include "display/graph/picture.h"
#include "toolkit/controls/control.h"
#include "toolkit/phase_timer.h"

namespace display {

enum class ScalePosition { kLeft, kRight };

class TKxInterMeter;

// A property of the meter: setting another value asks for a new picture, setting the same does
// nothing.
template <class Value>
class MeterProperty {
 public:
  MeterProperty(TKxInterMeter& meter, Value design) : meter_(meter), value_(design) {}
  MeterProperty(const MeterProperty&) = delete;
  MeterProperty& operator=(const MeterProperty&) = delete;

  MeterProperty& operator=(Value value);
  operator Value() const { return value_; }  // NOLINT(google-explicit-constructor): as a member

 private:
  TKxInterMeter& meter_;
  Value value_;
};

class TKxInterMeter : public toolkit::Control {
 public:
  TKxInterMeter(toolkit::Control& parent, std::string_view name);

  // Colours of the bars: face, left and upper edge, right edge.
  MeterProperty<platform::Colour> InColor{*this, 0x0000CD};
  MeterProperty<platform::Colour> InLight{*this, 0x8184FE};
  MeterProperty<platform::Colour> InShadow{*this, 0x004000};
  MeterProperty<platform::Colour> OutColor{*this, 0x00FFFF};
  MeterProperty<platform::Colour> OutLight{*this, 251900};
  MeterProperty<platform::Colour> OutShadow{*this, 0x004000};
  MeterProperty<platform::Colour> DisplayColor{*this, platform::colour::kButtonFace};  // background
  MeterProperty<platform::Colour> BorderColor{*this, platform::colour::kBlack};
  MeterProperty<toolkit::BevelCut> BevelInner{*this, toolkit::BevelCut::kNone};
  MeterProperty<toolkit::BevelCut> BevelOuter{*this, toolkit::BevelCut::kNone};
  // Design pixels; what lies below the smallest width that can be drawn is drawn as that.
  MeterProperty<std::int64_t> BevelWidth{*this, 1};
  MeterProperty<std::int64_t> BorderWidth{*this, 1};
  MeterProperty<std::int64_t> PulseWidth{*this, 3};
  MeterProperty<std::int64_t> PulseSpace{*this, 0};
  MeterProperty<bool> Pulse3D{*this, true};  // bars with light and shadow edges
  // Off: the lower end of the scale follows the smallest amount in sight.
  MeterProperty<bool> ZeroBased{*this, false};
  MeterProperty<bool> ScaleShow{*this, true};
  MeterProperty<display::ScalePosition> ScalePosition{*this, display::ScalePosition::kLeft};
  MeterProperty<display::ScaleUnits> ScaleUnits{*this, display::ScaleUnits::kKBytes};
  // On: the scale fits the largest amount in sight. Off: it ends at SpeedLimit.
  MeterProperty<bool> AutoScale{*this, true};
  MeterProperty<std::int64_t> SpeedLimit{*this, 0};  // bytes per second
  // As designed: scanning goes on while nothing moves, and what is sent says nothing about the
  // connection. Nobody switches them on.
  MeterProperty<bool> StopInactive{*this, false};
  MeterProperty<bool> UseSentToDetermineConnect{*this, false};
  // No background: what is neither bar nor text nor frame is left out of the window.
  MeterProperty<bool> Transparent{*this, false};

  // Starts or stops scanning, once a second.
  void Activate(bool on) { timer_.SetActive(on); }
  [[nodiscard]] bool Active() const { return timer_.Active(); }

  // Empties the history.
  void Clear();
  // A new picture of the same, as when the system's colours changed.
  void Refresh() { Changed(); }

  // The bytes received and sent in the current tick. SetTestWrite comes last and completes the
  // sample; a negative amount is drawn as the largest.
  void SetTestRead(std::int32_t bytes) { test_read_ = bytes; }
  void SetTestWrite(std::int32_t bytes);

  // Once a second while active.
  std::function<void()> OnScan;
  // After the picture was painted and before it is shown; the handler may draw on it.
  std::function<void(platform::Canvas& canvas)> OnDisplay;

  // The picture as it is shown, composed now when it is old. Null while there is none.
  [[nodiscard]] const platform::Bitmap* Picture();
  // Bevel and border widths on one side, in real pixels.
  [[nodiscard]] int FramePixels();
  [[nodiscard]] const std::deque<GraphSample>& History() const { return history_; }

 protected:
  void Paint(platform::Canvas& canvas) override;
  void Resized() override { Changed(); }
  void Rescale() override;

 private:
  template <class Value>
  friend class MeterProperty;

  // The picture is composed anew once, before it is next shown; until then it is only copied.
  void Changed();
  void Compose(platform::Size size);
  [[nodiscard]] GraphLook Look();

  std::deque<GraphSample> history_;  // the newest last
  std::int32_t test_read_ = 0;
  std::unique_ptr<platform::Bitmap> picture_;
  bool picture_is_old_ = true;
  toolkit::PhaseTimer timer_;
};

template <class Value>
MeterProperty<Value>& MeterProperty<Value>::operator=(Value value) {
  if (value != value_) {
    value_ = value;
    meter_.Changed();
  }
  return *this;
}

}  // namespace display
