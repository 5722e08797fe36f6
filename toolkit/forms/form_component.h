// A part of a form that hears what happens to the form's window.
#pragma once

#include "platform/geometry.h"

namespace toolkit {

class Form;

// Belongs to a form, mostly as a member of it. Each is called inside the application's guard.
class FormComponent {
 public:
  // `form` outlives the component.
  explicit FormComponent(Form& form);
  virtual ~FormComponent();
  FormComponent(const FormComponent&) = delete;
  FormComponent& operator=(const FormComponent&) = delete;

  // The user drags the form, which is to get these bounds (screen pixels); they may be changed.
  virtual void FormMoving(platform::Rect& /*bounds*/) {}
  // It was moved or sized, by whomever.
  virtual void FormPlaced() {}
  // The user has let go after moving or sizing it.
  virtual void FormDragEnded() {}
  // The monitors changed.
  virtual void FormDisplayChanged() {}
  // It is asked to close; it need not.
  virtual void FormClosing() {}
  // The process may be gone when this returns.
  virtual void FormSessionEnds() {}

 protected:
  Form& form_;
};

}  // namespace toolkit
