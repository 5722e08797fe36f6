#include "platform/windows/services/message_loop.h"

#include "platform/windows/windows/dialog_keys.h"

namespace platform::windows {
namespace {

// ProcessPending delivers at most this many messages, so that messages that come as fast as they
// are delivered do not keep the caller for ever.
constexpr int kPendingAtOnce = 500;

void RemoveQuitMessage() {
  MSG message{};
  ::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
}

}  // namespace

MessageLoop::~MessageLoop() {
  if (quit_) RemoveQuitMessage();
}

bool MessageLoop::RunUntil(const std::function<bool()>& done) {
  struct Run {
    explicit Run(MessageLoop& of) : loop(of) { ++loop.depth_; }
    ~Run() { loop.Leave(); }
    MessageLoop& loop;
  } const run(*this);
  while (!quit_) {
    if (done()) return true;
    // A message that another thread sent is delivered without being taken from the queue, so that
    // nothing may be left to take; it may have changed the result of `done`.
    if (DeliverOne() || quit_) continue;
    if (done()) return true;
    ::MsgWaitForMultipleObjectsEx(0, nullptr, INFINITE, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
  }
  return false;
}

bool MessageLoop::ProcessPending() {
  for (int count = 0; count < kPendingAtOnce && !quit_; ++count) {
    if (!DeliverOne()) break;
  }
  return !quit_;
}

bool MessageLoop::ProcessFor(int milliseconds) {
  const ULONGLONG end = ::GetTickCount64() + static_cast<ULONGLONG>(milliseconds);
  while (ProcessPending()) {
    const ULONGLONG now = ::GetTickCount64();
    if (now >= end) break;
    ::MsgWaitForMultipleObjectsEx(0, nullptr, static_cast<DWORD>(end - now), QS_ALLINPUT,
                                  MWMO_INPUTAVAILABLE);
  }
  return !quit_;
}

void MessageLoop::Quit() {
  quit_ = true;
  // This also ends the system's own loops, those of a menu or a drag.
  ::PostQuitMessage(0);
}

bool MessageLoop::DeliverOne() {
  MSG message{};
  if (!::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) return false;
  if (message.message == WM_QUIT) {
    quit_ = true;
    // One of the system's loops may run around this one, and it waits for this message as well.
    if (depth_ > 0) ::PostQuitMessage(static_cast<int>(message.wParam));
    return true;
  }
  if (HandledAsDialogKey(message)) return true;
  ::TranslateMessage(&message);
  ::DispatchMessageW(&message);
  return true;
}

void MessageLoop::Leave() {
  --depth_;
  // No loop is left to take the message; a later loop of the thread must not take it for its own.
  if (depth_ == 0 && quit_) RemoveQuitMessage();
}

}  // namespace platform::windows
