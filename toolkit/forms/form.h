// A window of the program, and the parts of a form that hear what happens to its window.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/geometry.h"
#include "platform/top_window.h"
#include "toolkit/controls/control.h"
#include "toolkit/forms/dialog_keys.h"
#include "toolkit/forms/modal_stack.h"
#include "toolkit/forms/placement.h"

namespace toolkit {

class Form;

// A component belongs to a form, mostly as a member of it. Each of its functions is called inside
// the application's guard.
class FormComponent {
 public:
  // `form` outlives the component.
  explicit FormComponent(Form& form);
  virtual ~FormComponent();
  FormComponent(const FormComponent&) = delete;
  FormComponent& operator=(const FormComponent&) = delete;

  // The user drags the form, which is about to get these bounds (screen pixels). The component may
  // change them.
  virtual void FormMoving(platform::Rect& /*bounds*/) {}
  // The form was moved or sized, by the user or by code.
  virtual void FormPlaced() {}
  // The user has let go after moving or sizing the form.
  virtual void FormDragEnded() {}
  // The monitors changed.
  virtual void FormDisplayChanged() {}
  // The form is asked to close; it may stay open.
  virtual void FormClosing() {}
  // The Windows session ends; the process may be gone when this returns.
  virtual void FormSessionEnds() {}

 protected:
  Form& form_;
};

class Form : public Control {
 public:
  // Makes the form hidden. `owner` (null: the application) stays below it.
  Form(Application& app, const platform::TopWindowParams& params, Form* owner = nullptr);
  // Makes a form that has a name and a frame, and gets its caption later.
  Form(Application& app, std::string_view name, platform::Frame frame);
  ~Form() override;

  [[nodiscard]] Form& ParentForm() override { return *this; }

  // Shows the form where the user can take hold of it, and topmost if another form is, also one
  // that is hidden: it may come back. An activated form has the keyboard in its first control.
  void Show(platform::Activation activation = platform::Activation::kActivate);
  void Hide();
  [[nodiscard]] bool Showing() const { return Window().Visible(); }
  void Raise() { Window().Raise(); }
  // Puts the form above all windows that are not topmost, or among them again, and the other forms
  // with it, so that it covers none of them.
  void SetTopmost(bool topmost);
  // Closes the form as its close box does.
  void Close();

  // Ends the modal loop that shows this form. Does nothing when there is none.
  void EndModal(ModalResult result);

  // The position and size on the screen, frame included, in real pixels.
  [[nodiscard]] platform::Rect WindowBounds() const { return Window().Bounds(); }
  void SetWindowBounds(const platform::Rect& bounds) { Window().SetBounds(bounds); }
  // Sets the size inside the frame, in design pixels, which is kept when the resolution changes. A
  // form that is higher than the work area is scrolled; one that grows beyond its edges moves.
  void SetClientSize(platform::Size design);
  // Returns the size that SetClientSize has set, or an empty one.
  [[nodiscard]] platform::Size ClientSize() const {
    return client_size_.value_or(platform::Size{});
  }
  // Returns what the user can take hold of to drag the form.
  [[nodiscard]] Hold HeldBy() const { return held_by_; }
  // Puts the form into the middle of the work area of the monitor that its owner is on, or else of
  // the first one.
  void CentreOnScreen();

  [[nodiscard]] int Dpi() const { return Window().Dpi(); }
  [[nodiscard]] platform::TopWindow& Window() const { return *window_; }
  [[nodiscard]] DialogKeys& Keys() { return keys_; }

  // Lets the user go on dragging the form by one of its controls.
  void BeginDrag() { Window().BeginDrag(); }

  // Gives every control its text in the user's language: called by the form itself when it is made,
  // and by the application when another language was chosen. It closes and destroys no form.
  virtual void Localise() {}

 protected:
  // Is called when the user, also by Esc, or the system asks to close the form. This version ends a
  // modal form, and the forms above it, with kCancel, and hides another one.
  virtual void FormClose();
  virtual void FormResize() {}
  // Is called when the form was moved or sized, by the user or by code.
  virtual void FormPlaced() {}
  virtual void FormShow() {}
  virtual void FormDpiChanged() {}
  virtual void FormDisplayChange() {}
  virtual void FormResumed() {}
  virtual void FormEndSession() {}
  virtual void FormSettingChange() {}
  // Paints the area that no child covers.
  virtual void FormPaint(platform::Canvas& canvas);

 private:
  friend class FormComponent;

  // Forwards the reports of the native window, each inside the guard.
  class Events;

  void Resized() override;
  void ChangeDpi(const platform::Rect& bounds);
  // Gives the form the height that its monitor has room for.
  void FitToScreen();
  void ScrollTo(int position);
  [[nodiscard]] int ScrolledBy() const override { return scroll_.position; }
  // Fits the form to its monitor, and moves it into view when the user could not take hold of it.
  void Settle();

  const Hold held_by_;
  DialogKeys keys_{*this};
  Form* owner_;                                // not owned; null for the application
  std::optional<platform::Size> client_size_;  // design pixels; none for one that the user sizes
  platform::Scroll scroll_;
  std::unique_ptr<Events> events_;
  std::vector<FormComponent*> components_;  // each takes itself out
  platform::TopWindow* window_ = nullptr;   // the peer, owned by Control
};

}  // namespace toolkit
