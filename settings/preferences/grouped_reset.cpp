#include "settings/preferences/grouped_reset.h"

#include "engine/week_number.h"

namespace settings::preferences {
namespace {

// What marks the present period: a date, the number of a week or of a month.
void WriteMarker(Store& store, const SchemaRow& row, platform::DateTime now) {
  if (row.type == ValueType::kDate) {
    store.WriteDate(row.name, platform::DateOf(now) + static_cast<double>(row.reset.number));
  } else if (row.group == ResetGroup::kWeekly) {
    store.WriteInteger(row.name, engine::WeekOfYear(platform::DateOf(now)));
  } else {
    store.WriteInteger(row.name, platform::DecodeDate(now).month);
  }
}

void WriteDefault(Store& store, const SchemaRow& row, platform::DateTime now) {
  if (row.reset.kind == Default::Kind::kNone) return;
  if (row.reset.kind == Default::Kind::kOfToday) {
    WriteMarker(store, row, now);
    return;
  }
  switch (row.type) {
    case ValueType::kInteger:
      store.WriteInteger(row.name, row.reset.number);
      break;
    case ValueType::kBoolean:
      store.WriteBool(row.name, row.reset.number != 0);
      break;
    case ValueType::kColour:
      store.WriteColor(row.name, static_cast<platform::Colour>(row.reset.number));
      break;
    case ValueType::kText:
      store.WriteString(KeyIndex::kSettings, row.name, store.Resolve(row.reset));
      break;
    case ValueType::kCounter:
      store.WriteCounter(KeyIndex::kSettings, row.name, 0);
      break;
    case ValueType::kDate:  // those of today alone
      break;
  }
}

}  // namespace

bool IsPeriod(ResetGroup group) {
  return group == ResetGroup::kDaily || group == ResetGroup::kWeekly ||
         group == ResetGroup::kMonthly;
}

// The groups are declared in the order of the reset.
void ResetGroups(Store& store, const std::set<ResetGroup>& groups, platform::DateTime now) {
  for (const ResetGroup group : groups) {
    for (const SchemaRow& row : Schema()) {
      if (row.group == group) WriteDefault(store, row, now);
    }
    if (IsPeriod(group)) store.Write(setting::BAShow, false);
  }
}

}  // namespace settings::preferences
