#include "engine/statistics.h"

#include "engine/week_number.h"
#include "settings/adapter_values.h"

namespace engine {
namespace {

namespace setting = settings::setting;

struct PeriodGroup {
  Period period;
  const CounterGroup& group;
};

// In the order in which they are brought up to date.
constexpr PeriodGroup kPeriodGroups[] = {
    {Period::kDay, kDayGroup},
    {Period::kWeek, kWeekGroup},
    {Period::kMonth, kMonthGroup},
};

}  // namespace

void Statistics::InitStatistics(std::span<const std::string> descriptions, platform::DateTime now) {
  const std::int64_t starts = store_.Read(setting::ExecuteTime);
  store_.Write(setting::ExecuteTime, starts + 1);
  if (starts != 0) return;
  store_.Write(setting::CurrentDay, platform::DateOf(now));
  // With the time of day: after noon on a Sunday this is the week that begins the next day.
  store_.Write(setting::CurrentWeek, WeekOfYear(now));
  store_.Write(setting::CurrentMonth, platform::DecodeDate(now).month);
  for (const std::string& description : descriptions) {
    store_.WriteBool(settings::AdapterName(description), true);
  }
}

void Statistics::UpdateAdapterStatistics(std::string_view description,
                                         const AdapterCounters& counters,
                                         platform::DateTime today) {
  const GroupOwner adapter = GroupOwner::Adapter(store_, description);
  const GroupAmounts amounts{counters.DeltaIn, counters.DeltaOut, counters.MaxIn, counters.MaxOut};
  adapter.Add(kInfoGroup, amounts);

  const Periods periods(store_, today);
  for (const auto& [period, group] : kPeriodGroups) {
    const MarkerAge age = periods.Age(period);
    if (age == MarkerAge::kFar) adapter.Reset(group);
    // The marker is still the old one, so the start day is asked about after that reset too: from
    // the start day on, this scan is not added.
    if (age != MarkerAge::kSame && periods.HasStarted(period)) {
      adapter.Reset(group);
    } else {
      adapter.Add(group, amounts);
    }
  }
}

void Statistics::UpdateMachineMaxima(const ScanAmounts& scan) {
  // Overwritten each scan, downwards too: they show the sum of what the adapters' counters hold.
  store_.Write(setting::InfoMaxDL, scan.ScanMaxDL);
  store_.Write(setting::InfoMaxUL, scan.ScanMaxUL);
}

void Statistics::UpdateMachinePeriods(const ScanAmounts& scan, platform::DateTime today) {
  const GroupOwner machine = GroupOwner::Machine(store_);
  const GroupAmounts amounts{scan.ScanSumDL, scan.ScanSumUL, scan.ScanMaxDL, scan.ScanMaxUL};
  const Periods periods(store_, today);
  for (const auto& [period, group] : kPeriodGroups) {
    const MarkerAge age = periods.Age(period);
    // The marker is today's after that, so the scan is added to the new period.
    if (age == MarkerAge::kFar) RollOver(periods, period, group);
    if (age == MarkerAge::kNext && periods.HasStarted(period)) {
      RollOver(periods, period, group);
    } else {
      machine.Add(group, amounts);
    }
  }
}

void Statistics::RollOver(const Periods& periods, Period period, const CounterGroup& group) {
  periods.WriteMarker(period);
  GroupOwner::Machine(store_).Reset(group);
  store_.Write(setting::BAShow, false);  // the bandwidth alert may be given again
}

}  // namespace engine
