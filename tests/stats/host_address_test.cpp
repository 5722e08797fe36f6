#include <gtest/gtest.h>

#include "platform/memory/machine.h"
#include "stats/unit_ConnInfo.h"

namespace {

TEST(HostAddress, ASlowLookUpIsNotRepeatedBeforeTwentyTimesItsLength) {
  platform::memory::Machine machine;
  stats::HostAddress address(machine.sockets, machine.clock);
  machine.sockets.addresses = {"10.0.0.1", "10.0.0.2"};
  machine.sockets.during_look_up = [&] { machine.clock.Advance(50); };
  EXPECT_EQ(address.Get(), "10.0.0.2");
  EXPECT_EQ(address.Get(), "10.0.0.2");
  EXPECT_EQ(machine.sockets.look_ups, 2) << "50 ms are not slow";

  machine.sockets.during_look_up = [&] { machine.clock.Advance(51); };
  EXPECT_EQ(address.Get(), "10.0.0.2");
  machine.sockets.addresses = {"10.0.0.3"};
  machine.clock.Advance(20 * 51 - 1);
  EXPECT_EQ(address.Get(), "10.0.0.2");
  EXPECT_EQ(machine.sockets.look_ups, 3);
  machine.clock.Advance(1);
  EXPECT_EQ(address.Get(), "10.0.0.3");
}

TEST(HostAddress, IsEmptyWithoutANetwork) {
  platform::memory::Machine machine;
  stats::HostAddress address(machine.sockets, machine.clock);
  machine.sockets.addresses.reset();
  EXPECT_EQ(address.Get(), "");
  EXPECT_EQ(machine.sockets.starts, 1);
  EXPECT_EQ(machine.sockets.cleanups, 0) << "a failed look-up leaves the library started";
}

}  // namespace
