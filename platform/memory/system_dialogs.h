// Dialogs of the system that tests answer.
#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "platform/memory/message_loop.h"
#include "platform/system_dialogs.h"
#include "platform/top_window.h"

namespace platform::memory {

// An open dialog runs the steps of the message loop until one of them answers it. When no step is
// left, the dialog is cancelled.
class SystemDialogs final : public platform::SystemDialogs {
 public:
  explicit SystemDialogs(MessageLoop& loop) : loop_(loop) {}

  std::optional<std::string> OpenFile(const OpenFileRequest& request, TopWindow& owner) override {
    file_requests.push_back(request);
    return Run<std::string>(0, owner);
  }
  std::optional<Colour> ChooseColour(Colour present, TopWindow& owner) override {
    return Run<Colour>(present, owner);
  }
  void SetEnabled(bool enabled) override { enabled_ = enabled; }

  // Act as the user in the dialog that was opened last; while it is disabled they do nothing. They
  // throw std::logic_error when no dialog is open, or one of the other kind.
  void Choose(std::string path) { End(std::move(path)); }
  void Choose(Colour colour) { End(colour); }
  // Confirms the colour that the dialog shows.
  void Confirm() { End(Last().present); }
  void Cancel() { End({}); }

  [[nodiscard]] bool Enabled() const { return enabled_; }

  // The requests for files so far.
  std::vector<OpenFileRequest> file_requests;

 private:
  using Answer = std::variant<std::monostate, std::string, Colour>;
  struct Dialog {
    Colour present = 0;
    bool ended = false;
    Answer answer;
  };

  template <class Kind>
  std::optional<Kind> Run(Colour present, TopWindow& owner) {
    Dialog dialog{present, false, {}};
    const bool was_enabled = owner.Enabled();
    owner.SetEnabled(false);
    open_.push_back(&dialog);
    if (!loop_.RunUntil([&dialog] { return dialog.ended; })) dialog.answer = {};
    open_.pop_back();
    if (was_enabled) owner.SetEnabled(true);
    const auto* answer = std::get_if<Kind>(&dialog.answer);
    return answer != nullptr ? std::optional(*answer) : std::nullopt;
  }
  void End(const Answer& answer) {
    Dialog& dialog = Last();
    if (!enabled_ || dialog.ended) return;
    dialog.answer = answer;
    dialog.ended = true;
  }
  Dialog& Last() {
    if (open_.empty()) throw std::logic_error("no dialog of the system is open");
    return *open_.back();
  }

  MessageLoop& loop_;
  bool enabled_ = true;
  std::vector<Dialog*> open_;
};

}  // namespace platform::memory
