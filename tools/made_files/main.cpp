// Writes what is made from the tables in the code: the language files, the captions in the help and
// the page of all stored values. With --check only says what differs.
//
//   made_files [--check] <folder of the sources>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include "tools/made_files/made_files.h"

namespace {

std::string ReadFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

// Returns whether the file is as it should be now.
bool Make(const std::string& path, const std::string& present, const std::string& made,
          bool check) {
  if (present == made) return true;
  if (!check && std::ofstream(path, std::ios::binary) << made) return true;
  std::fprintf(stderr, "%s: %s\n", path.c_str(), check ? "run ./dev languages" : "not written");
  return false;
}

}  // namespace

int main(int count, char** words) {
  const bool check = count > 1 && std::string_view(words[1]) == "--check";
  if (count != (check ? 3 : 2)) {
    std::fputs("made_files [--check] <folder of the sources>\n", stderr);
    return 2;
  }
  const std::string folder = words[count - 1];
  bool good = true;
  for (const std::string language :
       {"English", "German", "French", "Spanish", "Turkish", "Japanese"}) {
    const std::string path = folder + "/assets/Languages/" + language + ".lng";
    const std::string present = ReadFile(path);
    const std::string texts = made_files::LanguageFile(language, present);
    good &= Make(path, present, texts, check);
    const std::string help =
        folder + "/assets/Help/" + (language == "English" ? "" : language + '/') + "index.html";
    const std::string page = ReadFile(help);
    good &= Make(help, page, made_files::HelpPage(page, texts), check);
  }
  const std::string page = folder + "/docs/settings.md";
  good &= Make(page, ReadFile(page), made_files::SettingsPage(), check);
  return good ? 0 : 1;
}
