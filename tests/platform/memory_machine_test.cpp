#include <gtest/gtest.h>

#include <cstring>
#include <stdexcept>

#include "platform/memory/machine.h"

namespace platform::memory {
namespace {

// One call of each kind that can fail, each answering whether it went well.
std::vector<bool> CallEverything(Machine& machine) {
  std::vector<bool> well;
  const std::unique_ptr<RegistryKey> key = machine.registry.Open("\\A\\B", KeyAccess::kCreate);
  well.push_back(key != nullptr);
  if (key != nullptr) {
    try {
      key->WriteDword("n", 1);
      well.push_back(true);
    } catch (const std::runtime_error&) {
      well.push_back(false);
    }
    well.push_back(key->ReadDword("n").has_value());
  }
  std::uint32_t size = 0;
  well.push_back(machine.interface_table.Read({}, size) == kInsufficientBuffer);
  well.push_back(machine.sockets.Start(0x0101));
  well.push_back(!machine.sockets.HostName().empty());
  well.push_back(machine.sockets.HostAddresses(machine.sockets.host_name).has_value());
  well.push_back(machine.files.Save(machine.files.ProgramFolder() + "a", "b"));
  well.push_back(machine.files.Load(machine.files.ProgramFolder() + "a", 9).has_value());
  well.push_back(machine.clipboard.SetText("c"));
  return well;
}

TEST(MemoryMachine, EachCallThatCanFailCanBeMadeToFail) {
  Machine counted;
  ASSERT_EQ(CallEverything(counted), std::vector<bool>(10, true));
  const int calls = counted.notebook.Calls();
  EXPECT_EQ(calls, 10);

  for (int n = 1; n <= calls; ++n) {
    SCOPED_TRACE(n);
    Machine machine;
    machine.notebook.FailCall(n);
    const std::vector<bool> well = CallEverything(machine);
    EXPECT_FALSE(machine.notebook.FailurePending());
    ASSERT_GE(well.size(), static_cast<std::size_t>(n == 1 ? 1 : n));
    EXPECT_FALSE(well[static_cast<std::size_t>(n) - 1]);
    EXPECT_EQ(CallEverything(machine), std::vector<bool>(10, true)) << "the failure passes";
  }
}

TEST(MemoryMachine, TheNotebookCountsRegistryWorkByKind) {
  Machine machine;
  for (const char* name : {"a", "b"}) {
    const auto key = machine.registry.Open("\\A", KeyAccess::kCreate);
    if (!key->ReadDword(name)) key->WriteDword(name, 7);
  }
  (void)machine.registry.Open("\\A", KeyAccess::kExisting)->ReadText("a");
  (void)machine.registry.Open("\\missing", KeyAccess::kExisting);
  EXPECT_EQ(
      machine.notebook.registry,
      (RegistryTraffic{.round_trips = 4, .dword_reads = 2, .text_reads = 1, .dword_writes = 2}));
  machine.notebook.Restart();
  EXPECT_EQ(machine.notebook.registry, RegistryTraffic{});
}

TEST(MemoryMachine, TheTableCanChangeBetweenAskingAndReading) {
  Machine machine;
  machine.interface_table.AddRow(MakeRow("first"));
  std::uint32_t size = 0;

  machine.interface_table.AfterNextSizeRead(
      [&] { machine.interface_table.AddRow(MakeRow("second")); });
  ASSERT_EQ(machine.interface_table.Read({}, size), kInsufficientBuffer);
  std::vector<std::byte> buffer(size);
  EXPECT_EQ(machine.interface_table.Read(buffer, size), kInsufficientBuffer) << "it grew";

  machine.interface_table.AfterNextSizeRead([&] { machine.interface_table.rows.clear(); });
  ASSERT_EQ(machine.interface_table.Read({}, size), kInsufficientBuffer);
  buffer.assign(size, std::byte{0xFF});
  EXPECT_EQ(machine.interface_table.Read(buffer, size), 0U);
  std::uint32_t count = 1;
  std::memcpy(&count, buffer.data(), sizeof count);
  EXPECT_EQ(count, 0U) << "it became empty";
}

TEST(MemoryMachine, AScriptedReadFailsOnce) {
  Machine machine;
  machine.interface_table.FailRead(2, 87);
  std::uint32_t size = 5;
  EXPECT_EQ(machine.interface_table.Read({}, size), kInsufficientBuffer);
  size = 5;
  EXPECT_EQ(machine.interface_table.Read({}, size), 87U);
  EXPECT_EQ(size, 5U);
  EXPECT_EQ(machine.interface_table.Read({}, size), kInsufficientBuffer);
}

TEST(MemoryMachine, TimeThatPassesGivesTheSameNumberAsTimeThatIsSet) {
  Machine machine;
  machine.clock.SetNow(EncodeDateTime(2024, 12, 31, 23, 59, 58, 500));
  const std::int64_t start = machine.clock.SteadyMilliseconds();
  machine.clock.Advance(1499);
  EXPECT_EQ(machine.clock.Now(), EncodeDateTime(2024, 12, 31, 23, 59, 59, 999));
  machine.clock.Advance(1);
  EXPECT_EQ(machine.clock.Now(), EncodeDate(2025, 1, 1));
  machine.clock.Advance(2 * 86400000LL + 250);
  EXPECT_EQ(machine.clock.Now(), EncodeDateTime(2025, 1, 3, 0, 0, 0, 250));
  machine.clock.SetNow(EncodeDate(1980, 1, 1));
  EXPECT_EQ(machine.clock.SteadyMilliseconds() - start, 2 * 86400000LL + 1750);
}

TEST(MemoryMachine, AKeyThatWasRemovedWhileOpenIsUseless) {
  Machine machine;
  const auto key = machine.registry.Open("\\A\\B", KeyAccess::kCreate);
  key->WriteText("n", "x");
  machine.registry.RemoveKey("\\A");
  EXPECT_FALSE(machine.registry.Exists("\\A"));
  EXPECT_EQ(key->ReadText("n"), std::nullopt);
  EXPECT_FALSE(key->Delete("n"));
  EXPECT_THROW(key->WriteText("n", "y"), std::runtime_error);
}

}  // namespace
}  // namespace platform::memory
