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
  Cycle(std::initializer_list<const char*> adapters) {
    for (const char* name : adapters) AddAdapter(name);
    (void)Initialise();
  }
  // One scan in which the first adapter moves bytes.
  void Scan(std::uint32_t received, std::uint32_t sent) {
    machine.interface_table.AddTraffic(0, received, sent);
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
    steps += std::string(name) + "[" + std::to_string(state.RunTotalDL);
    for (const char* value : {"InfoMaxDL", "CurrentMonthTotalDL"}) {
      steps += ' ' + machine.registry.Text(test::kSettingsKey, value).value_or("-1");
    }
    steps += "] ";
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
  Cycle world({"card"});
  world.Scan(500, 600);
  EXPECT_EQ(world.steps,
            "FeedGraph[0 -1 -1] ShowIcon[500 500 -1] ShowKeyboardLights[500 500 -1] "
            "CheckNotifications[500 500 -1] ShowNumericLine[500 500 -1] Tick[500 500 -1] "
            "CheckBandwidthAlert[500 500 500] ");
  EXPECT_EQ(world.StoredOfAdapter("cardInfoTotalDL"), "500");
  EXPECT_EQ(world.graph, "500 600");
  world.Scan(0, 0);
  EXPECT_EQ(world.last.ScanSumDL, 0) << "amounts are those of one scan";
  EXPECT_EQ(world.last.ScanMaxUL, 600);
}

TEST(ScanCycle, TheGraphGetsTheLow32BitsAsASignedNumber) {
  Cycle world({"a", "b"});
  world.machine.interface_table.AddTraffic(1, 4294967295, 0);
  world.Scan(4294967295, 3000000000);
  EXPECT_EQ(world.graph, "-2 -1294967296") << "2^33 - 2 and 3000000000";
  EXPECT_EQ(world.state.RunTotalDL, 8589934590);
}

TEST(ScanCycle, AnotherNumberOfRowsInitialisesOnceAndCausesNoSpike) {
  Cycle world({});
  world.cycle.Run();
  EXPECT_EQ(world.steps.find("Reinitialise"), std::string::npos) << "no rows before, none now";
  world.AddAdapter("card");
  world.Scan(0, 0);
  ASSERT_EQ(world.menu.size(), 1U);
  EXPECT_EQ(world.sum_dl, 0) << "the card's counters did not begin at zero";
  world.Scan(500, 0);
  EXPECT_EQ(world.sum_dl, 500);
  EXPECT_EQ(world.store.Read(setting::ExecuteTime), 2) << "each initialisation counts";
}

// Under the window of an alert scans go on, as tools/endure plays.
TEST(ScanCycle, AnywhereElseAScanIsNotEnteredAgain) {
  for (const char* step : {"Reinitialise", "FeedGraph", "ShowIcon", "ShowKeyboardLights",
                           "CheckNotifications", "ShowNumericLine", "Tick"}) {
    SCOPED_TRACE(step);
    Cycle world({});
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
  Cycle world({"card"});
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

TEST(ScanCycle, WhicheverCallFailsTheNextScanIsRightAgain) {
  for (const bool newcomer : {false, true}) {
    bool failed = true;
    for (int call = 1; failed; ++call) {
      SCOPED_TRACE(std::string(newcomer ? "initialises, call " : "call ") + std::to_string(call));
      Cycle world({"card"});
      world.Scan(1, 1);  // a steady adapter, which is persisted
      world.sum_dl = 0;
      world.steps.clear();
      if (newcomer) world.AddAdapter("usb");
      // The reader asks once whether the newcomer is a filter; an answer that fails says no.
      world.machine.notebook.FailCall(call);
      bool threw = false;
      try {
        world.Scan(500, 600);
      } catch (const std::runtime_error&) {
        threw = true;
      }
      failed = !world.machine.notebook.FailurePending();
      const bool counted = world.sum_dl > 0;
      ASSERT_NO_THROW(world.Scan(0, 0)) << "makes the initialisation again where it failed";
      // Bytes of a scan that failed in the registry are gone; those of one whose table could not be
      // read come with the next.
      EXPECT_TRUE(newcomer || world.sum_dl == (threw && !counted ? 0 : 500)) << world.steps;
      EXPECT_EQ(world.steps.find("Reinitialise") != std::string::npos, newcomer);
      world.sum_dl = 0;
      world.steps.clear();
      ASSERT_NO_THROW(world.Scan(30, 40));
      EXPECT_EQ(world.sum_dl, 30);
      EXPECT_NE(world.steps.find("CheckBandwidthAlert"), std::string::npos);
      EXPECT_EQ(world.state.AdapterHigh, newcomer ? 1 : 0);
    }
  }
}

}  // namespace
