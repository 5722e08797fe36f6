#include "platform/clipboard.h"

#include <gtest/gtest.h>

#include "tests/contract/world.h"

namespace contract {
namespace {

TEST(Clipboard, TextReplacesWhatWasThere) {
  const std::unique_ptr<World> world = MakeWorld();
  for (const std::string& text : {std::string("10.0.0.1"), std::string("\u00FC \u7F51 \U0001F600"),
                                  std::string(), std::string(70000, 'x')}) {
    SCOPED_TRACE(text.size());
    EXPECT_TRUE(world->Clipboard().SetText(text));
    EXPECT_EQ(world->ClipboardText(), text);
  }
}

TEST(Clipboard, WhileAnotherProgramKeepsItOpenNothingChanges) {
  const std::unique_ptr<World> world = MakeWorld();
  ASSERT_TRUE(world->Clipboard().SetText("before"));
  world->HoldClipboard([&] { EXPECT_FALSE(world->Clipboard().SetText("after")); });
  EXPECT_EQ(world->ClipboardText(), "before");
  EXPECT_TRUE(world->Clipboard().SetText("after"));
  EXPECT_EQ(world->ClipboardText(), "after");
}

}  // namespace
}  // namespace contract
