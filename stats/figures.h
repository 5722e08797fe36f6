// The figures of one page of a statistics window.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "engine/counter_group.h"
#include "settings/store.h"
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

// Where the figures of a window are stored: the machine's under Settings, an adapter's under
// AdapterDatas with its name in front.
class FiguresSource {
 public:
  [[nodiscard]] static FiguresSource Machine(settings::Store& store);
  // By the caption of its window: in lower case, blanks at the ends kept.
  [[nodiscard]] static FiguresSource Adapter(settings::Store& store, std::string_view caption);

  // A figure that cannot be read is nothing, and a fault.
  [[nodiscard]] Figures Read(const engine::CounterGroup& group,
                             toolkit::RefreshFaults& faults) const;
  [[nodiscard]] std::optional<std::int64_t> Read(const settings::CounterSetting& counter,
                                                 toolkit::RefreshFaults& faults) const;
  // Throws what the store throws.
  void WriteZero(const settings::CounterSetting& counter) const;

 private:
  FiguresSource(settings::Store& store, settings::KeyIndex key, std::string prefix)
      : store_(store), key_(key), prefix_(std::move(prefix)) {}

  [[nodiscard]] std::string Name(const settings::CounterSetting& counter) const;

  settings::Store& store_;
  settings::KeyIndex key_;
  std::string prefix_;
};

}  // namespace stats
