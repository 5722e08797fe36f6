// The registry with a notebook: what a scan asks of it, to be played again without the program.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/registry.h"

namespace bench {

struct RegistryOperation {
  enum class Kind { kRead, kWrite, kDelete };
  Kind kind = Kind::kRead;
  std::wstring path;   // without a backslash in front
  bool create = true;  // the key is made when missing
  std::wstring name;
  std::uint32_t type = 0;         // of a write
  std::vector<std::byte> data{};  // of a write
};

class RecordingRegistry final : public platform::Registry {
 public:
  // `real` outlives it and does the work.
  explicit RecordingRegistry(platform::Registry& real) : real_(real) {}

  [[nodiscard]] std::unique_ptr<platform::RegistryKey> Open(std::string_view path,
                                                            platform::KeyAccess access) override;

  // From here on operations are written down.
  void Record() {
    operations_.clear();
    recording_ = true;
  }
  // Ends that and hands over what was written down.
  [[nodiscard]] std::vector<RegistryOperation> Recorded() {
    recording_ = false;
    return std::move(operations_);
  }

 private:
  platform::Registry& real_;
  bool recording_ = false;
  std::vector<RegistryOperation> operations_;
};

}  // namespace bench
