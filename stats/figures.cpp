#include "stats/figures.h"

#include "settings/adapter_values.h"
#include "settings/counter_text.h"

namespace stats {

std::optional<std::int64_t> Figures::Total() const {
  if (!total_dl || !total_ul) return std::nullopt;
  return settings::WrappingAdd(*total_dl, *total_ul);
}

FiguresSource FiguresSource::Machine(settings::Store& store) {
  return {store, settings::KeyIndex::kSettings, ""};
}

// The scan keeps the statistics under the trimmed name, so the window of an adapter whose
// description has blanks at its ends shows zeros; both forms stay as they are.
FiguresSource FiguresSource::Adapter(settings::Store& store, std::string_view caption) {
  return {store, settings::KeyIndex::kAdapterDatas, settings::AdapterName(caption)};
}

Figures FiguresSource::Read(const engine::CounterGroup& group,
                            toolkit::RefreshFaults& faults) const {
  Figures figures;
  figures.max_dl = Read(group.max_dl, faults);
  figures.max_ul = Read(group.max_ul, faults);
  figures.total_dl = Read(group.total_dl, faults);
  figures.total_ul = Read(group.total_ul, faults);
  return figures;
}

std::optional<std::int64_t> FiguresSource::Read(const settings::CounterSetting& counter,
                                                toolkit::RefreshFaults& faults) const {
  std::optional<std::int64_t> figure;
  faults.Try([&] { figure = store_.ReadCounter(key_, Name(counter)); });
  return figure;
}

void FiguresSource::WriteZero(const settings::CounterSetting& counter) const {
  store_.WriteCounter(key_, Name(counter), 0);
}

std::string FiguresSource::Name(const settings::CounterSetting& counter) const {
  return prefix_ + std::string(counter.name);
}

}  // namespace stats
