#include "platform/interface_table.h"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "tests/contract/world.h"

namespace contract {
namespace {

using platform::InterfaceRow;
using platform::kInsufficientBuffer;
using platform::kInterfaceTableHead;

class InterfaceTable : public testing::Test {
 protected:
  platform::InterfaceTable& table() { return world_->InterfaceTable(); }

  // The table by the two calls. Interfaces may come in between, so it is tried again.
  std::vector<InterfaceRow> ReadRows() {
    std::uint32_t size = 0;
    std::vector<std::byte> buffer;
    std::uint32_t result = table().Read(buffer, size);
    for (int attempt = 0; attempt < 10 && result == kInsufficientBuffer; ++attempt) {
      buffer.assign(size, std::byte{0});
      result = table().Read(buffer, size);
    }
    EXPECT_EQ(result, 0U);
    std::uint32_t count = 0;
    std::memcpy(&count, buffer.data(), sizeof(count));
    EXPECT_LE(kInterfaceTableHead + count * sizeof(InterfaceRow), buffer.size());
    std::vector<InterfaceRow> rows(count);
    if (count > 0) {
      std::memcpy(rows.data(), buffer.data() + kInterfaceTableHead, count * sizeof(InterfaceRow));
    }
    return rows;
  }

  std::unique_ptr<World> world_ = MakeWorld();
};

TEST_F(InterfaceTable, WithoutABufferItTellsItsSize) {
  std::uint32_t size = 0;
  EXPECT_EQ(table().Read({}, size), kInsufficientBuffer);
  EXPECT_GE(size, kInterfaceTableHead + sizeof(InterfaceRow));
}

TEST_F(InterfaceTable, ATooSmallBufferIsRefusedWithTheSize) {
  std::uint32_t needed = 0;
  ASSERT_EQ(table().Read({}, needed), kInsufficientBuffer);
  for (const std::size_t given : {kInterfaceTableHead, sizeof(InterfaceRow)}) {
    SCOPED_TRACE(given);
    std::vector<std::byte> buffer(given);
    std::uint32_t size = 0;
    EXPECT_EQ(table().Read(buffer, size), kInsufficientBuffer);
    EXPECT_EQ(size, needed);
  }
}

TEST_F(InterfaceTable, ALargerBufferThanNeededIsTaken) {
  std::uint32_t size = 0;
  ASSERT_EQ(table().Read({}, size), kInsufficientBuffer);
  std::vector<std::byte> buffer(size + 10 * sizeof(InterfaceRow));
  EXPECT_EQ(table().Read(buffer, size), 0U);
}

TEST_F(InterfaceTable, RowsAreSane) {
  const std::vector<InterfaceRow> rows = ReadRows();
  ASSERT_FALSE(rows.empty());
  for (const InterfaceRow& row : rows) {
    SCOPED_TRACE(row.dwIndex);
    EXPECT_LE(row.dwPhysAddrLen, row.bPhysAddr.size());
    EXPECT_LE(row.dwDescrLen, row.bDescr.size());
    EXPECT_GT(row.dwMtu, 0U);
    const std::string description = platform::DescriptionBytes(row);
    EXPECT_FALSE(description.empty());
    EXPECT_LE(row.dwDescrLen - description.size(), 1U) << "only a NUL may be left over";
  }
}

TEST_F(InterfaceTable, AnInterfaceThatDoesNotExistIsNoFilter) {
  EXPECT_NE(table().IsFilter(0x7FFFFFF0), true);
}

TEST_F(InterfaceTable, OctetsInFullAreThoseOfTheRow) {
  for (const InterfaceRow& row : ReadRows()) {
    SCOPED_TRACE(row.dwIndex);
    const auto octets = table().Octets(row.dwIndex);
    ASSERT_TRUE(octets.has_value());
    // The interface may have moved a little since the row was read.
    constexpr std::uint32_t kSome = 100000000;
    EXPECT_LT(static_cast<std::uint32_t>(octets->in) - row.dwInOctets, kSome);
    EXPECT_LT(static_cast<std::uint32_t>(octets->out) - row.dwOutOctets, kSome);
  }
  EXPECT_FALSE(table().Octets(0x7FFFFFF0).has_value());
}

TEST_F(InterfaceTable, SomethingRemainsWhenFiltersAreLeftOut) {
  int real = 0;
  for (const InterfaceRow& row : ReadRows())
    real += table().IsFilter(row.dwIndex).value_or(false) ? 0 : 1;
  EXPECT_GT(real, 0);
}

}  // namespace
}  // namespace contract
