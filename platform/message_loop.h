// The message loop of the one thread.
#pragma once

#include <functional>

namespace platform {

class MessageLoop {
 public:
  virtual ~MessageLoop() = default;

  // Delivers messages until `done`, which is called before each wait, returns true, or until Quit
  // is called. Calls may be nested. Returns false when Quit ended it, which also ends every loop
  // around it.
  virtual bool RunUntil(const std::function<bool()>& done) = 0;

  // Delivers the messages that are waiting and returns; returns false after Quit.
  virtual bool ProcessPending() = 0;

  // Delivers messages for so long and waits for more. After Quit, returns false at once.
  virtual bool ProcessFor(int milliseconds) = 0;

  // Ends every running loop; a loop that starts later ends at once.
  virtual void Quit() = 0;
};

}  // namespace platform
