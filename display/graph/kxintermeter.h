// The graph meter: a scrolling bar graph of download ("In") and upload ("Out") that also beats the
// time of the whole program.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <string_view>
#include <type_traits>

#include "display/graph/picture.h"
#include "toolkit/controls/control.h"
#include "toolkit/timer.h"

namespace display {

class TKxInterMeter : public toolkit::Control {
 public:
  TKxInterMeter(toolkit::Control& parent, std::string_view name);

  // The graph's properties; widths are design pixels. Setting another value asks for a new picture,
  // setting the present one does nothing.
  [[nodiscard]] const GraphLook& Look() const { return look_; }
  template <class Owner, class Value>
  void Set(Value Owner::*property, std::type_identity_t<Value> value) {
    if (look_.*property == value) return;
    look_.*property = value;
    Changed();
  }
  // Both stay off, as designed: scanning goes on while nothing moves, and what is sent says nothing
  // about the connection.
  bool StopInactive = false;
  bool UseSentToDetermineConnect = false;

  // Starts or stops scanning, once a second.
  void Activate(bool on) { timer_.SetActive(on); }
  [[nodiscard]] bool Active() const { return timer_.Active(); }

  // Empties the history.
  void Clear();
  // Asks for a new picture of the same samples, as when the system's colours changed.
  void Refresh() { Changed(); }

  // Set the bytes received and sent in the current tick. SetTestWrite comes last and completes the
  // sample; a negative amount is drawn as the largest.
  void SetTestRead(std::int32_t bytes) { test_read_ = bytes; }
  void SetTestWrite(std::int32_t bytes);

  // Runs once a second while scanning is on.
  std::function<void()> OnScan;
  // Runs when the graph shows something else from now on: whoever follows the picture takes it
  // anew.
  std::function<void()> OnChange;
  // Runs after the picture was painted and before it is shown; the handler may draw on it.
  std::function<void(platform::Canvas& canvas)> OnDisplay;

  // Returns the picture as it is shown, composed now when it is old, or null while there is none.
  [[nodiscard]] const platform::Bitmap* Picture();
  // Returns the widths of bevels and border on one side, in real pixels.
  [[nodiscard]] int FramePixels();

 protected:
  void Paint(platform::Canvas& canvas) override;
  void Resized() override { Changed(); }
  void Rescale() override;

 private:
  // The picture is composed anew once, before it is next shown; until then it is only copied.
  void Changed();
  void Compose(platform::Size size);
  // Returns the look in real pixels.
  [[nodiscard]] GraphLook PixelLook();

  GraphLook look_;
  std::deque<GraphSample> history_;  // the newest last
  std::int32_t test_read_ = 0;
  std::unique_ptr<platform::Bitmap> picture_;
  bool picture_is_old_ = true;
  toolkit::PhaseTimer timer_;
};

}  // namespace display
