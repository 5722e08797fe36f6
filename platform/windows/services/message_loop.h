// The message loop of the thread.
#pragma once

#include "platform/message_loop.h"
#include "platform/windows/win32.h"

namespace platform::windows {

class MessageLoop final : public platform::MessageLoop {
 public:
  MessageLoop() = default;
  ~MessageLoop() override;
  MessageLoop(const MessageLoop&) = delete;
  MessageLoop& operator=(const MessageLoop&) = delete;

  bool RunUntil(const std::function<bool()>& done) override;
  bool ProcessPending() override;
  bool ProcessFor(int milliseconds) override;
  void Quit() override;

 private:
  // Delivers one message, and the messages that other threads have sent. Returns false when none
  // was waiting.
  bool DeliverOne();
  // Leaves one RunUntil.
  void Leave();

  bool quit_ = false;
  int depth_ = 0;  // of running RunUntil
};

}  // namespace platform::windows
