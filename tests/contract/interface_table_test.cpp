#include "platform/interface_table.h"

#include <cstring>

#include "tests/contract/world.h"

namespace contract {
namespace {

using platform::InterfaceRow;
using platform::kInsufficientBuffer;
using platform::kInterfaceTableHead;

class InterfaceTable : public ContractTest {
 protected:
  platform::InterfaceTable& table() { return Platform().interface_table; }

  // The table by the two calls. Interfaces may come in between, so there is room for some more.
  std::vector<InterfaceRow> ReadRows() {
    std::uint32_t size = 0;
    EXPECT_EQ(table().Read({}, size), kInsufficientBuffer);
    std::vector<std::byte> buffer(size + 10 * sizeof(InterfaceRow));
    EXPECT_EQ(table().Read(buffer, size), 0U);
    std::uint32_t count = 0;
    std::memcpy(&count, buffer.data(), sizeof(count));
    std::vector<InterfaceRow> rows(count);
    std::memcpy(rows.data(), buffer.data() + kInterfaceTableHead, count * sizeof(InterfaceRow));
    return rows;
  }
};

TEST_F(InterfaceTable, ATooSmallBufferIsRefusedWithTheSize) {
  std::uint32_t needed = 0;
  ASSERT_EQ(table().Read({}, needed), kInsufficientBuffer);
  EXPECT_GE(needed, kInterfaceTableHead + sizeof(InterfaceRow));
  for (const std::size_t given : {kInterfaceTableHead, sizeof(InterfaceRow)}) {
    SCOPED_TRACE(given);
    std::vector<std::byte> buffer(given);
    std::uint32_t size = 0;
    EXPECT_EQ(table().Read(buffer, size), kInsufficientBuffer);
    EXPECT_EQ(size, needed);
  }
}

TEST_F(InterfaceTable, RowsAreSane) {
  int real = 0;
  for (const InterfaceRow& row : ReadRows()) {
    SCOPED_TRACE(row.dwIndex);
    const std::string description = platform::DescriptionBytes(row);
    EXPECT_LE(row.dwDescrLen - description.size(), 1U) << "only a NUL may be left over";
    real += table().IsFilter(row.dwIndex).value_or(false) ? 0 : 1;

    const auto octets = table().Octets(row.dwIndex);
    ASSERT_TRUE(octets.has_value());
    // The interface may have moved a little since the row was read.
    constexpr std::uint32_t kSome = 100000000;
    EXPECT_LT(static_cast<std::uint32_t>(octets->in) - row.dwInOctets, kSome);
    EXPECT_LT(static_cast<std::uint32_t>(octets->out) - row.dwOutOctets, kSome);
  }
  EXPECT_GT(real, 0) << "something remains when filters are left out";
}

TEST_F(InterfaceTable, OfAnInterfaceThatDoesNotExistNothingIsKnown) {
  EXPECT_NE(table().IsFilter(0x7FFFFFF0), true);
  EXPECT_FALSE(table().Octets(0x7FFFFFF0).has_value());
}

}  // namespace
}  // namespace contract
