#include "tests/desktop/driver/wait.h"

#include <chrono>
#include <stdexcept>
#include <string>

#include "tests/desktop/driver/win.h"

namespace desktop {
namespace {

constexpr DWORD kPauseMs = 5;

void AnswerMessages() {
  MSG message;
  while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
    ::TranslateMessage(&message);
    ::DispatchMessageW(&message);
  }
}

}  // namespace

double SteadyMs() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration<double, std::milli>(now).count();
}

void Await(std::string_view what, const std::function<bool()>& condition, int within_ms) {
  const double deadline = SteadyMs() + within_ms;
  for (AnswerMessages(); !condition(); AnswerMessages()) {
    if (SteadyMs() > deadline) {
      throw std::runtime_error("waited in vain for " + std::string(what));
    }
    ::MsgWaitForMultipleObjects(0, nullptr, FALSE, kPauseMs, QS_ALLINPUT);
  }
}

}  // namespace desktop
