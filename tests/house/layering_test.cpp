// The floors of the house stand on each other: a file includes only what lies on its own floor or
// below.
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <optional>

#include "tests/house/source_tree.h"

namespace house {
namespace {

struct FloorFolder {
  int floor;  // 1 for the lowest
  std::string_view folder;
};

constexpr FloorFolder kFloors[] = {
    {1, "platform"}, {2, "toolkit"},     {3, "settings"}, {3, "language"},
    {4, "engine"},   {5, "quantity"},    {6, "alerts"},   {7, "stats"},
    {8, "display"},  {9, "preferences"}, {10, "program"},
};

// They stand beside the platform's interfaces, and nobody above knows which one is there.
constexpr std::string_view kPlatformBodies[] = {"platform/windows", "platform/memory"};

// Puts the program together, and so knows the real system.
constexpr std::string_view kEntryPoint = "program/main.cpp";

bool IsIn(std::string_view path, std::string_view folder) {
  return path.starts_with(folder) && path.substr(folder.size()).starts_with('/');
}

std::optional<std::string_view> PlatformBody(std::string_view path) {
  for (const std::string_view body : kPlatformBodies) {
    if (IsIn(path, body)) return body;
  }
  return std::nullopt;
}

// The floor that a file lies on; that of number 0 for what is on none, such as tests.
FloorFolder FloorOf(std::string_view path) {
  const auto* const found = std::find_if(std::begin(kFloors), std::end(kFloors),
                                         [&](const auto& row) { return IsIn(path, row.folder); });
  return found != std::end(kFloors) ? *found : FloorFolder{};
}

std::string Describe(std::string_view path) {
  const FloorFolder floor = FloorOf(path);
  std::string text(path);
  if (floor.floor > 0) {
    text += " on floor " + std::to_string(floor.floor) + ", ";
    text += PlatformBody(path).value_or(floor.folder);
  }
  return text;
}

// The product's names, which say nothing about the program.
constexpr std::string_view kProductNames = "program/product.h";

bool IsOutside(std::string_view path) {
  return IsIn(path, "tests") || IsIn(path, "bench") || IsIn(path, "tools");
}

bool MayInclude(std::string_view from, std::string_view to) {
  if (IsOutside(from)) return true;
  if (IsOutside(to)) return false;
  if (from == kEntryPoint) return PlatformBody(to) != "platform/memory";
  if (to == kProductNames) return true;
  if (PlatformBody(to)) return PlatformBody(from) == PlatformBody(to);
  return FloorOf(to).floor > 0 && FloorOf(to).floor <= FloorOf(from).floor;
}

// One line for each include of `source` that climbs.
std::vector<std::string> Climbs(const Source& source) {
  std::vector<std::string> climbs;
  for (const Include& include : source.Includes()) {
    if (!include.quoted || MayInclude(source.path, include.target)) continue;
    climbs.push_back("line " + std::to_string(include.line) + " of " + Describe(source.path) +
                     " includes " + Describe(include.target));
  }
  return climbs;
}

TEST(Layering, NoIncludeClimbs) {
  int checked = 0;
  for (const Source& source : AllSources()) {
    for (const std::string& climb : Climbs(source)) ADD_FAILURE() << climb;
    ++checked;
  }
  EXPECT_GT(checked, 100) << "the sources were not found";
}

TEST(Layering, TheCheckSeesWhatClimbs) {
  struct Row {
    const char* why;
    const char* from;
    const char* include;
    bool climbs;
  };
  static constexpr Row kRows[] = {
      {"down", "engine/a.cpp", "platform/b.h", false},
      {"on the same floor", "engine/a.cpp", "engine/b.h", false},
      {"up", "engine/a.cpp", "display/b.h", true},
      {"up from a header", "platform/a.h", "toolkit/b.h", true},
      {"to another folder of the floor", "language/a.cpp", "settings/b.h", false},
      {"the preferences stand above the display", "display/a.cpp", "preferences/b.h", true},
      {"the real system shows itself to nobody", "display/a.cpp", "platform/windows/b.h", true},
      {"nor does the one in memory", "display/a.cpp", "platform/memory/b.h", true},
      {"the interfaces do not know their bodies", "platform/a.h", "platform/windows/b.h", true},
      {"a body knows the interfaces", "platform/windows/a.cpp", "platform/b.h", false},
      {"and itself", "platform/windows/a.cpp", "platform/windows/b.h", false},
      {"but not the other body", "platform/windows/a.cpp", "platform/memory/b.h", true},
      {"nor a floor above", "platform/windows/a.cpp", "toolkit/b.h", true},
      {"the entry point puts all together", "program/main.cpp", "preferences/b.h", false},
      {"from the real parts", "program/main.cpp", "platform/memory/b.h", true},
      {"tests see everything", "tests/engine/a.cpp", "platform/memory/b.h", false},
      {"but nobody sees tests", "display/a.cpp", "tests/b.h", true},
      {"a file beside it is named from the root", "engine/a.cpp", "b.h", true},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.why);
    const Source source{row.from, "// first\n  #include \"" + std::string(row.include) + "\"\n"};
    EXPECT_EQ(Climbs(source).size(), row.climbs ? 1U : 0U);
  }
  const Source climbing{"engine/a.cpp", "\n#include \"display/b.h\"\n"};
  EXPECT_EQ(Climbs(climbing).at(0),
            "line 2 of engine/a.cpp on floor 4, engine includes display/b.h on floor 8, display");
}

TEST(Layering, EveryIncludedFileExists) {
  for (const Source& source : AllSources()) {
    for (const Include& include : source.Includes()) {
      if (!include.quoted) continue;
      EXPECT_TRUE(FileExists(include.target))
          << source.path << ":" << include.line << " includes " << include.target
          << "; includes are written from the root";
    }
  }
}

}  // namespace
}  // namespace house
