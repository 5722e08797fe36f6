// A number that is typed, or stepped with arrows, wheel and page keys.
#pragma once

#include <cstdint>
#include <functional>
#include <limits>
#include <memory>

#include "toolkit/controls/control.h"

namespace toolkit {

// The edit inside has the control's name, so that tests and screen readers find the number under
// it; the arrows have the name with "Up" and "Down" behind it.
class SpinEdit : public Control {
 public:
  SpinEdit(Control& parent, std::string_view name);
  ~SpinEdit() override;

  // Sets the range that the user can enter, and the step of the arrows; the page keys move by ten
  // steps. At first the range is all that can be stored (32 bits) and the step is 1.
  void SetRange(std::int64_t lowest, std::int64_t highest, std::int64_t step);
  [[nodiscard]] std::int64_t Lowest() const { return lowest_; }
  [[nodiscard]] std::int64_t Highest() const { return highest_; }
  [[nodiscard]] std::int64_t StepSize() const { return step_; }

  // The present number. SetValue takes any number; one outside the range stays as it is until the
  // user changes it.
  [[nodiscard]] std::int64_t Value() const { return value_; }
  void SetValue(std::int64_t value);

  // Runs when the value has changed. While the user types, it runs for each number that lies in the
  // range. When Enter is pressed or the focus goes elsewhere, a number outside the range is moved
  // into it, and a text that is no number is replaced by the value from before the typing.
  std::function<void()> OnChange;

  void SetFocus() override;
  [[nodiscard]] bool IsComposite() const override { return true; }

 protected:
  void Resized() override;
  void Rescale() override;
  void EnabledChanged() override;
  void HintChanged() override;
  void Paint(platform::Canvas& canvas) override;

 private:
  class Field;
  class Arrow;

  // Is called when the user has changed the text.
  void Typed();
  // Turns the typed text into a value in the range.
  void Commit();
  void Move(int steps);
  void Take(std::int64_t value);
  void Show();

  std::int64_t lowest_ = std::numeric_limits<std::int32_t>::min();
  std::int64_t highest_ = std::numeric_limits<std::int32_t>::max();
  std::int64_t step_ = 1;
  std::int64_t value_ = 0;
  std::int64_t shown_ = 0;  // the value that the typing began with
  bool typed_ = false;      // the text has been changed since the value was last shown
  std::unique_ptr<Field> field_;
  std::unique_ptr<Arrow> up_, down_;
};

}  // namespace toolkit
