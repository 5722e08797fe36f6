// fuzz_replay <corpora>: hands each target every file in its folder of the corpora once. Ends with
// 1 when a folder is missing or empty; the targets end the program at what they find.
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <system_error>

#include "tools/fuzz/targets.h"

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  for (const fuzz::Target& target : fuzz::Targets()) {
    int read = 0;
    std::error_code missing;
    const auto folder = std::filesystem::path(argv[1]) / target.name;
    for (const auto& entry : std::filesystem::directory_iterator(folder, missing)) {
      std::printf("%s\n", entry.path().c_str());
      std::fflush(stdout);  // the last one named is the one at fault
      std::ifstream file(entry.path(), std::ios::binary);
      target.read(std::string(std::istreambuf_iterator<char>(file), {}));
      ++read;
    }
    if (read == 0) {
      std::printf("no corpus for %s\n", folder.c_str());
      return 1;
    }
  }
  return 0;
}
