#include "engine/scan_cycle.h"

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>

#include "tests/world.h"

namespace {

using engine::ScanAmounts;
namespace setting = settings::setting;

// The meter window's part of a scan: writes down what it is asked to do.
class Cycle : public test::Adapters, private engine::ScanSteps {
 public:
  // One scan in which the first adapter moves bytes.
  void Scan(std::uint32_t received, std::uint32_t sent) {
    if (!machine.interface_table.rows.empty()) {
      machine.interface_table.AddTraffic(0, received, sent);
    }
    cycle.Run();
  }

  engine::ScanCycle cycle{machine.clock, sampler, statistics, state, *this};

  std::string steps;        // their names, in order
  std::string graph;        // its latest inputs
  ScanAmounts last;         // what the latest step was given
  std::int64_t sum_dl = 0;  // over all scans
  std::vector<engine::AdapterItem> menu;
  // Runs inside the step of this name.
  std::string during;
  std::function<void()> inside;

 private:
  void Step(const char* name) {
    // Machine-wide values that are written by now show where the engine's own steps stand.
    steps += std::string(name) + "[" + std::to_string(state.RunTotalDL) + " " +
             StoredText("InfoMaxDL") + " " + StoredText("CurrentMonthTotalDL") + "] ";
    if (during == name && inside) inside();
  }
  void Step(const char* name, const ScanAmounts& scan) {
    last = scan;
    Step(name);
  }

  void Reinitialise() override {
    Step("Reinitialise");
    menu.clear();
    menu = Initialise();
  }
  void FeedGraph(std::int32_t TestRead, std::int32_t TestWrite) override {
    graph = std::to_string(TestRead) + " " + std::to_string(TestWrite);
    sum_dl += TestRead;
    Step("FeedGraph");
  }
  void ShowIcon(const ScanAmounts& scan) override { Step("ShowIcon", scan); }
  void ShowKeyboardLights(const ScanAmounts& scan) override { Step("ShowKeyboardLights", scan); }
  void CheckNotifications(const ScanAmounts& scan) override { Step("CheckNotifications", scan); }
  void ShowNumericLine(const ScanAmounts& scan) override { Step("ShowNumericLine", scan); }
  void Tick(const ScanAmounts& scan) override { Step("Tick", scan); }
  void CheckBandwidthAlert() override { Step("CheckBandwidthAlert"); }
};

TEST(ScanCycle, RunsItsStepsInOrder) {
  Cycle world;
  world.AddAdapter("card");
  (void)world.Initialise();
  world.Scan(500, 600);
  EXPECT_EQ(world.steps,
            "FeedGraph[0 (missing) (missing)] ShowIcon[500 500 (missing)] ShowKeyboardLights[500 "
            "500 (missing)] "
            "CheckNotifications[500 500 (missing)] ShowNumericLine[500 500 (missing)] Tick[500 500 "
            "(missing)] "
            "CheckBandwidthAlert[500 500 500] ");
  EXPECT_EQ(world.StoredOfAdapter("cardInfoTotalDL"), "500");
  EXPECT_EQ(world.graph, "500 600");
  world.Scan(0, 0);
  EXPECT_EQ(world.last.ScanSumDL, 0) << "amounts are those of one scan";
  EXPECT_EQ(world.last.ScanMaxUL, 600);
}

TEST(ScanCycle, TheGraphGetsTheLow32BitsAsASignedNumber) {
  Cycle world;
  for (const char* name : {"a", "b"}) world.AddAdapter(name);
  (void)world.Initialise();
  world.machine.interface_table.AddTraffic(1, 4294967295, 0);
  world.Scan(4294967295, 3000000000);
  EXPECT_EQ(world.graph, "-2 -1294967296") << "2^33 - 2 and 3000000000";
  EXPECT_EQ(world.state.RunTotalDL, 8589934590);
}

TEST(ScanCycle, AnotherNumberOfRowsInitialisesOnceAndCausesNoSpike) {
  Cycle world;
  (void)world.Initialise();
  world.cycle.Run();
  EXPECT_EQ(world.steps.find("Reinitialise"), std::string::npos) << "no rows before, none now";
  world.AddAdapter("card");
  world.Scan(0, 0);
  EXPECT_EQ(world.steps.substr(world.steps.rfind("Reinitialise"), 12), "Reinitialise");
  ASSERT_EQ(world.menu.size(), 1U);
  EXPECT_EQ(world.sum_dl, 0) << "the card's counters did not begin at zero";
  world.steps.clear();
  world.Scan(500, 0);
  EXPECT_EQ(world.steps.find("Reinitialise"), std::string::npos);
  EXPECT_EQ(world.sum_dl, 500);

  for (int i = 0; i < 20; ++i) world.AddAdapter("virtual " + std::to_string(i));
  world.Scan(0, 0);
  world.machine.interface_table.rows.resize(1);
  world.Scan(0, 0);
  EXPECT_EQ(world.sum_dl, 500);
  EXPECT_EQ(world.menu.size(), 1U);
  EXPECT_EQ(world.store.Read(setting::ExecuteTime), 4) << "each initialisation counts";
}

TEST(ScanCycle, AScanInsideTheBandwidthStepCountsItsOwnBytesOnly) {
  Cycle world;
  world.AddAdapter("card");
  (void)world.Initialise();
  world.during = "CheckBandwidthAlert";
  world.inside = [&] {
    world.inside = nullptr;  // the alert has been given; the scans inside give none
    world.Scan(30, 3);
    world.Scan(40, 4);
  };
  world.Scan(500, 600);
  EXPECT_EQ(world.state.RunTotalDL, 570);
  EXPECT_EQ(world.StoredText("CurrentMonthTotalDL"), "570");
  EXPECT_EQ(world.StoredText("CurrentMonthTotalUL"), "607");
  EXPECT_EQ(world.StoredOfAdapter("cardInfoTotalDL"), "570");
  world.Scan(7, 7);
  EXPECT_EQ(world.last.ScanSumDL, 7);
}

TEST(ScanCycle, AnywhereElseAScanIsNotEnteredAgain) {
  for (const char* step : {"Reinitialise", "FeedGraph", "ShowIcon", "ShowKeyboardLights",
                           "CheckNotifications", "ShowNumericLine", "Tick"}) {
    SCOPED_TRACE(step);
    Cycle world;
    world.AddAdapter("card");
    bool entered = false;
    world.during = step;
    world.inside = [&] {
      entered = true;
      world.Scan(500, 600);
    };
    world.Scan(1, 1);  // initialises
    EXPECT_TRUE(entered);
    world.inside = nullptr;
    world.Scan(0, 0);
    world.Scan(0, 0);
    // The bytes wait for the next scan, unless the counters are seeded after they have moved.
    EXPECT_EQ(world.state.RunTotalDL, std::string(step) == "Reinitialise" ? 0 : 500);
  }
}

TEST(ScanCycle, AStepThatFailsEndsItsScanAlone) {
  Cycle world;
  world.AddAdapter("card");
  (void)world.Initialise();
  world.Set("CurrentDayTotalDL", "abc");
  for (int scan = 1; scan <= 2; ++scan) {
    world.steps.clear();
    EXPECT_THROW(world.Scan(500, 600), std::runtime_error);
    EXPECT_EQ(world.last.ScanSumDL, 500);
    EXPECT_EQ(world.steps.find("CheckBandwidthAlert"), std::string::npos);
    EXPECT_EQ(world.state.RunTotalDL, 500 * scan) << "the steps before it have been done";
  }
  world.Set("CurrentDayTotalDL", "0");
  world.Scan(30, 3);
  EXPECT_EQ(world.StoredText("CurrentDayTotalDL"), "30");

  world.during = "CheckBandwidthAlert";
  world.inside = [] { throw std::runtime_error("in the alert"); };
  EXPECT_THROW(world.Scan(1, 1), std::runtime_error);
  world.inside = nullptr;
  world.steps.clear();
  world.Scan(2, 2);
  EXPECT_NE(world.steps.find("CheckBandwidthAlert"), std::string::npos);
}

// A world with a steady adapter, which is persisted, after its first scan.
struct Steady {
  Steady() {
    world.AddAdapter("card");
    (void)world.Initialise();
    world.Scan(1, 1);
    world.sum_dl = 0;
    world.steps.clear();
    world.machine.notebook.Restart();
  }
  Cycle world;
};

TEST(ScanCycle, WhicheverCallFailsTheNextScanIsRightAgain) {
  Steady healthy;
  healthy.world.Scan(500, 600);
  const int calls = healthy.world.machine.notebook.Calls();
  ASSERT_GT(calls, 100);
  for (int n = 1; n <= calls; ++n) {
    SCOPED_TRACE("call " + std::to_string(n));
    Steady steady;
    Cycle& world = steady.world;
    world.machine.notebook.FailCall(n);
    bool failed = false;
    try {
      world.Scan(500, 600);
    } catch (const std::runtime_error&) {
      failed = true;
    }
    ASSERT_FALSE(world.machine.notebook.FailurePending());
    const std::int64_t counted = world.sum_dl;
    const std::string steps = world.steps;
    world.sum_dl = 0;
    world.steps.clear();
    ASSERT_NO_THROW(world.Scan(30, 40));
    // Bytes of a scan that failed in the registry are gone; those of one whose table could not be
    // read come with the next.
    EXPECT_EQ(counted + world.sum_dl, failed && counted == 0 ? 30 : 530) << steps;
    EXPECT_NE(world.steps.find("CheckBandwidthAlert"), std::string::npos);
    EXPECT_EQ(world.steps.find("Reinitialise"), std::string::npos);
  }
}

TEST(ScanCycle, WhicheverCallOfAnInitialisationFailsItIsMadeAgain) {
  // Enough for the scan with its initialisation; counted by the first pass.
  int calls = 1;
  for (int n = 0; n <= calls; ++n) {
    SCOPED_TRACE("call " + std::to_string(n));
    Steady steady;
    Cycle& world = steady.world;
    world.AddAdapter("usb");
    // The reader asks once whether the newcomer is a filter; an answer that fails says no.
    world.machine.notebook.FailCall(n);
    try {
      world.Scan(500, 600);
    } catch (const std::runtime_error&) {
    }
    if (n == 0) calls = world.machine.notebook.Calls();
    world.Scan(0, 0);  // makes the initialisation again where it failed
    world.sum_dl = 0;
    world.Scan(30, 40);
    EXPECT_EQ(world.menu.size(), 2U);
    EXPECT_EQ(world.sum_dl, 30);
    EXPECT_EQ(world.state.AdapterHigh, 1);
  }
}

// Of a scan with N rows that are no loopback, P of them persisted, in the middle of a period and
// with no maximum rising:
//   a row          1 read (include flag)
//   persisted row  3 writes (adapter data), 3 reads (markers), and for each of 4 groups 4 reads
//                  and 2 writes; an adapter's maximum that is equal is written too: 8 writes
//   machine        2 writes (maxima), 3 reads (markers), 3 groups of 4 reads and 2 writes
// Each is one round trip.
TEST(ScanCycle, EachValueCostsOneRoundTrip) {
  for (const int persisted : {5, 40}) {
    SCOPED_TRACE(persisted);
    Cycle world;
    for (int i = 0; i < persisted; ++i) world.AddAdapter("card " + std::to_string(i));
    world.AddAdapter("MS TCP Loopback interface");
    (void)world.Initialise();
    world.Scan(500, 600);  // raises the maxima
    world.machine.notebook.Restart();
    const int table_reads = world.machine.interface_table.reads;
    world.Scan(500, 600);
    const auto& registry = world.machine.notebook.registry;
    EXPECT_EQ(registry.Reads(), persisted * (1 + 3 + 4 * 4) + 3 + 3 * 4);
    EXPECT_EQ(registry.Writes(), persisted * (3 + 4 * 2 + 8) + 2 + 3 * 2);
    EXPECT_EQ(registry.round_trips, registry.Reads() + registry.Writes());
    EXPECT_EQ(world.machine.interface_table.reads - table_reads, 4) << "the table twice";
  }
}

}  // namespace
