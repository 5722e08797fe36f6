// Files by their wide calls.
#pragma once

#include "platform/files.h"

namespace platform::windows {

class Files : public platform::Files {
 public:
  [[nodiscard]] std::string ProgramPath() override;
  [[nodiscard]] std::string ProgramFolder() override;
  [[nodiscard]] bool Exists(std::string_view path) override;
  [[nodiscard]] bool Missing(std::string_view path) override;
  [[nodiscard]] std::optional<std::uint64_t> Size(std::string_view path) override;
  [[nodiscard]] std::optional<std::string> Load(std::string_view path, std::size_t limit) override;
  bool Save(std::string_view path, std::string_view bytes) override;
  bool Append(std::string_view path, std::string_view bytes) override;
  bool Rename(std::string_view from, std::string_view to) override;
  [[nodiscard]] std::vector<std::string> List(std::string_view folder,
                                              std::string_view mask) override;
};

}  // namespace platform::windows
