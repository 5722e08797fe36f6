#include "tools/endure/model.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace endure {
namespace {

using std::chrono::sys_days;
using std::chrono::weekday;
using std::chrono::year;
using std::chrono::year_month_day;

constexpr sys_days kOrigin = sys_days(year(1899) / 12 / 30);
constexpr const char* kPeriodNames[] = {"CurrentDay", "CurrentWeek", "CurrentMonth"};

std::string Lower(std::string text) {
  for (char& c : text) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  return text;
}

std::string Trimmed(const std::string& text) {
  const auto first = text.find_first_not_of(' ');
  return first == std::string::npos ? ""
                                    : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

// 0 = Sunday ... 6 = Saturday.
unsigned YearEnd(year y) { return weekday(sys_days(y / 12 / 31)).c_encoding(); }

// Weeks begin on Monday; the moment counts to the nearest day, noon itself to the even number.
std::int64_t Week(Moment now) {
  const year y = year_month_day(now.day).year();
  const unsigned w = YearEnd(y - std::chrono::years(1));
  std::int64_t n = (now.day - sys_days(y / 1 / 1)).count() + w;
  constexpr std::chrono::hours kNoon{12};
  if (now.time > kNoon || (now.time == kNoon && n % 2 == 1)) ++n;
  const std::int64_t week = n / 7 + (w < 4 ? 1 : 0);
  if (week != 0) return week;
  return YearEnd(y - std::chrono::years(2)) < 4 ? 53 : 52;
}

// Bytes a scan, by the stored choice of the scale; the custom one is not played.
std::int64_t CapOf(std::int64_t choice) {
  constexpr std::int64_t kCaps[] = {0,      1800,    4200,    6000,    6662,  8000,
                                    16000,  32000,   48000,   64000,   96000, 193000,
                                    250000, 1250000, 5929500, 12500000};
  return kCaps[choice];
}

bool BeganAnew(std::uint32_t last, std::uint32_t now, std::uint64_t full) {
  return now < last && full < (std::uint64_t{1} << 32);
}

}  // namespace

void Model::Group::Add(const Amounts& amounts) {
  TotalDL += amounts.dl;
  TotalUL += amounts.ul;
  MaxDL = std::max(MaxDL, amounts.max_dl);
  MaxUL = std::max(MaxUL, amounts.max_ul);
}

void Model::Group::See(const Model::See& see, const char* key, const std::string& prefix) {
  see(key, prefix + "TotalDL", TotalDL);
  see(key, prefix + "TotalUL", TotalUL);
  see(key, prefix + "MaxDL", MaxDL);
  see(key, prefix + "MaxUL", MaxUL);
}

void Model::ForEachStored(const See& see) {
  for (int period = 0; period < 3; ++period) {
    see("Settings", kPeriodNames[period], markers_[period]);
    machine_.periods[period].See(see, "Settings", kPeriodNames[period]);
  }
  see("Settings", "InfoMaxDL", machine_.info.MaxDL);
  see("Settings", "InfoMaxUL", machine_.info.MaxUL);
  see("Settings", "BAShow", BAShow_);
  see("Settings", "ExecuteTime", ExecuteTime_);
  see("Settings", "wPerStartsOn", choices.wPerStartsOn);
  see("Settings", "mPerStartsOn", choices.mPerStartsOn);
  see("Settings", "GraphScaleType", choices.GraphScaleType);
  see("Settings", "BAAlerts", choices.BAAlerts);
  see("Settings", "MoreThan", choices.MoreThan);
  see("Settings", "AlertsMoreThan", choices.AlertsMoreThan);
  see("Settings", "baDownload", choices.baDownload);
  see("Settings", "baUpload", choices.baUpload);
  see("Settings", "BADayWeekMonth", choices.BADayWeekMonth);
  for (auto& [name, included] : choices.included) see("Settings", name, included);
  for (auto& [name, figures] : adapters_) {
    figures.info.See(see, "AdapterDatas", name + "Info");
    for (int period = 0; period < 3; ++period) {
      figures.periods[period].See(see, "AdapterDatas", name + kPeriodNames[period]);
    }
  }
}

void Model::Read(const std::vector<Row>& rows) {
  if (!rows.empty()) table = rows;
}

void Model::TakeTable(std::vector<Row> rows) {
  table = std::move(rows);
  for (const Row& row : table) adapters_.try_emplace(Trimmed(Lower(row.description)));
}

void Model::Start(const std::vector<Row>& rows, Moment now) {
  table.clear();
  run_total_dl = 0;
  run_total_ul = 0;
  Read(rows);
  Initialise(now);
  speed_cap = 0;  // a fresh run is uncapped
}

void Model::Initialise(Moment now) {
  TakeScale();
  counters.clear();
  for (const Row& row : table) counters.push_back({row.in, row.out, 0, 0});
  rows_at_seeding = table.size();
  if (ExecuteTime_++ != 0) return;
  markers_[0] = (now.day - kOrigin).count();
  markers_[1] = Week(now);
  markers_[2] = unsigned(year_month_day(now.day).month());
  for (const Row& row : table) choices.included[Lower(row.description)] = 1;
}

void Model::TakeScale() { speed_cap = CapOf(choices.GraphScaleType); }

void Model::Resume(const std::vector<Row>& rows) {
  Read(rows);
  if (counters.size() != table.size()) return;
  for (std::size_t i = 0; i < table.size(); ++i) {
    counters[i].last_in = table[i].in;
    counters[i].last_out = table[i].out;
  }
}

void Model::ResetMachine() {
  for (Counter& counter : counters) counter.max_in = counter.max_out = 0;
  machine_.info = {};
  run_total_dl = 0;
  run_total_ul = 0;
}

void Model::ResetAdapter(const std::string& description) {
  adapters_[Lower(description)].info = {};
}

void Model::Forget() {
  choices = {};
  machine_ = {};
  adapters_.clear();
  std::fill(std::begin(markers_), std::end(markers_), 0);
  BAShow_ = 0;
  ExecuteTime_ = 0;
}

void Model::Scan(const std::vector<Row>& rows, Moment now) {
  Read(rows);
  if (rows_at_seeding != table.size()) Initialise(now);

  Amounts scan;
  for (std::size_t i = 0; i < table.size(); ++i) {
    Amounts moved;
    Measure(table[i], counters[i], moved);
    const std::string name = Lower(table[i].description);
    if (name == "ms tcp loopback interface") continue;
    if (choices.included.try_emplace(name, 1).first->second != 0) {
      scan.dl += moved.dl;
      scan.ul += moved.ul;
      scan.max_dl += moved.max_dl;
      scan.max_ul += moved.max_ul;
    }
    if (scan.dl != 0 && scan.ul != 0) Persist(Trimmed(name), moved, now);
  }
  run_total_dl += scan.dl;
  run_total_ul += scan.ul;
  machine_.info.MaxDL = scan.max_dl;
  machine_.info.MaxUL = scan.max_ul;
  CountMachine(scan, now);
  CheckAlert();
}

// A counter that fell has wrapped, unless its 64 bits say that it began anew; then the row moved
// nothing. The largest scan is taken before the cap, and cut with it.
void Model::Measure(const Row& row, Counter& counter, Amounts& moved) const {
  if (row.full && (BeganAnew(counter.last_in, row.in, row.full->first) ||
                   BeganAnew(counter.last_out, row.out, row.full->second))) {
    counter.last_in = row.in;
    counter.last_out = row.out;
  }
  moved.dl = static_cast<std::uint32_t>(row.in - counter.last_in);
  moved.ul = static_cast<std::uint32_t>(row.out - counter.last_out);
  counter.last_in = row.in;
  counter.last_out = row.out;
  counter.max_in = std::max(counter.max_in, moved.dl);
  counter.max_out = std::max(counter.max_out, moved.ul);
  if (speed_cap > 0) {
    for (std::int64_t* bytes : {&moved.dl, &moved.ul, &counter.max_in, &counter.max_out}) {
      *bytes = std::min(*bytes, speed_cap);
    }
  }
  moved.max_dl = counter.max_in;
  moved.max_ul = counter.max_out;
}

Model::Turn Model::TurnOf(int period, Moment now) const {
  const year_month_day date(now.day);
  if (period == 0) {
    const std::int64_t today = (now.day - kOrigin).count();
    return {today == markers_[0], false, true, today};
  }
  if (period == 1) {
    const std::int64_t week = Week({now.day, {}});
    const std::int64_t d = week - markers_[1];
    const std::int64_t day_of_week = weekday(now.day).c_encoding() + 1;
    return {d == 0, d >= 2 || d < 0, day_of_week >= choices.wPerStartsOn, week};
  }
  const std::int64_t this_month = unsigned(date.month());
  const std::int64_t d = this_month - markers_[2];
  return {d == 0, d >= 2 || d <= -2, unsigned(date.day()) >= choices.mPerStartsOn + 1, this_month};
}

// The markers are still those before this scan.
void Model::Persist(const std::string& name, const Amounts& moved, Moment now) {
  Figures& adapter = adapters_[name];
  adapter.info.Add(moved);
  for (int period = 0; period < 3; ++period) {
    const Turn turn = TurnOf(period, now);
    Group& group = adapter.periods[period];
    if (turn.too_far) group = {};
    if (!turn.same && turn.started) {
      group = {};
    } else {
      group.Add(moved);
    }
  }
}

void Model::CountMachine(const Amounts& scan, Moment now) {
  for (int period = 0; period < 3; ++period) {
    const Turn turn = TurnOf(period, now);
    Group& group = machine_.periods[period];
    const bool over = !turn.same && turn.started;
    if (turn.too_far || over) {
      markers_[period] = turn.marker;
      group = {};
      BAShow_ = 0;
      ++roll_overs;
    }
    // One that was too far off has today's marker now, and the scan counts for it.
    if (turn.too_far || !over) group.Add(scan);
  }
}

void Model::CheckAlert() {
  if (BAShow_ != 0 || choices.BAAlerts == 0) return;
  if (choices.baDownload == 0 && choices.baUpload == 0) return;
  if (choices.BADayWeekMonth < 0 || choices.BADayWeekMonth > 2) return;
  const Group& group = machine_.periods[choices.BADayWeekMonth];
  const std::int64_t total =
      (choices.baDownload != 0 ? group.TotalDL : 0) + (choices.baUpload != 0 ? group.TotalUL : 0);
  if (total < choices.MoreThan << (10 * (choices.AlertsMoreThan + 1))) return;
  BAShow_ = 1;
  ++alerts;
}

}  // namespace endure
