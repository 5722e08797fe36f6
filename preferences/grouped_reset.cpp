#include "preferences/grouped_reset.h"

#include "engine/week_number.h"

namespace preferences {
namespace {

// What marks the present period: a date, the number of a week or of a month.
void WriteMarker(settings::Store& store, const settings::SchemaRow& row, platform::DateTime now) {
  if (row.type == settings::ValueType::kDate) {
    store.WriteDate(row.name, platform::DateOf(now) + static_cast<double>(row.reset.number));
  } else if (row.group == settings::ResetGroup::kWeekly) {
    store.WriteInteger(row.name, engine::WeekOfYear(platform::DateOf(now)));
  } else {
    store.WriteInteger(row.name, platform::DecodeDate(now).month);
  }
}

void WriteDefault(settings::Store& store, const settings::SchemaRow& row, platform::DateTime now) {
  if (row.reset.kind == settings::Default::Kind::kNone) return;
  if (row.reset.kind == settings::Default::Kind::kOfToday) {
    WriteMarker(store, row, now);
    return;
  }
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
      store.WriteCounter(settings::KeyIndex::kSettings, row.name, 0);
      break;
    case settings::ValueType::kDate:  // those of today alone
      break;
  }
}

}  // namespace

bool IsPeriod(settings::ResetGroup group) {
  return group == settings::ResetGroup::kDaily || group == settings::ResetGroup::kWeekly ||
         group == settings::ResetGroup::kMonthly;
}

// The groups are declared in the order of the reset.
void ResetGroups(settings::Store& store, const std::set<settings::ResetGroup>& groups,
                 platform::DateTime now) {
  for (const settings::ResetGroup group : groups) {
    for (const settings::SchemaRow& row : settings::Schema()) {
      if (row.group == group) WriteDefault(store, row, now);
    }
    if (IsPeriod(group)) store.Write(settings::setting::BAShow, false);
  }
}

}  // namespace preferences
