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
};

TEST_F(InterfaceTable, IsReadByTwoCallsAndHasSaneRows) {
  std::uint32_t needed = 0;
  ASSERT_EQ(table().Read({}, needed), kInsufficientBuffer);
  std::uint32_t size = 0;
  std::vector<std::byte> buffer(kInterfaceTableHead);
  EXPECT_EQ(table().Read(buffer, size), kInsufficientBuffer);
  EXPECT_EQ(size, needed);
  buffer.resize(needed + 10 * sizeof(InterfaceRow));  // interfaces may come in between
  ASSERT_EQ(table().Read(buffer, size), 0U);

  std::uint32_t count = 0;
  std::memcpy(&count, buffer.data(), sizeof(count));
  int real = 0;
  for (std::uint32_t at = 0; at < count; ++at) {
    SCOPED_TRACE(at);
    InterfaceRow row;
    std::memcpy(&row, &buffer[kInterfaceTableHead + at * sizeof(row)], sizeof(row));
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
  EXPECT_NE(table().IsFilter(0x7FFFFFF0), true) << "no such interface";
  EXPECT_FALSE(table().Octets(0x7FFFFFF0).has_value());
}

}  // namespace
}  // namespace contract
