// Edits of one line or several.
#pragma once

#include <functional>
#include <string>

#include "platform/controls.h"
#include "toolkit/controls/control.h"

namespace toolkit {

class Edit : public ControlOf<platform::Edit> {
 public:
  Edit(Control& parent, std::string_view name, const platform::EditStyle& style = {});

  [[nodiscard]] KeyRole Role() const override { return KeyRole::kStop; }
  [[nodiscard]] const std::string& Text() const { return text_; }
  void SetText(std::string_view text);

  // Characters that the user can enter; 0 for no limit.
  void SetMaxLength(int characters);
  void SetReadOnly(bool read_only);
  // What is typed next replaces the text.
  void SelectAll();

  std::function<void()> OnChange;

 protected:
  // The user has changed the text.
  virtual void TextEntered() { Fire(OnChange); }
  void OnChanged() override;
  void ReachedByTab() override;
  void Realised() override;

 private:
  const platform::EditKind kind_;
  std::string text_;
  int max_length_ = 0;
  bool read_only_ = false;
};

// Shows "x" for every character.
class PasswordEdit : public Edit {
 public:
  PasswordEdit(Control& parent, std::string_view name)
      : Edit(parent, name, {platform::EditKind::kPassword}) {}
};

// Lines end with "\n".
class Memo : public Edit {
 public:
  Memo(Control& parent, std::string_view name, platform::Border border = platform::Border::kSunken)
      : Edit(parent, name, {platform::EditKind::kMemo, border}) {}
};

}  // namespace toolkit
