// A part of a form that hears what happens to the form's window.
#pragma once

#include "platform/geometry.h"

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

}  // namespace toolkit
