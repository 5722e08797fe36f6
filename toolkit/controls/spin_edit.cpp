#include "toolkit/controls/spin_edit.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string>

#include "toolkit/application.h"
#include "toolkit/controls/edit.h"
#include "toolkit/controls/panel.h"
#include "toolkit/timer.h"

namespace toolkit {
namespace {

constexpr int kArrowWidth = 17;  // design pixels
constexpr int kPage = 10;        // steps
constexpr int kRepeatsAfter = 400;
constexpr int kRepeatsEvery = 50;  // both in ms

// Returns the number in a text; a number beyond 64 bits becomes the end of their range. Returns
// nullopt when the text is no number.
std::optional<std::int64_t> NumberOf(std::string_view text) {
  std::int64_t number = 0;
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  if (stop != end || error == std::errc::invalid_argument) return std::nullopt;
  if (error == std::errc()) return number;
  return text.starts_with('-') ? std::numeric_limits<std::int64_t>::min()
                               : std::numeric_limits<std::int64_t>::max();
}

// Returns whether the text may become a number when more is typed.
bool IsBeginning(std::string_view text) { return text.empty() || text == "-" || NumberOf(text); }

}  // namespace

class SpinEdit::Field final : public Edit {
 public:
  Field(SpinEdit& spin, std::string_view name) : Edit(spin, name), spin_(spin) {}

 protected:
  void TextEntered() override { spin_.Typed(); }

  bool OnCharacter(char16_t unit) override {
    if (unit >= u'0' && unit <= u'9') return false;
    return unit != u'-' || spin_.lowest_ >= 0;
  }

  bool OnKey(platform::Key key) override {
    bool taken = true;
    App().Guard([&] {
      switch (key) {
        case platform::Key::kUp:
          spin_.Move(1);
          break;
        case platform::Key::kDown:
          spin_.Move(-1);
          break;
        case platform::Key::kPageUp:
          spin_.Move(kPage);
          break;
        case platform::Key::kPageDown:
          spin_.Move(-kPage);
          break;
        case platform::Key::kEnter:
          // Enter ends the typing. When nothing was typed, it is left to the window.
          taken = spin_.typed_;
          spin_.Commit();
          break;
        default:
          taken = false;
          break;
      }
    });
    return taken;
  }

  void OnWheel(int notches) override {
    App().Guard([&] { spin_.Move(notches); });
  }

  void OnFocusLost() override {
    App().Guard([&] { spin_.Commit(); });
  }

 private:
  SpinEdit& spin_;
};

// A small button that repeats its step as long as it is held. It is painted and never has the
// focus.
class SpinEdit::Arrow final : public Control {
 public:
  Arrow(SpinEdit& spin, std::string_view name, int by)
      : Control(spin, name),
        spin_(spin),
        by_(by),
        wait_(App(), kRepeatsAfter, [this] { repeat_.SetEnabled(true); }),
        repeat_(App(), kRepeatsEvery, [this] { spin_.Move(by_); }) {
    AttachSurface(name);
  }
  ~Arrow() override { Detach(); }

 protected:
  void OnMouseDown(const platform::MouseEvent& event) override { Press(event); }
  void OnDoubleClick(const platform::MouseEvent& event) override { Press(event); }
  void OnMouseUp(const platform::MouseEvent& /*event*/) override { Release(); }
  void OnMouseMove(const platform::MouseEvent& event) override {
    if (!event.left_down) Release();  // the button was released elsewhere
  }
  void EnabledChanged() override {
    Release();
    Invalidate();
  }

  void Paint(platform::Canvas& canvas) override {
    canvas.Fill(canvas.Area(), platform::colour::kButtonFace);
    DrawBevel(canvas, canvas.Area(), pressed_ ? BevelCut::kLowered : BevelCut::kEven, 1, Colour());
    PaintTriangle(canvas);
  }

  [[nodiscard]] platform::Spoken Describe() const override {
    const std::string step = std::to_string(by_ * spin_.step_);
    return {.name = by_ > 0 ? "+" + step : step, .role = platform::SpokenRole::kButton};
  }

 private:
  void Press(const platform::MouseEvent& event) {
    if (event.button != platform::MouseButton::kLeft) return;
    App().Guard([&] {
      spin_.SetFocus();
      pressed_ = true;
      wait_.SetEnabled(true);
      Invalidate();
      spin_.Move(by_);
    });
  }

  void Release() {
    if (!pressed_) return;
    pressed_ = false;
    wait_.SetEnabled(false);
    repeat_.SetEnabled(false);
    Invalidate();
  }

  void PaintTriangle(platform::Canvas& canvas) {
    const platform::Size size = canvas.Extent();
    const int rows = std::max(Scale(3), 1);
    const int top = (size.height - rows) / 2;
    for (int row = 0; row < rows; ++row) {
      const int half = by_ > 0 ? row : rows - 1 - row;
      canvas.Fill({size.width / 2 - half, top + row, 2 * half + 1, 1},
                  Enabled() ? platform::colour::kButtonText : platform::colour::kGrayText);
    }
  }

  SpinEdit& spin_;
  const int by_;
  bool pressed_ = false;
  Timer wait_, repeat_;
};

SpinEdit::SpinEdit(Control& parent, std::string_view name) : Control(parent, name) {
  AttachSurface("");
  const std::string own(name);
  field_ = std::make_unique<Field>(*this, own);
  up_ = std::make_unique<Arrow>(*this, own + "Up", 1);
  down_ = std::make_unique<Arrow>(*this, own + "Down", -1);
  Show();
}

SpinEdit::~SpinEdit() { Detach(); }

void SpinEdit::SetRange(std::int64_t lowest, std::int64_t highest, std::int64_t step) {
  lowest_ = lowest;
  highest_ = std::max(lowest, highest);
  step_ = step;
}

void SpinEdit::SetValue(std::int64_t value) {
  if (value != value_) {
    Take(value);
  } else if (typed_) {
    Show();  // the new value replaces what is being typed
  }
}

void SpinEdit::SetFocus() { field_->SetFocus(); }

void SpinEdit::Typed() {
  if (!IsBeginning(field_->Text())) {  // pasted
    Show();
    return;
  }
  typed_ = true;
  const std::optional<std::int64_t> number = NumberOf(field_->Text());
  if (!number || *number < lowest_ || *number > highest_ || *number == value_) return;
  value_ = *number;
  Fire(OnChange);
}

void SpinEdit::Commit() {
  if (!typed_) return;
  const std::optional<std::int64_t> number = NumberOf(field_->Text());
  Take(number ? std::clamp(*number, lowest_, highest_) : shown_);
}

void SpinEdit::Move(int steps) {
  Commit();
  const std::int64_t by = steps * step_;
  std::int64_t moved = 0;
  if (__builtin_add_overflow(value_, by, &moved)) moved = by > 0 ? highest_ : lowest_;
  Take(std::clamp(moved, lowest_, highest_));
}

void SpinEdit::Take(std::int64_t value) {
  const bool changes = value != value_;
  value_ = value;
  Show();
  if (changes) Fire(OnChange);
}

void SpinEdit::Show() {
  typed_ = false;
  shown_ = value_;
  field_->SetText(std::to_string(value_));
  if (field_->Focused()) field_->SelectAll();  // the next typed text replaces the number
}

void SpinEdit::Resized() {
  const platform::Size size = ClientPixels();
  const int width = std::min(Scale(kArrowWidth), size.width);
  const int half = size.height / 2;
  const int left = size.width - width;
  PlacePixels(*field_, {0, 0, left, size.height});
  PlacePixels(*up_, {left, 0, width, half});
  PlacePixels(*down_, {left, half, width, size.height - half});
}

// The parts have no bounds of their own.
void SpinEdit::Rescale() {
  Control::Rescale();
  Resized();
}

void SpinEdit::EnabledChanged() {
  for (Control* part : Children()) part->SetEnabled(Enabled());
}

void SpinEdit::HintChanged() {
  for (Control* part : Children()) part->SetHint(Hint());
}

void SpinEdit::Paint(platform::Canvas& canvas) { canvas.Fill(canvas.Area(), Colour()); }

}  // namespace toolkit
