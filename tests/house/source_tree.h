// The sources of this project, as the checks of the house read them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace house {

struct Include {
  int line = 0;
  std::string target;   // what stands between the quotes or angles
  bool quoted = false;  // "x" rather than <x>
};

struct Source {
  std::string path;  // from the root, with "/"
  std::string text;

  [[nodiscard]] std::vector<Include> Includes() const;
};

// The bytes of a file, by its path from the root; empty when it is missing.
[[nodiscard]] std::string ReadFile(std::string_view path);

// Every .h and .cpp file of the project's folders. Folders of builds are left out.
[[nodiscard]] std::vector<Source> AllSources();

}  // namespace house
