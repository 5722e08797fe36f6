#include "engine/interface_reader.h"

#include <gtest/gtest.h>

#include "engine/adapter.h"
#include "platform/memory/machine.h"

namespace {

using platform::InterfaceRow;
using platform::memory::MakeRow;

class InterfaceReader : public testing::Test {
 protected:
  // Descriptions of the table, one after the other.
  std::string Read() {
    reader.ReadInterfaceTable(table);
    std::string names;
    for (const InterfaceRow& row : table) {
      names += engine::AdapterDescription(row, machine.locale) + ' ';
    }
    return names;
  }

  platform::memory::Machine machine;
  platform::memory::InterfaceTable& source = machine.interface_table;
  engine::InterfaceReader reader{source};
  std::vector<InterfaceRow> table;
};

TEST_F(InterfaceReader, WhateverFailsLeavesTheTableAsItWas) {
  source.AddRow(MakeRow("a"));
  source.AddRow(MakeRow("b"));
  ASSERT_EQ(Read(), "a b ");
  struct Row {
    const char* why;
    std::function<void()> happens;
  };
  const Row rows[] = {
      {"the size cannot be asked for", [&] { source.FailRead(1, 5); }},
      {"the size call claims success", [&] { source.FailRead(1, 0); }},
      {"the rows cannot be read", [&] { source.FailRead(2, 232); }},
      {"the table grows in between",
       [&] { source.AfterNextSizeRead([&] { source.AddRow(MakeRow("c")); }); }},
      {"the table becomes empty in between",
       [&] { source.AfterNextSizeRead([&] { source.rows.clear(); }); }},
      {"the table is empty", [&] { source.rows.clear(); }},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.why);
    source.rows = {MakeRow("x")};
    row.happens();
    EXPECT_EQ(Read(), "a b ");
  }
  source.rows = {MakeRow("x"), MakeRow("y"), MakeRow("z")};
  EXPECT_EQ(Read(), "x y z ") << "the next read is right again";
  source.AfterNextSizeRead([&] { source.RemoveRow(0); });
  EXPECT_EQ(Read(), "y z ") << "a table that shrank in between is read as it is";
}

TEST_F(InterfaceReader, FiltersAreLeftOutAndAskedAboutOnce) {
  source.AddRow(MakeRow("card"));
  const InterfaceRow filter = source.AddRow(MakeRow("card"));  // named as the card it sits on
  source.AddRow(MakeRow("vpn"));
  source.MarkFilter(filter.dwIndex);
  EXPECT_EQ(Read(), "card vpn ");
  EXPECT_EQ(source.filter_questions, 3);
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
  source.MarkFilter(source.AddRow(MakeRow("filter")).dwIndex);
  machine.notebook.FailCall(4);  // two calls for the table, one for the card
  EXPECT_EQ(Read(), "card ");
  reader.ReadInterfaceTable(table, engine::NewRows::kLeaveOut);
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

TEST_F(InterfaceReader, ATableOfNothingButFiltersCountsAsEmpty) {
  source.MarkFilter(source.AddRow(MakeRow("filter")).dwIndex);
  EXPECT_EQ(Read(), "");
  EXPECT_EQ(table.size(), 0U);
}

TEST(MacAddress, IsPairsOfHexadecimalDigits) {
  struct Row {
    std::vector<std::uint8_t> bytes;
    const char* text;
  };
  const Row rows[] = {
      {{}, "00-00-00-00-00-00"},
      {{0x0A}, "0A"},
      {{0x00, 0x1A, 0x2B, 0x3C, 0x4D, 0x5E}, "00-1A-2B-3C-4D-5E"},
      {{0xFF, 0xFE, 0xFD, 0xFC, 0xFB, 0xFA, 0xF9, 0xF8}, "FF-FE-FD-FC-FB-FA-F9-F8"},
  };
  for (const Row& row : rows) EXPECT_EQ(engine::FormatMacAddress(row.bytes), row.text);
  InterfaceRow row = MakeRow("card");
  row.dwPhysAddrLen = 4000000000;
  EXPECT_EQ(engine::FormatMacAddress(row), "00-1A-2B-3C-4D-5E-00-00") << "never past the field";
}

}  // namespace
