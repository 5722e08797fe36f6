#include "tests/house/source_tree.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

namespace house {
namespace {

namespace fs = std::filesystem;

const fs::path kRoot = SOURCE_FOLDER;

}  // namespace

std::vector<Include> Source::Includes() const {
  std::vector<Include> includes;
  std::istringstream lines(text);
  std::string line;
  for (int number = 1; std::getline(lines, line); ++number) {
    constexpr std::string_view kWord = "#include";
    const std::size_t word = line.find_first_not_of(" \t");
    if (word == std::string::npos || line.compare(word, kWord.size(), kWord) != 0) continue;
    const std::size_t open = line.find_first_of("\"<", word);
    if (open == std::string::npos) continue;
    const bool quoted = line[open] == '"';
    const std::size_t close = line.find(quoted ? '"' : '>', open + 1);
    if (close == std::string::npos) continue;
    includes.push_back({number, line.substr(open + 1, close - open - 1), quoted});
  }
  return includes;
}

std::string ReadFile(std::string_view path) {
  std::ifstream file(kRoot / path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::vector<Source> AllSources() {
  std::vector<Source> sources;
  for (const char* folder :
       {"platform", "toolkit", "settings", "language", "engine", "quantity", "alerts", "stats",
        "display", "preferences", "program", "tests", "bench"}) {
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(kRoot / folder)) {
      const fs::path& path = entry.path();
      if (!entry.is_regular_file()) continue;
      if (path.extension() != ".h" && path.extension() != ".cpp") continue;
      const std::string name = fs::relative(path, kRoot).generic_string();
      sources.push_back({name, ReadFile(name)});
    }
  }
  return sources;
}

}  // namespace house
