// Texts, and texts that open something when they are clicked.
#pragma once

#include "toolkit/controls/buttons.h"

namespace toolkit {

inline constexpr platform::TextStyle kCentredText{platform::TextAlign::kCentre};
// A caption before the control that its marked letter leads to.
inline constexpr platform::TextStyle kCaptionText{.mnemonic = true};
inline constexpr platform::TextStyle kWrappedText{.wraps = true};
// A value in a sunken box.
inline constexpr platform::TextStyle kSunkenText{platform::TextAlign::kRight,
                                                 platform::Border::kSunken};

// A text; without a style one line, centred. A click on it is OnClick.
class Label : public Control {
 public:
  Label(Control& parent, std::string_view name, const platform::TextStyle& style = kCentredText);
  [[nodiscard]] bool MarksKey() const override { return marks_key_; }

 private:
  const bool marks_key_;
};

// Looks like a text and is pressed like a button, also with the keyboard; then OnClick runs.
class LinkLabel : public ButtonControl {
 public:
  LinkLabel(Control& parent, std::string_view name);

 protected:
  void Paint(platform::Canvas& canvas) override;
  void CaptionChanged() override { Invalidate(); }
  [[nodiscard]] platform::Spoken Describe() const override;

 private:
  [[nodiscard]] platform::Colour LinkColour() const;
};

}  // namespace toolkit
