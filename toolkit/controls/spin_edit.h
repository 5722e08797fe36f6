// A number that is typed, or stepped with arrows, wheel and page keys.
#pragma once

#include <cstdint>
#include <functional>
#include <limits>
#include <memory>

#include "toolkit/controls/control.h"

namespace toolkit {

// The edit inside bears the name, so that tests and screen readers find the number under it; its
// arrows are the name with "Up" and "Down" behind it.
class SpinEdit : public Control {
 public:
  SpinEdit(Control& parent, std::string_view name);
  ~SpinEdit() override;

  // What the user can enter, and by how much the arrows move; the page keys move ten times as much.
  // At first everything that can be stored, and 1.
  void SetRange(std::int64_t lowest, std::int64_t highest, std::int64_t step);
  [[nodiscard]] std::int64_t Lowest() const { return lowest_; }
  [[nodiscard]] std::int64_t Highest() const { return highest_; }
  [[nodiscard]] std::int64_t StepSize() const { return step_; }

  // Any number may be set; one outside the range stays as it is until the user changes it.
  [[nodiscard]] std::int64_t Value() const { return value_; }
  void SetValue(std::int64_t value);

  // It has another value. While a number is typed, this is fired for each that lies in the range;
  // one outside is moved into it when Enter is pressed or the keyboard goes elsewhere, and no
  // number at all becomes the value from before the typing again.
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

  // The text was changed by the user.
  void Typed();
  // What was typed becomes a value in the range.
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
