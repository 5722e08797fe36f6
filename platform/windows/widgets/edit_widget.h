// Edits.
#pragma once

#include "platform/controls.h"
#include "platform/windows/widgets/native_control.h"

namespace platform::windows {

class EditWidget final : public WidgetOf<Edit, NativeControl> {
 public:
  EditWidget(const NewWidget& widget, const EditStyle& style);

  void SetText(std::string_view text) override;
  [[nodiscard]] std::string Text() const override;
  void SetMaxLength(int characters) override;
  void SetReadOnly(bool read_only) override;
  void SetFont(const FontStyle& font) override;
  void SetEnabled(bool enabled) override;
  void SetColours(Colour text, Colour background) override;
  void SelectAll() override;

  [[nodiscard]] KeyTaker TakerOf(WPARAM key) override;

  std::optional<LRESULT> HandleNotification(const Message& message) override;

 protected:
  std::optional<LRESULT> Handle(const Message& message) override;
  // Returns the system's colour for an edit that cannot be changed, unless the edit was given a
  // colour of its own.
  [[nodiscard]] Colour Background() const override;

 private:
  // The system puts the text of a line at the top of its client area. So that it stands in the
  // middle, the client area is only as high as the text; what is above and below is of the frame.
  LRESULT FitClientToText(const Message& message);
  LRESULT PaintFrame(const Message& message);
  void RepaintWithFrame();
  void Changed();
  // Cuts `text`, which is in the edit, to what the user may enter, and returns the rest.
  [[nodiscard]] std::wstring CutToLimit(const std::wstring& text);
  // Returns whether a message about a key is kept from the edit.
  [[nodiscard]] bool Keeps(const Message& message);
  void Turned(const Message& wheel);

  const EditKind kind_;
  int max_length_ = 0;  // characters; 0 for none
  std::wstring known_;  // the text as it was last set or reported
  bool read_only_ = false;
  int wheel_rest_ = 0;  // less than a notch, of wheels that turn in smaller steps
};

}  // namespace platform::windows
