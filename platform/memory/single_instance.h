// Named mutexes of one session.
#pragma once

#include <set>
#include <string>

#include "platform/memory/notebook.h"
#include "platform/single_instance.h"

namespace platform::memory {

class SingleInstance : public platform::SingleInstance {
 public:
  explicit SingleInstance(Notebook& notebook) : notebook_(notebook) {}

  [[nodiscard]] bool ClaimFirst(std::string_view name) override {
    // A mutex that cannot be made counts as first; a backslash would name a space that is missing.
    if (notebook_.Fails() || name.find('\\') != std::string_view::npos) return true;
    const bool first = taken_.emplace(name).second;
    if (first) own_.emplace(name);
    return first;
  }

  // Ends the process, and with it the mutexes that it made.
  void EndProcess() {
    for (const std::string& name : own_) taken_.erase(name);
    own_.clear();
  }

  // Makes another program own a mutex of this name.
  void TakeByOther(std::string_view name) { taken_.emplace(name); }
  [[nodiscard]] bool Taken(std::string_view name) const {
    return taken_.contains(std::string(name));
  }

 private:
  Notebook& notebook_;
  std::set<std::string> own_;
  std::set<std::string> taken_;  // the case of these names matters, unlike that of others
};

}  // namespace platform::memory
