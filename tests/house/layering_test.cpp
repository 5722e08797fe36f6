// The floors of the house stand on each other: a file includes only what lies on its own floor or
// below.
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

#include "tests/house/source_tree.h"

namespace house {
namespace {

struct Folder {
  std::string_view path;
  int floor;  // 1 for the lowest
};

constexpr Folder kFolders[] = {
    {"platform/windows/", 1}, {"platform/memory/", 1}, {"platform/", 1}, {"toolkit/", 2},
    {"settings/", 3},         {"language/", 3},        {"engine/", 4},   {"quantity/", 5},
    {"alerts/", 6},           {"stats/", 7},           {"display/", 8},  {"preferences/", 9},
    {"program/", 10},
};

// The folder of a file; that of floor 0 for what is on none, such as tests.
Folder FolderOf(std::string_view path) {
  const auto* const found =
      std::find_if(std::begin(kFolders), std::end(kFolders),
                   [path](const Folder& folder) { return path.starts_with(folder.path); });
  return found != std::end(kFolders) ? *found : Folder{};
}

// The bodies of the platform stand beside its interfaces, and nobody above knows which one is
// there, but for the entry point, which puts the program together. The product's names say nothing
// about the program.
bool MayInclude(std::string_view from, std::string_view to) {
  const Folder of = FolderOf(from);
  const Folder wanted = FolderOf(to);
  if (of.floor == 0 || to == "program/product.h") return true;
  if (from == "program/main.cpp") return wanted.path != "platform/memory/";
  const bool is_body = wanted.floor == 1 && wanted.path != "platform/";
  return wanted.floor > 0 && (is_body ? wanted.path == of.path : wanted.floor <= of.floor);
}

TEST(Layering, NoIncludeClimbs) {
  EXPECT_TRUE(MayInclude("engine/a.cpp", "platform/b.h"));
  EXPECT_FALSE(MayInclude("engine/a.cpp", "display/b.h")) << "the check sees nothing";
  EXPECT_FALSE(MayInclude("display/a.cpp", "platform/memory/b.h")) << "nor a body";
  int checked = 0;
  for (const Source& source : AllSources()) {
    for (const Include& include : source.Includes()) {
      const Folder from = FolderOf(source.path);
      const Folder to = FolderOf(include.target);
      ++checked;
      EXPECT_TRUE(!include.quoted || MayInclude(source.path, include.target))
          << "line " << include.line << " of " << source.path << " on floor " << from.floor
          << " includes " << include.target << " on floor " << to.floor;
    }
  }
  EXPECT_GT(checked, 1000) << "the sources were not found";
}

}  // namespace
}  // namespace house
