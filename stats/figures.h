// The figures of one page of a statistics window.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "engine/counter_group.h"
#include "settings/store.h"

namespace stats {

// Bytes.
struct Figures {
  std::int64_t max_dl = 0;
  std::int64_t max_ul = 0;
  std::int64_t total_dl = 0;
  std::int64_t total_ul = 0;
};

// Where the figures of a window are stored: the machine's under Settings, an adapter's under
// AdapterDatas with its name in front.
class FiguresSource {
 public:
  [[nodiscard]] static FiguresSource Machine(settings::Store& store);
  // By the caption of its window: in lower case, blanks at the ends kept.
  [[nodiscard]] static FiguresSource Adapter(settings::Store& store, std::string_view caption);

  // Throws settings::ConversionError when a stored value is no number.
  [[nodiscard]] Figures Read(const engine::CounterGroup& group) const;
  [[nodiscard]] std::int64_t Read(const settings::CounterSetting& counter) const;
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
