#include "engine/local_ip.h"

#include <gtest/gtest.h>

#include "platform/memory/machine.h"
#include "toolkit/copy_text.h"

namespace {

namespace setting = settings::setting;

TEST(LocalIP, IsTheLastAddressOfTheMachinesName) {
  struct Row {
    const char* why;
    std::optional<std::vector<std::string>> addresses;
    const char* address;
    int cleanups;
  };
  const Row rows[] = {
      {"one", std::vector<std::string>{"10.0.0.1"}, "10.0.0.1", 1},
      {"the last of several", std::vector<std::string>{"10.0.0.1", "192.168.1.2"}, "192.168.1.2",
       1},
      {"a name without addresses", std::vector<std::string>{}, "", 1},
      {"no answer: the library stays started", std::nullopt, "", 0},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.why);
    platform::memory::Machine machine;
    machine.sockets.addresses = row.addresses;
    EXPECT_EQ(engine::GetLocalIP(machine.sockets), row.address);
    EXPECT_EQ(machine.sockets.last_version, 0x0101);
    EXPECT_EQ(machine.sockets.starts, 1);
    EXPECT_EQ(machine.sockets.cleanups, row.cleanups);
  }
}

TEST(LocalIP, NoFailureOfTheSocketsIsMoreThanAnEmptyText) {
  for (int call = 1; call <= 3; ++call) {
    platform::memory::Machine machine;
    machine.notebook.FailCall(call);
    EXPECT_EQ(engine::GetLocalIP(machine.sockets), "") << call;
  }
}

TEST(LocalIP, IsCopiedAtTheStartOnlyIfWanted) {
  platform::memory::Machine machine;
  settings::Store store(machine.registry, machine.files);
  engine::CopyLocalIPIfWanted(store, machine.sockets, machine.clipboard);
  EXPECT_EQ(machine.clipboard.changes, 0);
  EXPECT_EQ(machine.sockets.look_ups, 0);
  store.Write(setting::CopyIP, true);
  engine::CopyLocalIPIfWanted(store, machine.sockets, machine.clipboard);
  EXPECT_EQ(machine.clipboard.text, "192.168.1.20");
  machine.clipboard.held_by_other = true;
  engine::CopyLocalIPIfWanted(store, machine.sockets, machine.clipboard);
}

TEST(LocalIP, ACopiedTextIsCutAt255Characters) {
  platform::memory::Machine machine;
  std::string text;
  for (int i = 0; i < 256; ++i) text += "\xC3\xA4";
  toolkit::CopyText(machine.clipboard, text);
  EXPECT_EQ(machine.clipboard.text, text.substr(0, 255 * 2));
}

}  // namespace
