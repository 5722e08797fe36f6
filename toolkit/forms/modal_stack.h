// Modal windows: the one place where a message loop runs inside another.
#pragma once

#include <functional>
#include <string_view>
#include <utility>
#include <vector>

namespace toolkit {

class Application;
class Form;

enum class ModalResult { kNone = 0, kOk = 1, kCancel = 2, kYes = 6, kNo = 7 };

class ModalStack {
 public:
  explicit ModalStack(Application& app) : app_(app) {}
  ModalStack(const ModalStack&) = delete;
  ModalStack& operator=(const ModalStack&) = delete;

  // Shows `form` above all others, which are disabled meanwhile, and returns when it has a result.
  // Form::EndModal gives the result; it is kCancel when the form is closed or destroyed, or when
  // the program ends. One form of each kind (form name) may be open; for a second one the first is
  // raised and kCancel is returned. Timers, and so scans, go on meanwhile.
  ModalResult Show(Form& form);

  // Raises the modal form of this name and returns kCancel when one is open; otherwise makes one
  // from `arguments`, shows it and returns its result.
  template <class ModalForm, class... Arguments>
  ModalResult ShowOnce(std::string_view form_name, Arguments&&... arguments) {
    if (Raise(form_name)) return ModalResult::kCancel;
    ModalForm form(std::forward<Arguments>(arguments)...);
    return Show(form);
  }

  // Runs `dialog`, which opens one of the system's own dialogs above `owner`; the other forms are
  // disabled meanwhile. A modal form that a timer opens meanwhile comes first: until it is
  // answered, the dialog is disabled. Returns false, without calling `dialog`, while such a dialog
  // is open and when the program ends. The end of the program also ends the dialog, without an
  // answer.
  bool RunSystemDialog(const Form& owner, const std::function<void()>& dialog);

  // Raises the modal form of this name. Returns false when none is open.
  bool Raise(std::string_view form_name);
  // Raises the form or system dialog that must be answered before any other window may open.
  // Returns false when none is open.
  bool RaiseTop();

  // Ends `form` with kCancel, after the forms above it. Returns false when the form is not modal.
  bool Cancel(const Form& form);
  // Ends all modal forms with kCancel, the newest first. Each Show returns after the loops above it
  // have returned.
  void CancelAll() { CancelFrom(open_.begin()); }

  [[nodiscard]] bool Empty() const { return open_.empty(); }
  // Returns the form on top, or null when none is open.
  [[nodiscard]] Form* Top() const;

 private:
  friend class Form;

  struct Entry {
    Form* form;  // null once it is destroyed
    ModalResult result;
  };
  class Disabled;
  class Level;
  class SystemDialog;

  void CancelFrom(std::vector<Entry*>::iterator lowest);
  void End(const Form& form, ModalResult result);
  void Forget(const Form& form);

  Application& app_;
  std::vector<Entry*> open_;
  const Form* dialog_owner_ = nullptr;  // of the open system dialog
  bool dialog_disabled_ = false;
};

}  // namespace toolkit
