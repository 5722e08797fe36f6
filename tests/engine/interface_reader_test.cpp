#include "engine/interface_reader.h"

#include <gtest/gtest.h>

#include <cstring>
#include <utility>

#include "engine/adapter.h"
#include "tests/world.h"

namespace {

using platform::InterfaceRow;
using platform::memory::MakeRow;

class InterfaceReader : public testing::Test, protected test::Computer {
 protected:
  // Descriptions of the table, one after the other.
  std::string Read(engine::NewRows new_rows = engine::NewRows::kAskAbout) {
    reader.ReadInterfaceTable(table, new_rows);
    std::string names;
    for (const InterfaceRow& row : table) {
      names += engine::AdapterDescription(row, machine.locale) + ' ';
    }
    return names;
  }

  platform::memory::InterfaceTable& source = machine.interface_table;
  engine::InterfaceReader reader{source};
  std::vector<InterfaceRow> table;
};

TEST_F(InterfaceReader, WhateverFailsLeavesTheTableAsItWas) {
  source.AddRow(MakeRow("a"));
  source.AddRow(MakeRow("b"));
  ASSERT_EQ(Read(), "a b ");
  using Row = std::pair<const char*, std::function<void()>>;
  const Row rows[] = {
      {"the size cannot be asked for", [&] { source.FailRead(1, 5); }},
      {"the size call claims success", [&] { source.FailRead(1, 0); }},
      {"the rows cannot be read", [&] { source.FailRead(2, 232); }},
      {"the table grows in between",
       [&] { source.after_size_read = [&] { source.AddRow(MakeRow("c")); }; }},
      {"the table becomes empty in between",
       [&] { source.after_size_read = [&] { source.rows.clear(); }; }},
      {"the table is empty", [&] { source.rows.clear(); }},
      {"there are only filters", [&] { source.filters.insert(source.rows[0].dwIndex = 99); }},
  };
  for (const auto& [why, happens] : rows) {
    source.rows = {MakeRow("x")};
    happens();
    EXPECT_EQ(Read(), "a b ") << why;
  }
  source.rows = {MakeRow("x"), MakeRow("y"), MakeRow("z")};
  source.after_size_read = [&] { source.RemoveRow(0); };
  EXPECT_EQ(Read(), "y z ") << "a table that shrank in between is read as it is";
}

// A system that claims a row more than it has room for.
class BoastingTable : public platform::memory::InterfaceTable {
 public:
  using InterfaceTable::InterfaceTable;
  std::uint32_t Read(std::span<std::byte> buffer, std::uint32_t& size) override {
    size = 2 * sizeof(InterfaceRow);
    if (buffer.empty()) return platform::kInsufficientBuffer;
    const std::uint32_t count = 2;
    std::memcpy(buffer.data(), &count, sizeof count);
    return 0;
  }
  std::optional<bool> IsFilter(std::uint32_t) override { return false; }
};

TEST_F(InterfaceReader, NoRowIsReadFromBeyondTheBuffer) {
  BoastingTable boasting(machine.notebook);
  engine::InterfaceReader(boasting).ReadInterfaceTable(table);
  EXPECT_EQ(table.size(), 1U) << "the head takes the room of the second";
}

TEST_F(InterfaceReader, FiltersAreLeftOutAndAskedAboutOnce) {
  source.AddRow(MakeRow("card"));
  const InterfaceRow filter = source.AddRow(MakeRow("card"));  // named as the card it sits on
  source.AddRow(MakeRow("vpn"));
  source.filters.insert(filter.dwIndex);
  EXPECT_EQ(Read(), "card vpn ");
  EXPECT_EQ(Read(), "card vpn ");
  EXPECT_EQ(source.filter_questions, 3) << "a steady table costs no question";
  source.RemoveRow(0);
  EXPECT_EQ(Read(), "vpn ");
  EXPECT_EQ(source.filter_questions, 3) << "nor do rows that only moved";

  InterfaceRow reused = MakeRow("new card");
  reused.dwIndex = source.rows[1].dwIndex;
  source.rows[1] = source.rows[0];
  source.rows[0] = reused;
  EXPECT_EQ(Read(), "new card ");
  EXPECT_EQ(source.filter_questions, 4) << "an index in other hands is asked about again";
}

TEST_F(InterfaceReader, ARowThatTheSystemDoesNotKnowYetWaits) {
  source.AddRow(MakeRow("card"));
  source.filters.insert(source.AddRow(MakeRow("filter")).dwIndex);
  machine.notebook.FailCall(4);  // two calls for the table, one for the card
  EXPECT_EQ(Read(), "card ");
  EXPECT_EQ(Read(engine::NewRows::kLeaveOut), "card ");
  EXPECT_EQ(source.filter_questions, 2) << "not asked";
  EXPECT_EQ(Read(), "card ");
  EXPECT_EQ(source.filter_questions, 3) << "and now it is a filter";

  source.AddRow(MakeRow("vpn"));
  for (const char* names : {"card ", "card ", "card vpn ", "card vpn "}) {
    machine.notebook.FailCall(3);
    EXPECT_EQ(Read(), names);
  }
  EXPECT_EQ(source.filter_questions, 6) << "three refusals are enough";
}

TEST(MacAddress, IsPairsOfHexadecimalDigits) {
  EXPECT_EQ(engine::FormatMacAddress(std::vector<std::uint8_t>()), "00-00-00-00-00-00");
  EXPECT_EQ(engine::FormatMacAddress(std::vector<std::uint8_t>{0x0A, 0xFE}), "0A-FE");
  InterfaceRow row = MakeRow("card");
  row.dwPhysAddrLen = 4000000000;
  EXPECT_EQ(engine::FormatMacAddress(row), "00-1A-2B-3C-4D-5E-00-00") << "never past the field";
}

}  // namespace
