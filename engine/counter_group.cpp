#include "engine/counter_group.h"

#include "settings/adapter_values.h"
#include "settings/counter_text.h"

namespace engine {

using settings::CounterSetting;
using settings::KeyIndex;

GroupOwner GroupOwner::Machine(settings::Store& store) {
  return {store, KeyIndex::kSettings, "", MaxRule::kGreater};
}

GroupOwner GroupOwner::Adapter(settings::Store& store, std::string_view description) {
  return {store, KeyIndex::kAdapterDatas, settings::TrimmedAdapterName(description),
          MaxRule::kGreaterOrEqual};
}

void GroupOwner::Add(const CounterGroup& group, const GroupAmounts& amounts) const {
  AddTo(group.total_dl, amounts.dl);
  AddTo(group.total_ul, amounts.ul);
  Raise(group.max_dl, amounts.max_dl);
  Raise(group.max_ul, amounts.max_ul);
}

void GroupOwner::Reset(const CounterGroup& group) const {
  for (const settings::SchemaRow& row : settings::Schema()) {
    for (const CounterSetting counter :
         {group.total_dl, group.total_ul, group.max_dl, group.max_ul}) {
      if (row.name == counter.name) store_.WriteCounter(key_, Name(counter), 0);
    }
  }
}

std::string GroupOwner::Name(CounterSetting counter) const {
  return prefix_ + std::string(counter.name);
}

void GroupOwner::AddTo(CounterSetting total, std::int64_t bytes) const {
  const std::string name = Name(total);
  store_.WriteCounter(key_, name, settings::WrappingAdd(store_.ReadCounter(key_, name), bytes));
}

void GroupOwner::Raise(CounterSetting max, std::int64_t candidate) const {
  const std::string name = Name(max);
  const std::int64_t stored = store_.ReadCounter(key_, name);
  const bool replaces = rule_ == MaxRule::kGreater ? candidate > stored : candidate >= stored;
  if (replaces) store_.WriteCounter(key_, name, candidate);
}

}  // namespace engine
