// What all windows of the program share: the services, the guard around handlers, hints, and the
// list of open forms.
#pragma once

#include <exception>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/platform.h"
#include "toolkit/forms/modal_stack.h"
#include "toolkit/hint_window.h"

namespace toolkit {

class Form;

class Application {
 public:
  explicit Application(platform::Platform& platform);
  ~Application();
  Application(const Application&) = delete;
  Application& operator=(const Application&) = delete;

  [[nodiscard]] platform::Platform& Platform() { return platform_; }
  [[nodiscard]] ModalStack& Modals() { return modals_; }
  [[nodiscard]] HintWindow& Hints() { return hints_; }

  // Sets the function that gets the message of every exception that leaves a handler. An exception
  // of this function itself is dropped.
  void SetExceptionHandler(std::function<void(std::string_view message)> handler) {
    exception_handler_ = std::move(handler);
  }

  // Runs a handler; an exception ends the handler alone and goes to the exception handler.
  template <class Handler>
  void Guard(const Handler& handler) noexcept {
    try {
      handler();
    } catch (const std::exception& error) {
      Report(error.what());
    } catch (...) {
      Report("unknown exception");
    }
  }

  // Ends every modal window with Cancel and then the message loop.
  void Terminate();
  [[nodiscard]] bool Terminated() const { return terminated_; }
  // Lets the user interface process the messages that are waiting. Returns false once the program
  // ends.
  bool ProcessMessages();

  // Whether the main form is meant to be visible.
  bool ShowMainForm = true;

  // Lets all forms take their texts anew, each inside the guard.
  void LanguageChanged();

  // Returns all forms that exist, in order of creation. Form keeps this list.
  [[nodiscard]] const std::vector<Form*>& Forms() const { return forms_; }

 private:
  friend class Form;

  void Report(std::string_view message) noexcept;

  platform::Platform& platform_;
  std::function<void(std::string_view)> exception_handler_;
  std::vector<Form*> forms_;
  ModalStack modals_;
  HintWindow hints_;
  bool terminated_ = false;
};

}  // namespace toolkit
