#include "preferences/grouped_reset.h"

namespace preferences {
namespace {

void WriteDefault(settings::Store& store, const settings::SchemaRow& row) {
  if (row.reset.kind == settings::Default::Kind::kNone) return;
  switch (row.type) {
    case settings::ValueType::kInteger:
      store.WriteInteger(row.name, row.reset.number);
      break;
    case settings::ValueType::kBoolean:
      store.WriteBool(row.name, row.reset.number != 0);
      break;
    case settings::ValueType::kColour:
      store.WriteColor(row.name, static_cast<platform::Colour>(row.reset.number));
      break;
    case settings::ValueType::kText:
      store.WriteString(settings::KeyIndex::kSettings, row.name, store.Resolve(row.reset));
      break;
    case settings::ValueType::kCounter:
    case settings::ValueType::kDate:  // only the periods have dates
      break;
  }
}

}  // namespace

std::optional<engine::Period> PeriodOf(settings::ResetGroup group) {
  switch (group) {
    case settings::ResetGroup::kDaily:
      return engine::Period::kDay;
    case settings::ResetGroup::kWeekly:
      return engine::Period::kWeek;
    case settings::ResetGroup::kMonthly:
      return engine::Period::kMonth;
    default:
      return std::nullopt;
  }
}

// The groups are declared in the order of the reset.
void ResetGroups(settings::Store& store, const std::set<settings::ResetGroup>& groups,
                 platform::DateTime now) {
  const engine::Periods periods(store, platform::DateOf(now));
  for (const settings::ResetGroup group : groups) {
    if (const std::optional<engine::Period> period = PeriodOf(group)) {
      periods.RollOver(*period);
      continue;
    }
    for (const settings::SchemaRow& row : settings::Schema()) {
      if (row.group == group) WriteDefault(store, row);
    }
  }
}

}  // namespace preferences
