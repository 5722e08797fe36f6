#include "toolkit/forms/form_component.h"

#include "toolkit/forms/form.h"

namespace toolkit {

FormComponent::FormComponent(Form& form) : form_(form) { form_.components_.push_back(this); }

FormComponent::~FormComponent() { std::erase(form_.components_, this); }

}  // namespace toolkit
