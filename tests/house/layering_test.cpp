// The floors of the house stand on each other: a file includes only what lies on its own floor or
// below.
#include <gtest/gtest.h>

#include <iterator>
#include <optional>

#include "tests/house/source_tree.h"

namespace house {
namespace {

// Lowest first. The folder inside another one is a floor of its own.
constexpr std::string_view kFloors[] = {
    "platform", "toolkit",          "settings",
    "engine",   "display/quantity", "alerts",
    "stats",    "display",          "settings/preferences",
};

// They stand beside the platform's interfaces, and nobody above knows which one is there.
constexpr std::string_view kPlatformBodies[] = {"platform/windows", "platform/memory"};

// Puts the program together, and so knows everything.
constexpr std::string_view kEntryPoint = "engine/main.cpp";

bool IsIn(std::string_view path, std::string_view folder) {
  return path.starts_with(folder) && path.substr(folder.size()).starts_with('/');
}

std::optional<std::string_view> PlatformBody(std::string_view path) {
  for (const std::string_view body : kPlatformBodies) {
    if (IsIn(path, body)) return body;
  }
  return std::nullopt;
}

// The number of the floor, 1 for the lowest; 0 for what is no floor, such as tests.
int Floor(std::string_view path) {
  int number = 0;
  std::size_t longest = 0;
  for (std::size_t at = 0; at < std::size(kFloors); ++at) {
    if (IsIn(path, kFloors[at]) && kFloors[at].size() > longest) {
      longest = kFloors[at].size();
      number = static_cast<int>(at) + 1;
    }
  }
  return number;
}

std::string Describe(std::string_view path) {
  const int floor = Floor(path);
  std::string text(path);
  if (floor > 0) {
    text += " on floor " + std::to_string(floor) + ", ";
    text += PlatformBody(path).value_or(kFloors[floor - 1]);
  }
  return text;
}

bool MayInclude(std::string_view from, std::string_view to) {
  if (IsIn(from, "tests") || IsIn(from, "bench")) return true;
  if (IsIn(to, "tests") || IsIn(to, "bench")) return false;
  if (from == kEntryPoint) return PlatformBody(to) != "platform/memory";
  if (PlatformBody(to)) return PlatformBody(from) == PlatformBody(to);
  return Floor(to) > 0 && Floor(to) <= Floor(from);
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
      {"a floor inside another folder lies elsewhere", "alerts/a.cpp", "display/quantity/b.h",
       false},
      {"and its neighbours are above it", "display/quantity/a.cpp", "display/b.h", true},
      {"the preferences stand above the display", "display/a.cpp", "settings/preferences/b.h",
       true},
      {"and the store below the engine", "engine/a.cpp", "settings/b.h", false},
      {"the real system shows itself to nobody", "display/a.cpp", "platform/windows/b.h", true},
      {"nor does the one in memory", "display/a.cpp", "platform/memory/b.h", true},
      {"the interfaces do not know their bodies", "platform/a.h", "platform/windows/b.h", true},
      {"a body knows the interfaces", "platform/windows/a.cpp", "platform/b.h", false},
      {"and itself", "platform/windows/a.cpp", "platform/windows/b.h", false},
      {"but not the other body", "platform/windows/a.cpp", "platform/memory/b.h", true},
      {"nor a floor above", "platform/windows/a.cpp", "toolkit/b.h", true},
      {"the entry point puts all together", "engine/main.cpp", "settings/preferences/b.h", false},
      {"from the real parts", "engine/main.cpp", "platform/memory/b.h", true},
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
