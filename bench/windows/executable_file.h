// What an executable file says about itself.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace bench {

struct ExecutableFile {
  std::int64_t size = 0;             // bytes
  std::vector<std::string> imports;  // libraries that it needs to start
};

// Throws std::runtime_error when the file cannot be read.
[[nodiscard]] ExecutableFile ReadExecutable(const std::wstring& path);

// Whether a library of this name comes with the system.
[[nodiscard]] bool IsSystemLibrary(const std::string& name);

}  // namespace bench
