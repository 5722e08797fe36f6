#include "engine/local_ip.h"

#include <gtest/gtest.h>

#include "tests/world.h"
#include "toolkit/copy_text.h"

namespace {

class LocalIP : public testing::Test, protected test::Computer {};

TEST_F(LocalIP, IsTheLastAddressOfTheMachinesNameOrNone) {
  machine.sockets.addresses = {"10.0.0.1", "192.168.1.2"};
  EXPECT_EQ(engine::GetLocalIP(machine.sockets), "192.168.1.2");
  EXPECT_EQ(machine.sockets.last_version, 0x0101);
  EXPECT_EQ(machine.sockets.cleanups, machine.sockets.starts);
  for (int call = 1; call <= 3; ++call) {
    machine.notebook.FailCall(call);
    EXPECT_EQ(engine::GetLocalIP(machine.sockets), "") << call;
  }
  const int started = machine.sockets.starts - machine.sockets.cleanups;
  machine.sockets.addresses.reset();
  EXPECT_EQ(engine::GetLocalIP(machine.sockets), "");
  EXPECT_EQ(machine.sockets.starts - machine.sockets.cleanups, started + 1)
      << "after a look-up without an answer the library stays started";
  machine.sockets.addresses = std::vector<std::string>();
  EXPECT_EQ(engine::GetLocalIP(machine.sockets), "");
}

TEST_F(LocalIP, IsCopiedAtTheStartOnlyIfWanted) {
  engine::CopyLocalIPIfWanted(store, machine.sockets, machine.clipboard);
  EXPECT_EQ(machine.clipboard.changes, 0);
  EXPECT_EQ(machine.sockets.look_ups, 0);
  Set("CopyIP", 1);
  engine::CopyLocalIPIfWanted(store, machine.sockets, machine.clipboard);
  EXPECT_EQ(machine.clipboard.text, "192.168.1.20");
}

TEST_F(LocalIP, ACopiedTextIsCutAt255Characters) {
  std::string text;
  for (int i = 0; i < 256; ++i) text += "\u00E4";
  toolkit::CopyText(machine.clipboard, text);
  EXPECT_EQ(machine.clipboard.text, text.substr(0, 255 * 2));
}

}  // namespace
