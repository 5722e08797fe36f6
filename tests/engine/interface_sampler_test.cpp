#include "engine/interface_sampler.h"

#include <gtest/gtest.h>

#include "settings/adapter_values.h"
#include "tests/world.h"

namespace {

using engine::AdapterCounters;
using engine::ScanAmounts;
using platform::memory::RegistryValue;

TEST(Sampler, CountsWhatMovedSinceTheScanBefore) {
  struct Row {
    const char* why;
    std::uint32_t last;
    std::uint32_t now;
    std::int64_t cap;
    std::uint32_t delta;
    std::uint32_t max;
    std::uint32_t total;
    std::uint32_t active;
  };
  static constexpr Row kRows[] = {
      {"plain", 1000, 6000, 0, 5000, 5000, 5000, 1},
      {"a wrapped counter still gives the small difference", 4294967000, 500, 0, 796, 796, 796, 1},
      {"idle", 77, 77, 0, 0, 0, 0, 0},
      {"one byte is activity", 77, 78, 0, 1, 1, 1, 1},
      {"capped, but not the total", 0, 5000, 1800, 1800, 1800, 5000, 1},
      {"at the cap", 0, 1800, 1800, 1800, 1800, 1800, 1},
      {"no cap below zero", 0, 5000, -1, 5000, 5000, 5000, 1},
      {"a cap beyond 32 bits", 0, 4294967295, 5000000000, 4294967295, 4294967295, 4294967295, 1},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.why);
    test::Adapters world;
    world.AddAdapter("card").dwInOctets = row.last;
    world.machine.interface_table.rows[0].dwOutOctets = row.last;
    (void)world.Initialise();
    world.state.SpeedCap = row.cap;
    const ScanAmounts scan = world.Sample(row.now - row.last, row.now - row.last);
    const AdapterCounters& counters = world.state.adapter_counters[0];
    EXPECT_EQ(counters.DeltaIn, row.delta);
    EXPECT_EQ(counters.DeltaOut, row.delta);
    EXPECT_EQ(counters.MaxIn, row.max);
    EXPECT_EQ(counters.MaxOut, row.max);
    EXPECT_EQ(counters.TotalIn, row.total);
    EXPECT_EQ(counters.TotalOut, row.total);
    EXPECT_EQ(counters.ActiveInScans, row.active);
    EXPECT_EQ(counters.ActiveOutScans, row.active);
    EXPECT_EQ(counters.LastInOctets, row.now);
    EXPECT_EQ(scan.ScanSumDL, row.delta);
    EXPECT_EQ(scan.ScanMaxUL, row.max);
  }
}

TEST(Sampler, ACapThatComesLaterCutsTheMaximaToo) {
  test::Adapters world;
  world.AddAdapter("card");
  (void)world.Initialise();
  EXPECT_EQ(world.Sample(5000, 700).ScanMaxDL, 5000);
  EXPECT_EQ(world.Sample(10, 10).ScanMaxDL, 5000) << "a maximum does not fall by itself";
  world.state.SpeedCap = 1800;
  EXPECT_EQ(world.Sample(0, 0).ScanMaxDL, 1800);
  EXPECT_EQ(world.state.adapter_counters[0].MaxOut, 700U);
}

TEST(Sampler, ScansAddUpToTheGrowthOfTheCounter) {
  test::Adapters world;
  world.AddAdapter("card").dwInOctets = 4294900000;
  (void)world.Initialise();
  std::int64_t sum = 0;
  for (std::uint32_t scan = 0; scan < 600; ++scan) sum += world.Sample(scan * 7919, 0).ScanSumDL;
  EXPECT_EQ(sum, std::int64_t{7919} * 599 * 300);
}

// Which rows are stored depends on the order of the rows and on the sums so far.
TEST(Sampler, ARowIsPersistedOnceBothSumsAreAboveZero) {
  struct Adapter {
    std::uint32_t in;
    std::uint32_t out;
    bool included;
    bool persisted;
  };
  struct Row {
    const char* why;
    Adapter a, b, c;
    std::int64_t dl, ul;
  };
  static constexpr Row kRows[] = {
      {"idle", {0, 0, true, false}, {0, 0, true, false}, {0, 0, true, false}, 0, 0},
      {"download alone persists nothing",
       {500, 0, true, false},
       {600, 0, true, false},
       {700, 0, true, false},
       1800,
       0},
      {"upload alone neither",
       {0, 5, true, false},
       {0, 6, true, false},
       {0, 7, true, false},
       0,
       18},
      {"idle rows behind an active one are, those before are not",
       {0, 0, true, false},
       {50, 60, true, true},
       {0, 0, true, true},
       50,
       60},
      {"one row each way: from the second on",
       {50, 0, true, false},
       {0, 60, true, true},
       {0, 0, true, true},
       50,
       60},
      {"an excluded row does not count, but is persisted behind an active one",
       {50, 60, true, true},
       {500, 600, false, true},
       {1, 1, true, true},
       51,
       61},
      {"an excluded row brings nothing to the sums",
       {500, 600, false, false},
       {0, 0, true, false},
       {1, 0, true, false},
       1,
       0},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.why);
    test::Adapters world;
    for (const char* name : {"a", "b", "c"}) world.AddAdapter(name);
    (void)world.Initialise();
    std::size_t position = 0;
    for (const auto& [name, adapter] :
         {std::pair("a", row.a), std::pair("b", row.b), std::pair("c", row.c)}) {
      world.store.WriteBool(name, adapter.included);
      world.machine.interface_table.AddTraffic(position++, adapter.in, adapter.out);
    }
    const ScanAmounts scan = world.Sample();
    EXPECT_EQ(scan.ScanSumDL, row.dl);
    EXPECT_EQ(scan.ScanSumUL, row.ul);
    EXPECT_EQ((world.StoredOfAdapter("aInfoTotalDL") != "(missing)"), row.a.persisted);
    EXPECT_EQ((world.StoredOfAdapter("bInfoTotalDL") != "(missing)"), row.b.persisted);
    EXPECT_EQ((world.StoredOfAdapter("cInfoTotalDL") != "(missing)"), row.c.persisted);
  }
}

TEST(Sampler, TheMaximaOfAScanAreSumsOfPeaks) {
  test::Adapters world;
  world.AddAdapter("a");
  world.AddAdapter("b");
  (void)world.Initialise();
  (void)world.Sample(3000, 1);
  world.machine.interface_table.AddTraffic(1, 5000, 1);
  EXPECT_EQ(world.Sample().ScanMaxDL, 8000) << "they never moved together";
}

TEST(Sampler, OnlyTheLoopbackItselfIsLeftOut) {
  struct Row {
    const char* description;
    bool counts;
  };
  static constexpr Row kRows[] = {
      {"MS TCP Loopback interface", false},  {"ms tcp loopback interface", false},
      {"MS TCP LOOPBACK INTERFACE", false},  {"MS TCP Loopback interface ", true},
      {"MS TCP Loopback interface 2", true}, {"lo", true},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.description);
    test::Adapters world;
    world.AddAdapter(row.description);
    EXPECT_EQ(world.Initialise().size(), row.counts ? 1U : 0U);
    EXPECT_EQ(world.Sample(500, 600).ScanSumDL, row.counts ? 500 : 0);
    EXPECT_EQ(world.state.adapter_counters[0].TotalIn, 500U) << "its counters move all the same";
    EXPECT_EQ(world.machine.registry.Values(test::kAdapterDatas).empty(), !row.counts);
    EXPECT_TRUE(world.store.ReadBool(settings::AdapterName(row.description), false))
        << "the first start includes every row";
  }
}

TEST(Sampler, NamesWithBlanksAtTheirEndsKeepTheirTwoForms) {
  test::Adapters world;
  world.AddAdapter(
      " B\xDC"
      "RO-Karte ");  // the code page's capital U umlaut
  world.machine.registry.Set(test::kSettingsKey, "b\xC3\x9Cro-karte", RegistryValue::Dword(0));
  const auto items = world.Initialise();
  ASSERT_EQ(items.size(), 1U);
  EXPECT_EQ(items[0].description, " B\xC3\x9CRO-Karte ");
  EXPECT_FALSE(items[0].included) << "the menu reads the trimmed name";
  EXPECT_EQ(world.Sample(500, 600).ScanSumDL, 500) << "the engine reads the one with blanks";
  EXPECT_EQ(world.StoredOfAdapter(" b\xC3\x9Cro-karte MTU"), "1500");
  EXPECT_EQ(world.StoredOfAdapter("b\xC3\x9Cro-karteInfoTotalDL"), "500");
}

TEST(Sampler, AdapterDataAreWrittenByTheStartAndByEachPersistedScan) {
  test::Adapters world;
  world.AddAdapter("Card A");
  world.AddAdapter("");
  const auto items = world.Initialise();
  EXPECT_EQ(world.StoredOfAdapter("card aMacAddress"), "00-1A-2B-3C-4D-5E");
  EXPECT_EQ(world.StoredOfAdapter("card aSpeed"), "1000000000");
  EXPECT_EQ(world.StoredOfAdapter("card aMTU"), "1500");
  EXPECT_EQ(world.state.mac_addresses[0], "00-1A-2B-3C-4D-5E");
  EXPECT_EQ(world.StoredOfAdapter("MTU"), "1500") << "an adapter without a description has data";
  ASSERT_EQ(items.size(), 1U) << "but no place in the menus";
  EXPECT_EQ(items[0].row, 0);

  world.machine.interface_table.rows[0].dwMtu = 9000;
  (void)world.Sample(5, 0);
  EXPECT_EQ(world.StoredOfAdapter("card aMTU"), "1500");
  (void)world.Sample(5, 5);
  EXPECT_EQ(world.StoredOfAdapter("card aMTU"), "9000");
}

TEST(Sampler, RowCountsAreComparedAlsoAroundAnEmptyTable) {
  test::Adapters world;
  EXPECT_TRUE(world.sampler.RowCountChanged()) << "before the first initialisation";
  (void)world.Initialise();
  EXPECT_FALSE(world.sampler.RowCountChanged()) << "an empty table is as good as any";
  world.AddAdapter("a");
  EXPECT_TRUE(world.sampler.RowCountChanged()) << "one row after none";
  (void)world.Initialise();
  EXPECT_FALSE(world.sampler.RowCountChanged());
  world.AddAdapter("b");
  EXPECT_TRUE(world.sampler.RowCountChanged());
  EXPECT_TRUE(world.sampler.RowCountChanged()) << "until it is initialised again";
  (void)world.Initialise();
  world.machine.interface_table.rows.pop_back();
  EXPECT_TRUE(world.sampler.RowCountChanged());
  (void)world.Initialise();
  world.machine.interface_table.rows.clear();
  EXPECT_FALSE(world.sampler.RowCountChanged()) << "no rows at all: the old table stays";
  EXPECT_EQ(world.Sample().ScanSumDL, 0);
}

TEST(Sampler, ARowThatVanishesWithinAScanCausesNoSpike) {
  test::Adapters world;
  world.AddAdapter("a").dwInOctets = 3000000000;
  world.AddAdapter("b");
  (void)world.Initialise();
  ASSERT_FALSE(world.sampler.RowCountChanged());
  world.machine.interface_table.RemoveRow(0);
  EXPECT_EQ(world.Sample(500, 500).ScanSumDL, 0) << "b stands where a was";
  EXPECT_TRUE(world.sampler.RowCountChanged());
  (void)world.Initialise();
  EXPECT_EQ(world.Sample(500, 600).ScanSumDL, 500);
  EXPECT_EQ(world.state.adapter_counters[0].TotalIn, 500U);
}

TEST(Sampler, AFailureWhileStoringARowLosesThatScanAlone) {
  test::Adapters world;
  world.AddAdapter("a");
  world.AddAdapter("b");
  (void)world.Initialise();
  world.SetAdapter("aInfoTotalDL", "garbage");
  world.machine.interface_table.AddTraffic(1, 4000, 4000);
  EXPECT_THROW((void)world.Sample(500, 600), std::runtime_error);
  world.SetAdapter("aInfoTotalDL", "0");
  world.machine.interface_table.AddTraffic(1, 20, 20);
  EXPECT_EQ(world.Sample(1, 1).ScanSumDL, 21) << "b's bytes of the failed scan do not come late";
}

TEST(Sampler, AFailedReadOfTheTableIsMadeUpForByTheNextScan) {
  test::Adapters world;
  world.AddAdapter("a");
  (void)world.Initialise();
  world.machine.interface_table.FailRead(2, 5);
  EXPECT_EQ(world.Sample(500, 600).ScanSumDL, 0);
  EXPECT_EQ(world.Sample(70, 80).ScanSumDL, 570);
}

TEST(Sampler, OctetsThatFellWithoutAWrapAreANewBase) {
  struct Row {
    const char* why;
    std::uint32_t in, out;  // of the driver that began anew; both stood at 5000
    bool answers;           // whether the system knows the counters in 64 bits
    std::int64_t dl, ul;
  };
  static constexpr std::int64_t kWrap = std::int64_t{1} << 32;
  static constexpr Row kRows[] = {
      {"both fell", 30, 40, true, 0, 0},
      {"one fell: the other is of another driver too", 30, 9000, true, 0, 0},
      {"sent octets alone", 9000, 40, true, 0, 0},
      {"without an answer it is a wrap", 30, 5040, false, kWrap - 4970, 40},
      {"the same", 5000, 5000, true, 0, 0},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.why);
    test::Adapters world;
    platform::InterfaceRow& card = world.AddAdapter("card");
    card.dwInOctets = card.dwOutOctets = 5000;
    (void)world.Initialise();
    card.dwInOctets = row.in;
    card.dwOutOctets = row.out;
    if (!row.answers) world.machine.notebook.FailCall(3);  // behind the two of the table
    const ScanAmounts scan = world.Sample(0, 0);
    EXPECT_EQ(scan.ScanSumDL, row.dl);
    EXPECT_EQ(scan.ScanSumUL, row.ul);
    const int questions = world.machine.interface_table.octet_questions;
    EXPECT_EQ(world.Sample(7, 8).ScanSumDL, 7) << "and counts from there";
    EXPECT_EQ(world.machine.interface_table.octet_questions, questions) << "asked once";
  }
}

TEST(Sampler, AfterSleepTheCountersAreTakenAsTheyStand) {
  test::Adapters world;
  world.AddAdapter("a");
  (void)world.Initialise();
  (void)world.Sample(500, 600);
  world.machine.interface_table.rows[0].dwInOctets = 3;  // the driver started anew
  world.machine.interface_table.rows[0].dwOutOctets = 4;
  world.sampler.TakePresentCounters();
  const ScanAmounts scan = world.Sample(50, 60);
  EXPECT_EQ(scan.ScanSumDL, 50);
  EXPECT_EQ(scan.ScanSumUL, 60);
  EXPECT_EQ(world.state.adapter_counters[0].TotalIn, 550U) << "what was counted stays counted";
}

}  // namespace
