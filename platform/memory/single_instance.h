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

  bool ClaimFirst(std::string_view name) override {
    // A mutex that cannot be made counts as first.
    return notebook_.Fails() || taken_.emplace(name).second;
  }

  // Ends the process, and with it the mutexes that it made.
  void EndProcess() { taken_.clear(); }

 private:
  Notebook& notebook_;
  std::set<std::string> taken_;  // the case of these names matters, unlike that of others
};

}  // namespace platform::memory
