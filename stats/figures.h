// The figures of one page of a statistics window.
#pragma once

#include <cstdint>
#include <optional>

#include "engine/counter_group.h"
#include "settings/schema.h"
#include "toolkit/refresh_faults.h"

namespace stats {

// Bytes; nothing where what is stored is no number.
struct Figures {
  std::optional<std::int64_t> max_dl;
  std::optional<std::int64_t> max_ul;
  std::optional<std::int64_t> total_dl;
  std::optional<std::int64_t> total_ul;

  // Both directions together; nothing unless both are known.
  [[nodiscard]] std::optional<std::int64_t> Total() const;
};

// A figure that cannot be read is nothing, and a fault.
[[nodiscard]] std::optional<std::int64_t> ReadFigure(const engine::CounterOwner& owner,
                                                     const settings::CounterSetting& counter,
                                                     toolkit::RefreshFaults& faults);
[[nodiscard]] Figures ReadFigures(const engine::CounterOwner& owner,
                                  const engine::CounterGroup& group,
                                  toolkit::RefreshFaults& faults);

}  // namespace stats
