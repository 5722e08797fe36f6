#include "stats/figures.h"

#include "settings/adapter_values.h"

namespace stats {

FiguresSource FiguresSource::Machine(settings::Store& store) {
  return {store, settings::KeyIndex::kSettings, ""};
}

FiguresSource FiguresSource::Adapter(settings::Store& store, std::string_view caption) {
  return {store, settings::KeyIndex::kAdapterDatas, settings::AdapterName(caption)};
}

Figures FiguresSource::Read(const engine::CounterGroup& group) const {
  return {Read(group.max_dl), Read(group.max_ul), Read(group.total_dl), Read(group.total_ul)};
}

std::int64_t FiguresSource::Read(const settings::CounterSetting& counter) const {
  return store_.ReadCounter(key_, Name(counter));
}

void FiguresSource::WriteZero(const settings::CounterSetting& counter) const {
  store_.WriteCounter(key_, Name(counter), 0);
}

std::string FiguresSource::Name(const settings::CounterSetting& counter) const {
  return prefix_ + std::string(counter.name);
}

}  // namespace stats
