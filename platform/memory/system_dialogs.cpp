#include "platform/memory/system_dialogs.h"

#include <stdexcept>
#include <utility>

#include "platform/top_window.h"

namespace platform::memory {

std::optional<std::string> SystemDialogs::OpenFile(const OpenFileRequest& request,
                                                   TopWindow& owner) {
  file_requests.push_back(request);
  Dialog dialog;
  Run(dialog, owner);
  auto* path = std::get_if<std::string>(&dialog.answer);
  return path != nullptr ? std::optional(std::move(*path)) : std::nullopt;
}

std::optional<Colour> SystemDialogs::ChooseColour(Colour present, TopWindow& owner) {
  Dialog dialog;
  dialog.present = present;
  Run(dialog, owner);
  const auto* colour = std::get_if<Colour>(&dialog.answer);
  return colour != nullptr ? std::optional(*colour) : std::nullopt;
}

void SystemDialogs::Run(Dialog& dialog, TopWindow& owner) {
  const bool was_enabled = owner.Enabled();
  owner.SetEnabled(false);
  open_.push_back(&dialog);
  if (!loop_.RunUntil([&dialog] { return dialog.ended; })) dialog.answer = {};
  open_.pop_back();
  if (was_enabled) owner.SetEnabled(true);
}

void SystemDialogs::End(const Answer& answer) {
  Dialog& dialog = Last();
  if (!enabled_ || dialog.ended) return;
  dialog.answer = answer;
  dialog.ended = true;
}

SystemDialogs::Dialog& SystemDialogs::Last() {
  if (open_.empty()) throw std::logic_error("no dialog of the system is open");
  return *open_.back();
}

}  // namespace platform::memory
