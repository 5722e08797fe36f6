// What the figures become over days is compared with a model in tools/endure; here stand the rules
// that it does not know and those that it meets seldom.
#include "engine/interface_sampler.h"

#include <gtest/gtest.h>

#include <tuple>

#include "settings/adapter_values.h"
#include "tests/world.h"

namespace {

using engine::ScanAmounts;

class Sampler : public testing::Test, protected test::Adapters {};

TEST_F(Sampler, TheCapCutsAmountsAndMaximaButNotTheTotals) {
  AddAdapter("card");
  (void)Initialise();
  using Row = std::tuple<const char*, std::int64_t, std::uint32_t, std::int64_t, std::int64_t,
                         std::uint32_t>;
  for (const auto& [why, cap, bytes, moved, max, total] : {
           Row{"none", 0, 5000, 5000, 5000, 5000},
           Row{"none below zero", -1, 10, 10, 5000, 5010},
           Row{"one above the bytes", 6000, 100, 100, 5000, 5110},
           Row{"cuts what moves and what was", 1800, 2000, 1800, 1800, 7110},
           Row{"idle, with a maximum that stays", 0, 0, 0, 1800, 7110},
           Row{"beyond 32 bits", 5000000000, 4294967295, 4294967295, 4294967295, 7109},
       }) {
    SCOPED_TRACE(why);
    state.SpeedCap = cap;
    const ScanAmounts scan = Sample(bytes, bytes);
    EXPECT_TRUE(scan.ScanSumDL == moved && scan.ScanSumUL == moved) << scan.ScanSumDL;
    EXPECT_TRUE(scan.ScanMaxDL == max && scan.ScanMaxUL == max) << scan.ScanMaxDL;
    EXPECT_EQ(state.adapter_counters[0].TotalIn, total);
    EXPECT_EQ(state.adapter_counters[0].TotalOut, total);
  }
  EXPECT_EQ(machine.interface_table.octet_questions, 1) << "only where they fell";
  EXPECT_EQ(state.adapter_counters[0].ActiveInScans, 5U);
  EXPECT_EQ(state.adapter_counters[0].ActiveOutScans, 5U);
}

TEST_F(Sampler, OnlyTheLoopbackItselfIsLeftOut) {
  for (const char* name : {"MS TCP Loopback interface", "ms tcp loopback INTERFACE",
                           "MS TCP Loopback interface ", "MS TCP Loopback interface 2", "lo"}) {
    SCOPED_TRACE(name);
    const bool counts = std::string_view(name).size() != 25;
    test::Adapters world;
    world.AddAdapter(name);
    EXPECT_EQ(world.Initialise().size(), counts ? 1U : 0U);
    EXPECT_EQ(world.Sample(500, 600).ScanSumDL, counts ? 500 : 0);
    EXPECT_EQ(world.state.adapter_counters[0].TotalIn, 500U) << "its counters move all the same";
    EXPECT_EQ(world.machine.registry.Values(test::kAdapterDatas).empty(), !counts);
    EXPECT_EQ(world.Stored(settings::AdapterName(name)), 1U) << "the first start includes all";
  }
}

TEST_F(Sampler, NamesWithBlanksAtTheirEndsKeepTheirTwoForms) {
  AddAdapter(" B\xDCRO-Karte ");  // the code page's capital U umlaut
  AddAdapter("");
  Set("b\u00DCro-karte", 0);
  const auto items = Initialise();
  ASSERT_EQ(items.size(), 1U) << "an adapter without a description has no place in the menus";
  EXPECT_EQ(items[0].row, 0);
  EXPECT_EQ(items[0].description, " B\u00DCRO-Karte ");
  EXPECT_FALSE(items[0].included) << "the menu reads the trimmed name";
  EXPECT_EQ(StoredOfAdapter("MTU"), "1500") << "but its data";
  EXPECT_EQ(StoredOfAdapter(" b\u00DCro-karte MacAddress"), "00-1A-2B-3C-4D-5E");
  EXPECT_EQ(StoredOfAdapter(" b\u00DCro-karte Speed"), "1000000000");
  EXPECT_EQ(state.mac_addresses[0], "00-1A-2B-3C-4D-5E");

  machine.interface_table.rows[0].dwMtu = 9000;
  (void)Sample(5, 0);
  EXPECT_EQ(StoredOfAdapter(" b\u00DCro-karte MTU"), "1500") << "written with each persisted scan";
  EXPECT_EQ(Sample(500, 600).ScanSumDL, 500) << "the engine reads the flag with blanks";
  EXPECT_EQ(StoredOfAdapter(" b\u00DCro-karte MTU"), "9000");
  EXPECT_EQ(StoredOfAdapter("b\u00DCro-karteInfoTotalDL"), "500");
}

TEST_F(Sampler, RowCountsAreComparedAlsoAroundAnEmptyTable) {
  EXPECT_TRUE(sampler.RowCountChanged()) << "before the first initialisation";
  (void)Initialise();
  EXPECT_FALSE(sampler.RowCountChanged()) << "an empty table is as good as any";
  AddAdapter("a");
  EXPECT_TRUE(sampler.RowCountChanged());
  EXPECT_TRUE(sampler.RowCountChanged()) << "until it is initialised again";
  (void)Initialise();
  machine.notebook.FailCall(4);  // behind the table's two and the opening of the key
  EXPECT_THROW((void)Initialise(), std::runtime_error);
  EXPECT_TRUE(sampler.RowCountChanged()) << "one that fails half-way is none";
  (void)Initialise();
  machine.interface_table.rows.clear();
  EXPECT_FALSE(sampler.RowCountChanged()) << "no rows at all: the old table stays";
  EXPECT_EQ(Sample().ScanSumDL, 0);
}

TEST_F(Sampler, RowsThatVanishAndCountersAfterSleepCauseNoSpike) {
  AddAdapter("a").dwInOctets = 3000000000;
  AddAdapter("b");
  (void)Initialise();
  ASSERT_FALSE(sampler.RowCountChanged());
  machine.interface_table.RemoveRow(0);
  EXPECT_EQ(Sample(500, 500).ScanSumDL, 0) << "b stands where a was";
  EXPECT_TRUE(sampler.RowCountChanged());
  sampler.TakePresentCounters();
  (void)Initialise();
  EXPECT_EQ(Sample(500, 600).ScanSumDL, 500);
  machine.interface_table.rows[0].dwInOctets = 3;  // the driver started anew
  machine.interface_table.AddTraffic(0, 0, 700);
  sampler.TakePresentCounters();
  const ScanAmounts scan = Sample(50, 60);
  EXPECT_EQ(scan.ScanSumDL, 50);
  EXPECT_EQ(scan.ScanSumUL, 60);
}

}  // namespace
