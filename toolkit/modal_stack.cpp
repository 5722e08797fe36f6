#include "toolkit/modal_stack.h"

#include <algorithm>

#include "toolkit/application.h"
#include "toolkit/form.h"

namespace toolkit {

// One open modal form: puts it on the stack and disables what lies below; undone in any case.
class ModalStack::Level {
 public:
  Level(ModalStack& stack, Form& form) : stack_(stack), entry_{&form, ModalResult::kNone} {
    stack_.open_.push_back(&entry_);
    for (Form* other : stack_.app_.Forms()) {
      if (other == &form || !other->Enabled()) continue;
      other->SetEnabled(false);
      disabled_.push_back(other);
    }
  }

  ~Level() {
    // Enabled before the form hides: else the system would activate another program's window.
    for (Form* other : stack_.app_.Forms()) {
      if (std::find(disabled_.begin(), disabled_.end(), other) != disabled_.end()) {
        other->SetEnabled(true);
      }
    }
    if (entry_.form != nullptr) entry_.form->Hide();
    std::erase(stack_.open_, &entry_);
  }
  Level(const Level&) = delete;
  Level& operator=(const Level&) = delete;

  [[nodiscard]] ModalResult Wait() {
    // Or else one that always stays on top might cover it.
    if (stack_.AnyTopmost()) entry_.form->Window().SetTopmost(true);
    entry_.form->Show();
    if (stack_.app_.Terminated()) return ModalResult::kCancel;
    stack_.app_.Platform().message_loop.RunUntil(
        [this] { return entry_.result != ModalResult::kNone; });
    return entry_.result == ModalResult::kNone ? ModalResult::kCancel : entry_.result;
  }

 private:
  ModalStack& stack_;
  Entry entry_;
  std::vector<const Form*> disabled_;
};

ModalResult ModalStack::Show(Form& form) {
  if (app_.Terminated() || Raise(form.Name())) return ModalResult::kCancel;
  Level level(*this, form);
  return level.Wait();
}

bool ModalStack::Raise(std::string_view form_name) {
  for (const Entry* entry : open_) {
    if (entry->form == nullptr || entry->form->Name() != form_name) continue;
    // Windows above it stay above it and keep the keyboard; they must be answered first.
    if (Form* top = Top()) top->Raise();
    return true;
  }
  return false;
}

void ModalStack::CancelAll() {
  for (Entry* entry : open_) {
    if (entry->result == ModalResult::kNone) entry->result = ModalResult::kCancel;
  }
}

Form* ModalStack::Top() const {
  for (auto entry = open_.rbegin(); entry != open_.rend(); ++entry) {
    if ((*entry)->form != nullptr) return (*entry)->form;
  }
  return nullptr;
}

bool ModalStack::AnyTopmost() const {
  const std::vector<Form*>& forms = app_.Forms();
  return std::any_of(forms.begin(), forms.end(),
                     [](const Form* form) { return form->Showing() && form->Window().Topmost(); });
}

void ModalStack::End(const Form& form, ModalResult result) {
  for (Entry* entry : open_) {
    if (entry->form == &form) entry->result = result;
  }
}

void ModalStack::Forget(const Form& form) {
  for (Entry* entry : open_) {
    if (entry->form != &form) continue;
    entry->form = nullptr;
    if (entry->result == ModalResult::kNone) entry->result = ModalResult::kCancel;
  }
}

}  // namespace toolkit
