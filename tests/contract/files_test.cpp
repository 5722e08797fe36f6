#include "platform/files.h"

#include "tests/contract/world.h"

namespace contract {
namespace {

using Names = std::vector<std::string>;

class Files : public ContractTest {
 protected:
  platform::Files& files() { return Platform().files; }

  const std::string folder_ = world_.ScratchFolder();
  const std::string path_ = folder_ + "a.txt";
};

TEST_F(Files, WhatIsSavedIsLoadedUpToTheLimit) {
  const std::string path = folder_ + "\u00FCber \u7F51.txt";
  EXPECT_EQ(files().Load(path, 100), std::nullopt);
  for (const std::string& content : {std::string("a\r\n\0\xFF\n", 6), std::string(3000000, 'x'),
                                     std::string(), std::string("short")}) {
    SCOPED_TRACE(content.size());
    ASSERT_TRUE(files().Save(path, content));
    EXPECT_TRUE(files().Load(path, content.size()) == content);
    EXPECT_EQ(files().Size(path), content.size());
  }
  EXPECT_EQ(files().Load(path, 4), std::nullopt);
}

TEST_F(Files, WhatIsAppendedStandsBehindTheRest) {
  EXPECT_FALSE(files().Append(path_, "x")) << "no file is made";
  EXPECT_TRUE(files().Missing(path_));
  ASSERT_TRUE(files().Save(path_, "12"));
  EXPECT_TRUE(files().Append(path_, "345"));
  EXPECT_EQ(files().Load(path_, 100), "12345");
}

TEST_F(Files, ARenamedFileReplacesTheOneOfThatName) {
  ASSERT_TRUE(files().Save(folder_ + "new.txt", "new"));
  ASSERT_TRUE(files().Save(folder_ + "old.txt", "old"));
  EXPECT_TRUE(files().Rename(folder_ + "new.txt", folder_ + "old.txt"));
  EXPECT_EQ(files().List(folder_, "*"), Names{"old.txt"});
  EXPECT_EQ(files().Load(folder_ + "old.txt", 100), "new");
  EXPECT_FALSE(files().Rename(folder_ + "missing.txt", folder_ + "old.txt"));
}

TEST_F(Files, AFolderIsNoFileAndNotMissing) {
  const std::string inner = folder_ + "inner";
  EXPECT_TRUE(files().Missing(inner));
  EXPECT_TRUE(files().Missing(inner + "\\a.txt"));
  world_.MakeFolder(inner);
  EXPECT_FALSE(files().Missing(inner));
  EXPECT_EQ(files().Size(inner), std::nullopt);
  EXPECT_EQ(files().Load(inner, 100), std::nullopt);
  EXPECT_FALSE(files().Save(inner, "x"));
  EXPECT_TRUE(files().List(folder_, "*").empty());
}

TEST_F(Files, WhatAnotherProgramKeepsForItselfIsRefusedAndLeftAsItWas) {
  EXPECT_FALSE(files().Save(folder_ + "missing\\a.txt", "x"));
  EXPECT_FALSE(files().Save("", "x"));
  ASSERT_TRUE(files().Save(path_, "before"));
  world_.HoldFile(path_, [&] {
    EXPECT_EQ(files().Load(path_, 100), std::nullopt);
    EXPECT_FALSE(files().Missing(path_));
    EXPECT_FALSE(files().Append(path_, "6"));
    EXPECT_FALSE(files().Save(path_, "after"));
  });
  EXPECT_EQ(files().Load(path_, 100), "before");
  EXPECT_TRUE(files().Save(path_, "after"));
  EXPECT_EQ(files().List(folder_, "*"), Names{"a.txt"}) << "something is left";
}

TEST_F(Files, AMaskChoosesAmongTheFilesOfAFolder) {
  for (const char* name : {"b.lng", "A.LNG", "c.lng2", "d.txt", "\u00E4.lng"}) {
    ASSERT_TRUE(files().Save(folder_ + name, ""));
  }
  world_.MakeFolder(folder_ + "folder.lng");
  const Names expected = {"A.LNG", "b.lng", "\u00E4.lng"};
  EXPECT_EQ(files().List(folder_, "*.lng"), expected);
  EXPECT_EQ(files().List(folder_.substr(0, folder_.size() - 1), "*.lng"), expected);
  EXPECT_EQ(files().List(folder_, "?.txt"), Names{"d.txt"});
  EXPECT_TRUE(files().List(folder_ + "missing", "*").empty());
}

}  // namespace
}  // namespace contract
