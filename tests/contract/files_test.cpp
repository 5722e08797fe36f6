#include "platform/files.h"

#include <gtest/gtest.h>

#include "tests/contract/world.h"

namespace contract {
namespace {

class Files : public testing::Test {
 protected:
  platform::Files& files() { return world_->Files(); }

  std::unique_ptr<World> world_ = MakeWorld();
  const std::string folder_ = world_->ScratchFolder();
};

TEST_F(Files, TheProgramIsAFileInItsFolder) {
  const std::string path = files().ProgramPath();
  const std::string folder = files().ProgramFolder();
  EXPECT_TRUE(files().Size(path).has_value());
  EXPECT_TRUE(path.starts_with(folder));
  EXPECT_TRUE(folder.ends_with('\\'));
  EXPECT_EQ(path.find('\\', folder.size()), std::string::npos) << path;
}

TEST_F(Files, WhatIsSavedIsLoaded) {
  const std::string path = folder_ + "\u00FCber \u7F51.txt";
  EXPECT_FALSE(files().Size(path).has_value());
  EXPECT_EQ(files().Load(path, 100), std::nullopt);
  const std::string bytes("a\r\n\0\xFF\n", 6);
  for (const std::string& content :
       {bytes, std::string(3000000, 'x'), std::string(), std::string("short")}) {
    SCOPED_TRACE(content.size());
    ASSERT_TRUE(files().Save(path, content));
    EXPECT_TRUE(files().Size(path).has_value());
    EXPECT_TRUE(files().Load(path, content.size()) == content);
  }
}

TEST_F(Files, WhatIsAppendedStandsBehindTheRest) {
  const std::string path = folder_ + "a.txt";
  EXPECT_FALSE(files().Append(path, "x")) << "no file is made";
  EXPECT_EQ(files().Size(path), std::nullopt);
  ASSERT_TRUE(files().Save(path, "12"));
  EXPECT_TRUE(files().Append(path, "345"));
  EXPECT_EQ(files().Load(path, 100), "12345");
  EXPECT_EQ(files().Size(path), 5U);
  world_->HoldFile(path, [&] { EXPECT_FALSE(files().Append(path, "6")); });
  EXPECT_EQ(files().Size(folder_.substr(0, folder_.size() - 1)), std::nullopt) << "a folder";
}

TEST_F(Files, ARenamedFileReplacesTheOneOfThatName) {
  ASSERT_TRUE(files().Save(folder_ + "new.txt", "new"));
  ASSERT_TRUE(files().Save(folder_ + "old.txt", "old"));
  EXPECT_TRUE(files().Rename(folder_ + "new.txt", folder_ + "old.txt"));
  EXPECT_EQ(files().List(folder_, "*"), std::vector<std::string>{"old.txt"});
  EXPECT_EQ(files().Load(folder_ + "old.txt", 100), "new");
  EXPECT_FALSE(files().Rename(folder_ + "missing.txt", folder_ + "old.txt"));
}

TEST_F(Files, ALargerFileThanTheLimitIsNotLoaded) {
  const std::string path = folder_ + "a.txt";
  ASSERT_TRUE(files().Save(path, "12345"));
  EXPECT_EQ(files().Load(path, 5), "12345");
  EXPECT_EQ(files().Load(path, 4), std::nullopt);
  ASSERT_TRUE(files().Save(path, ""));
  EXPECT_EQ(files().Load(path, 0), "");
}

TEST_F(Files, CaseOfNamesIsNotToldApart) {
  ASSERT_TRUE(files().Save(folder_ + "Name.txt", "1"));
  EXPECT_TRUE(files().Size(folder_ + "nAME.TXT").has_value());
  ASSERT_TRUE(files().Save(folder_ + "NAME.txt", "2"));
  EXPECT_EQ(files().List(folder_, "*"), std::vector<std::string>{"Name.txt"});
}

TEST_F(Files, AFolderIsNoFile) {
  world_->MakeFolder(folder_ + "inner");
  EXPECT_FALSE(files().Size(folder_ + "inner").has_value());
  EXPECT_EQ(files().Load(folder_ + "inner", 100), std::nullopt);
  EXPECT_FALSE(files().Save(folder_ + "inner", "x"));
  EXPECT_TRUE(files().List(folder_, "*").empty());
}

TEST_F(Files, AFileThatCannotBeReadIsNotMissing) {
  const std::string path = folder_ + "a.txt";
  EXPECT_TRUE(files().Missing(path));
  EXPECT_TRUE(files().Missing(folder_ + "missing\\a.txt"));
  ASSERT_TRUE(files().Save(path, "x"));
  world_->HoldFile(path, [&] {
    EXPECT_EQ(files().Load(path, 100), std::nullopt);
    EXPECT_FALSE(files().Missing(path));
  });
  EXPECT_EQ(files().Load(path, 100), "x");
  world_->MakeFolder(folder_ + "inner");
  EXPECT_FALSE(files().Missing(folder_ + "inner"));
}

TEST_F(Files, ARefusedSaveIsReported) {
  EXPECT_FALSE(files().Save(folder_ + "missing\\a.txt", "x"));
  EXPECT_FALSE(files().Save("", "x"));
  const std::string path = folder_ + "a.txt";
  ASSERT_TRUE(files().Save(path, "before"));
  world_->HoldFile(path, [&] { EXPECT_FALSE(files().Save(path, "after")); });
  EXPECT_EQ(files().Load(path, 100), "before");
  EXPECT_EQ(files().List(folder_, "*"), std::vector<std::string>{"a.txt"}) << "something is left";
  EXPECT_TRUE(files().Save(path, "after"));
  EXPECT_EQ(files().Load(path, 100), "after");
  EXPECT_EQ(files().List(folder_, "*"), std::vector<std::string>{"a.txt"}) << "something is left";
}

TEST_F(Files, AMaskChoosesAmongTheFilesOfAFolder) {
  for (const char* name : {"b.lng", "A.LNG", "c.lng2", "d.txt", "\u00E4.lng"}) {
    ASSERT_TRUE(files().Save(folder_ + name, ""));
  }
  world_->MakeFolder(folder_ + "folder.lng");
  const std::vector<std::string> expected = {"A.LNG", "b.lng", "\u00E4.lng"};
  EXPECT_EQ(files().List(folder_, "*.lng"), expected);
  EXPECT_EQ(files().List(folder_.substr(0, folder_.size() - 1), "*.lng"), expected);
  EXPECT_EQ(files().List(folder_, "?.txt"), std::vector<std::string>{"d.txt"});
  EXPECT_TRUE(files().List(folder_ + "missing", "*").empty());
}

}  // namespace
}  // namespace contract
