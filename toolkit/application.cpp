#include "toolkit/application.h"

#include "toolkit/forms/form.h"

namespace toolkit {

Application::Application(platform::Platform& platform)
    : platform_(platform), modals_(*this), hints_(*this) {}

Application::~Application() = default;

void Application::Terminate() {
  terminated_ = true;
  platform_.menus.Cancel();
  modals_.CancelAll();
  platform_.message_loop.Quit();
}

bool Application::ProcessMessages() {
  return platform_.message_loop.ProcessPending() && !terminated_;
}

void Application::LanguageChanged() {
  for (Form* form : forms_) Guard([form] { form->Localise(); });
}

void Application::Report(std::string_view message) noexcept {
  try {
    if (exception_handler_) exception_handler_(message);
  } catch (...) {
    // The error log is the last resort, so its own failure is dropped.
    return;
  }
}

}  // namespace toolkit
