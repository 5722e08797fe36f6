// The groups of four counters that the statistics are made of, machine-wide and for each adapter.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "settings/schema.h"
#include "settings/store.h"

namespace engine {

struct CounterGroup {
  settings::CounterSetting total_dl;
  settings::CounterSetting total_ul;
  settings::CounterSetting max_dl;
  settings::CounterSetting max_ul;
  // A reset writes the totals and then the maxima, DL before UL. Only the week's maxima are written
  // UL before DL.
  bool resets_max_ul_first = false;
};

// The counters since the last reset. The scan does not keep the machine's totals of this group.
inline constexpr CounterGroup kInfoGroup{
    settings::setting::InfoTotalDL, settings::setting::InfoTotalUL, settings::setting::InfoMaxDL,
    settings::setting::InfoMaxUL};
inline constexpr CounterGroup kDayGroup{
    settings::setting::CurrentDayTotalDL, settings::setting::CurrentDayTotalUL,
    settings::setting::CurrentDayMaxDL, settings::setting::CurrentDayMaxUL};
inline constexpr CounterGroup kWeekGroup{
    settings::setting::CurrentWeekTotalDL, settings::setting::CurrentWeekTotalUL,
    settings::setting::CurrentWeekMaxDL, settings::setting::CurrentWeekMaxUL, true};
inline constexpr CounterGroup kMonthGroup{
    settings::setting::CurrentMonthTotalDL, settings::setting::CurrentMonthTotalUL,
    settings::setting::CurrentMonthMaxDL, settings::setting::CurrentMonthMaxUL};

// What a scan adds to a group: its bytes, and the candidates for the maxima (bytes too).
struct GroupAmounts {
  std::int64_t dl = 0;
  std::int64_t ul = 0;
  std::int64_t max_dl = 0;
  std::int64_t max_ul = 0;
};

// The owner of a set of counters: the machine, whose counters are stored under Settings, or an
// adapter, whose counters are stored under AdapterDatas with the adapter's name in front of each
// value name.
class CounterOwner {
 public:
  [[nodiscard]] static CounterOwner Machine(settings::Store& store);
  // Returns the owner that the scan counts for: the adapter under its trimmed name.
  [[nodiscard]] static CounterOwner Adapter(settings::Store& store, std::string_view description);
  // Returns the owner that the adapter's window shows. Blanks at the ends of the caption are kept,
  // so the window of an adapter whose description has such blanks shows zeros. Both forms of the
  // name are kept.
  [[nodiscard]] static CounterOwner AdapterWindow(settings::Store& store, std::string_view caption);

  // Returns the stored value. Throws ConversionError when the stored text is no number.
  [[nodiscard]] std::int64_t Read(const settings::CounterSetting& counter) const;

  // Adds to the totals and raises the maxima, each value read, changed and written in turn. Throws
  // ConversionError when a stored text is no number, std::runtime_error when a write is refused;
  // what was written before stays.
  void Add(const CounterGroup& group, const GroupAmounts& amounts) const;

  // Write "0" to one counter, or to all four of a group. Throw std::runtime_error when a write is
  // refused.
  void Reset(const settings::CounterSetting& counter) const;
  void Reset(const CounterGroup& group) const;

 private:
  // When a candidate replaces a stored maximum. For an adapter an equal candidate is written too.
  enum class MaxRule { kGreater, kGreaterOrEqual };

  CounterOwner(settings::Store& store, settings::KeyIndex key, std::string prefix, MaxRule rule)
      : store_(store), key_(key), prefix_(std::move(prefix)), rule_(rule) {}

  [[nodiscard]] std::string Name(const settings::CounterSetting& counter) const;
  void Write(const settings::CounterSetting& counter, std::int64_t value) const;
  void Raise(const settings::CounterSetting& max, std::int64_t candidate) const;

  settings::Store& store_;
  settings::KeyIndex key_;
  std::string prefix_;
  MaxRule rule_;
};

}  // namespace engine
