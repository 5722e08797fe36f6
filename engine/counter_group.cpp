#include "engine/counter_group.h"

#include "platform/wrapping.h"
#include "settings/adapter_values.h"

namespace engine {

using platform::WrappingAdd;
using settings::CounterSetting;
using settings::KeyIndex;

CounterOwner CounterOwner::Machine(settings::Store& store) {
  return {store, KeyIndex::kSettings, "", MaxRule::kGreater};
}

CounterOwner CounterOwner::Adapter(settings::Store& store, std::string_view description) {
  return {store, KeyIndex::kAdapterDatas, settings::TrimmedAdapterName(description),
          MaxRule::kGreaterOrEqual};
}

CounterOwner CounterOwner::AdapterWindow(settings::Store& store, std::string_view caption) {
  return {store, KeyIndex::kAdapterDatas, settings::AdapterName(caption), MaxRule::kGreaterOrEqual};
}

std::int64_t CounterOwner::Read(const CounterSetting& counter) const {
  return store_.ReadCounter(key_, Name(counter));
}

void CounterOwner::Add(const CounterGroup& group, const GroupAmounts& amounts) const {
  Write(group.total_dl, WrappingAdd(Read(group.total_dl), amounts.dl));
  Write(group.total_ul, WrappingAdd(Read(group.total_ul), amounts.ul));
  Raise(group.max_dl, amounts.max_dl);
  Raise(group.max_ul, amounts.max_ul);
}

void CounterOwner::Reset(const CounterSetting& counter) const { Write(counter, 0); }

void CounterOwner::Reset(const CounterGroup& group) const {
  Reset(group.total_dl);
  Reset(group.total_ul);
  Reset(group.resets_max_ul_first ? group.max_ul : group.max_dl);
  Reset(group.resets_max_ul_first ? group.max_dl : group.max_ul);
}

std::string CounterOwner::Name(const CounterSetting& counter) const {
  return prefix_ + std::string(counter.name);
}

void CounterOwner::Write(const CounterSetting& counter, std::int64_t value) const {
  store_.WriteCounter(key_, Name(counter), value);
}

void CounterOwner::Raise(const CounterSetting& max, std::int64_t candidate) const {
  const std::int64_t stored = Read(max);
  const bool replaces = rule_ == MaxRule::kGreater ? candidate > stored : candidate >= stored;
  if (replaces) Write(max, candidate);
}

}  // namespace engine
