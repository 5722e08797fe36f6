// The machine's network interfaces, as the system counts them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace platform {

// One row of the table, laid out as the system's MIB_IFROW. The program reads only some of the
// fields; the others keep the layout.
struct InterfaceRow {
  std::array<char16_t, 256> wszName{};
  std::uint32_t dwIndex = 0;
  std::uint32_t dwType = 0;
  std::uint32_t dwMtu = 0;
  std::uint32_t dwSpeed = 0;  // bits per second
  std::uint32_t dwPhysAddrLen = 0;
  std::array<std::uint8_t, 8> bPhysAddr{};
  std::uint32_t dwAdminStatus = 0;
  std::uint32_t dwOperStatus = 0;
  std::uint32_t dwLastChange = 0;
  std::uint32_t dwInOctets = 0;  // bytes received, wraps at 2^32
  std::uint32_t dwInUcastPkts = 0;
  std::uint32_t dwInNUcastPkts = 0;
  std::uint32_t dwInDiscards = 0;
  std::uint32_t dwInErrors = 0;
  std::uint32_t dwInUnknownProtos = 0;
  std::uint32_t dwOutOctets = 0;  // bytes sent, wraps at 2^32
  std::uint32_t dwOutUcastPkts = 0;
  std::uint32_t dwOutNUcastPkts = 0;
  std::uint32_t dwOutDiscards = 0;
  std::uint32_t dwOutErrors = 0;
  std::uint32_t dwOutQLen = 0;
  std::uint32_t dwDescrLen = 0;            // counts the terminating NUL on Windows, not under Wine
  std::array<std::uint8_t, 256> bDescr{};  // in the system's code page
};
static_assert(sizeof(InterfaceRow) == 860);

// The raw table: a 32-bit row count at the head, then the rows.
inline constexpr std::size_t kInterfaceTableHead = sizeof(std::uint32_t);

inline constexpr std::uint32_t kInsufficientBuffer = 122;  // ERROR_INSUFFICIENT_BUFFER

// The octets of an interface since it came up, in counters that do not wrap.
struct LongOctets {
  std::uint64_t in = 0;   // bytes received
  std::uint64_t out = 0;  // bytes sent
};

class InterfaceTable {
 public:
  virtual ~InterfaceTable() = default;

  // Copies the table into `buffer`, unsorted: the row count, then the rows (GetIfTable).
  //   buffer  the caller's, not kept; empty to ask for the size only.
  //   size    out: bytes that the table needs now; set when 0 or 122 is returned.
  // Returns 0; 122 when `buffer` is too small (the table may have grown since it was asked for its
  // size); otherwise the system's code, with `buffer` and `size` untouched.
  [[nodiscard]] virtual std::uint32_t Read(std::span<std::byte> buffer, std::uint32_t& size) = 0;

  // Returns whether the interface with this `dwIndex` is a lightweight filter, which repeats the
  // octets of the adapter that it sits on (GetIfEntry2, FilterInterface). Returns nullopt when the
  // system cannot say.
  [[nodiscard]] virtual std::optional<bool> IsFilter(std::uint32_t index) = 0;

  // Returns the present octets of the interface with this `dwIndex` (GetIfEntry2, InOctets,
  // OutOctets), or nullopt when the system cannot say.
  [[nodiscard]] virtual std::optional<LongOctets> Octets(std::uint32_t index) = 0;
};

// Returns the bytes of the description, in the system's code page, without the terminating NUL. On
// Windows `dwDescrLen` counts that NUL and under Wine it does not, so the text ends at the first
// NUL or where the length says, whichever comes first. It has at most 256 bytes, whatever length
// the row states.
[[nodiscard]] std::string DescriptionBytes(const InterfaceRow& row);

}  // namespace platform
