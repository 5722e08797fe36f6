// The message loop of the one thread.
#pragma once

#include <functional>

namespace platform {

class MessageLoop {
 public:
  virtual ~MessageLoop() = default;

  // Delivers messages until `done` is true, asked before each wait, or Quit was called. May be
  // nested. Returns false when it ended by Quit, which also ends every loop around it.
  virtual bool RunUntil(const std::function<bool()>& done) = 0;

  // Delivers what is waiting and returns. False after Quit.
  virtual bool ProcessPending() = 0;

  // Delivers messages for so long, waiting for more. False, at once, after Quit.
  virtual bool ProcessFor(int milliseconds) = 0;

  // Ends every running loop; one that starts later ends at once.
  virtual void Quit() = 0;
};

}  // namespace platform
