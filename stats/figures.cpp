#include "stats/figures.h"

#include "platform/wrapping.h"

namespace stats {

std::optional<std::int64_t> Figures::Total() const {
  if (!total_dl || !total_ul) return std::nullopt;
  return platform::WrappingAdd(*total_dl, *total_ul);
}

std::optional<std::int64_t> ReadFigure(const engine::CounterOwner& owner,
                                       const settings::CounterSetting& counter,
                                       toolkit::RefreshFaults& faults) {
  std::optional<std::int64_t> figure;
  faults.Try([&] { figure = owner.Read(counter); });
  return figure;
}

Figures ReadFigures(const engine::CounterOwner& owner, const engine::CounterGroup& group,
                    toolkit::RefreshFaults& faults) {
  // A braced list is read from left to right.
  return {ReadFigure(owner, group.max_dl, faults), ReadFigure(owner, group.max_ul, faults),
          ReadFigure(owner, group.total_dl, faults), ReadFigure(owner, group.total_ul, faults)};
}

}  // namespace stats
