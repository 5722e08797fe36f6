#include "toolkit/forms/modal_stack.h"

#include <algorithm>
#include <optional>

#include "platform/scoped_value.h"
#include "toolkit/application.h"
#include "toolkit/forms/form.h"

namespace toolkit {

// Keeps all forms but one disabled as long as it lives.
class ModalStack::Disabled {
 public:
  Disabled(ModalStack& stack, const Form& but) : stack_(stack) {
    for (Form* form : stack_.app_.Forms()) {
      // The owner of a system dialog is disabled and enabled by the system.
      if (form == &but || form == stack_.dialog_owner_ || !form->Enabled()) continue;
      form->SetEnabled(false);
      forms_.push_back(form);
    }
  }
  ~Disabled() {
    for (Form* form : stack_.app_.Forms()) {
      if (std::find(forms_.begin(), forms_.end(), form) != forms_.end()) form->SetEnabled(true);
    }
  }
  Disabled(const Disabled&) = delete;
  Disabled& operator=(const Disabled&) = delete;

 private:
  ModalStack& stack_;
  std::vector<const Form*> forms_;
};

// Keeps the open system dialog disabled as long as it lives.
class ModalStack::SystemDialog {
 public:
  explicit SystemDialog(ModalStack& stack)
      : stack_(stack), own_(stack.dialog_owner_ != nullptr && !stack.dialog_disabled_) {
    if (own_) SetEnabled(false);
  }
  ~SystemDialog() {
    if (own_) SetEnabled(true);
  }
  SystemDialog(const SystemDialog&) = delete;
  SystemDialog& operator=(const SystemDialog&) = delete;

 private:
  void SetEnabled(bool enabled) {
    stack_.dialog_disabled_ = !enabled;
    stack_.app_.Platform().system_dialogs.SetEnabled(enabled);
  }

  ModalStack& stack_;
  const bool own_;
};

// One open modal form: puts it on the stack and disables the forms below it, and undoes both at its
// end.
class ModalStack::Level {
 public:
  Level(ModalStack& stack, Form& form)
      : stack_(stack),
        entry_{&form, ModalResult::kNone},
        disabled_(std::in_place, stack, form),
        dialog_(std::in_place, stack) {
    stack_.open_.push_back(&entry_);
  }

  ~Level() {
    // The other forms are enabled before this form hides; otherwise the system would activate
    // another program's window.
    disabled_.reset();
    dialog_.reset();
    if (entry_.form != nullptr) entry_.form->Hide();
    std::erase(stack_.open_, &entry_);
  }
  Level(const Level&) = delete;
  Level& operator=(const Level&) = delete;

  [[nodiscard]] ModalResult Wait() {
    entry_.form->Show();
    if (stack_.app_.Terminated()) return ModalResult::kCancel;
    stack_.app_.Platform().message_loop.RunUntil(
        [this] { return entry_.result != ModalResult::kNone; });
    return entry_.result == ModalResult::kNone ? ModalResult::kCancel : entry_.result;
  }

 private:
  ModalStack& stack_;
  Entry entry_;
  std::optional<Disabled> disabled_;
  std::optional<SystemDialog> dialog_;
};

ModalResult ModalStack::Show(Form& form) {
  if (app_.Terminated() || Raise(form.Name())) return ModalResult::kCancel;
  Level level(*this, form);
  return level.Wait();
}

bool ModalStack::RunSystemDialog(const Form& owner, const std::function<void()>& dialog) {
  if (app_.Terminated() || dialog_owner_ != nullptr) return false;
  const Disabled others(*this, owner);
  const platform::ScopedValue<const Form*> open(dialog_owner_, &owner);
  dialog();
  return true;
}

bool ModalStack::Raise(std::string_view form_name) {
  for (const Entry* entry : open_) {
    if (entry->form == nullptr || entry->form->Name() != form_name) continue;
    // Windows above this form stay above it and keep the focus; they must be answered first.
    if (Form* top = Top()) top->Raise();
    return true;
  }
  return false;
}

bool ModalStack::RaiseTop() {
  const Form* top = dialog_owner_ != nullptr && !dialog_disabled_ ? dialog_owner_ : Top();
  if (top != nullptr) top->Window().Raise();
  return top != nullptr;
}

bool ModalStack::Cancel(const Form& form) {
  const auto lowest = std::find_if(open_.begin(), open_.end(),
                                   [&form](const Entry* entry) { return entry->form == &form; });
  CancelFrom(lowest);
  return lowest != open_.end();
}

void ModalStack::CancelFrom(std::vector<Entry*>::iterator lowest) {
  std::for_each(lowest, open_.end(), [](Entry* entry) {
    if (entry->result == ModalResult::kNone) entry->result = ModalResult::kCancel;
  });
}

Form* ModalStack::Top() const {
  for (auto entry = open_.rbegin(); entry != open_.rend(); ++entry) {
    if ((*entry)->form != nullptr) return (*entry)->form;
  }
  return nullptr;
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
