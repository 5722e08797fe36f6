#include "engine/statistics.h"

#include "engine/adapter.h"
#include "engine/counter_group.h"
#include "engine/periods.h"
#include "settings/adapter_values.h"

namespace engine {

namespace setting = settings::setting;

void Statistics::InitStatistics(std::span<const std::string> descriptions, platform::DateTime now) {
  const std::int64_t starts = store_.Read(setting::ExecuteTime);
  store_.Write(setting::ExecuteTime, starts + 1);
  if (starts != 0) return;
  store_.Write(setting::CurrentDay, platform::DateOf(now));
  // `now` includes the time of day: after noon on a Sunday this is the week that begins the next
  // day.
  store_.Write(setting::CurrentWeek, WeekOfYear(now));
  store_.Write(setting::CurrentMonth, platform::DecodeDate(now).month);
  for (const std::string& description : descriptions) {
    store_.WriteBool(settings::AdapterName(description), true);
  }
}

bool Statistics::RecordAdapter(std::string_view description, const platform::InterfaceRow& row) {
  WriteAdapterData(store_, description, row);
  return !description.empty() && store_.ReadBool(settings::TrimmedAdapterName(description), true);
}

bool Statistics::Counts(std::string_view description) {
  return store_.ReadBool(settings::AdapterName(description), true);
}

void Statistics::PersistAdapter(const AdapterScan& adapter, platform::DateTime today) {
  WriteAdapterData(store_, adapter.description, adapter.row);
  UpdateAdapterStatistics(adapter.description, adapter.counters, today);
}

void Statistics::UpdateAdapterStatistics(std::string_view description,
                                         const AdapterCounters& counters,
                                         platform::DateTime today) {
  const CounterOwner adapter = CounterOwner::Adapter(store_, description);
  const GroupAmounts amounts{counters.DeltaIn, counters.DeltaOut, counters.MaxIn, counters.MaxOut};
  adapter.Add(kInfoGroup, amounts);

  const Periods periods(store_, today);
  for (const Period period : kPeriods) {
    const CounterGroup& group = CountersOf(period);
    const MarkerAge age = periods.Age(period);
    if (age == MarkerAge::kFar) adapter.Reset(group);
    // The marker is still the old one here, so the start day counts after that reset too: from the
    // start day on, this scan is not added.
    if (age != MarkerAge::kSame && periods.HasStarted(period)) {
      adapter.Reset(group);
    } else {
      adapter.Add(group, amounts);
    }
  }
}

void Statistics::UpdateMachineMaxima(const ScanAmounts& scan) {
  // The maxima are overwritten in each scan, also by smaller values: they show the sum of the
  // adapters' maxima.
  store_.Write(setting::InfoMaxDL, scan.ScanMaxDL);
  store_.Write(setting::InfoMaxUL, scan.ScanMaxUL);
}

void Statistics::UpdateMachinePeriods(const ScanAmounts& scan, platform::DateTime today) {
  const CounterOwner machine = CounterOwner::Machine(store_);
  const GroupAmounts amounts{scan.ScanSumDL, scan.ScanSumUL, scan.ScanMaxDL, scan.ScanMaxUL};
  const Periods periods(store_, today);
  for (const Period period : kPeriods) {
    const MarkerAge age = periods.Age(period);
    // After that the marker is today's, so the scan is added to the new period.
    if (age == MarkerAge::kFar) periods.RollOver(period);
    if (age == MarkerAge::kNext && periods.HasStarted(period)) {
      periods.RollOver(period);
    } else {
      machine.Add(CountersOf(period), amounts);
    }
  }
}

}  // namespace engine
