#include "tools/endure/world.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <string_view>
#include <utility>

#include "platform/interface_table.h"

namespace endure {
namespace {

using platform::memory::RegistryValue;

constexpr const char* kHome = "SOFTWARE\\Korvane\\Dravenlow\\";
constexpr std::int64_t kMillisecondsPerSecond = 1000;
constexpr int kMostAdapters = 6;

// Two with one name share what is stored; blanks at an end matter to the include flag only; the
// loopback does not count, with a blank behind its name it does.
constexpr const char* kAdapters[] = {"Ethernet",
                                     "Wireless",
                                     " Tunnel ",
                                     "Tunnel",
                                     "Modem #2",
                                     "MS TCP Loopback interface",
                                     "ms tcp loopback interface ",
                                     "Ethernet",
                                     ""};

constexpr std::chrono::sys_days kOrigin = std::chrono::sys_days(std::chrono::year(1899) / 12 / 30);

bool SameBase(const Model::Counter& a, const Model::Counter& b) {
  return a.last_in == b.last_in && a.last_out == b.last_out;
}

std::string KeyPath(const char* key) { return std::string(kHome) + key; }

}  // namespace

World::World(std::uint32_t seed) : die_(seed) {
  machine_.locale.decimal_separator = ",";
  // Every other life begins shortly before a new year.
  machine_.clock.SetNow(platform::EncodeDateTime(2019 + Below(12), Chance(2) ? 12 : 1 + Below(12),
                                                 20 + Below(9), Below(24), Below(60), Below(60)));
  machine_.notebook.on_registry_read = [this](std::string_view name) {
    scans_seen_ += name == "NotificationsActive" ? 1 : 0;
  };
  AddAdapter();
  AddAdapter();
}

void World::PlayDay() {
  if (!program_) StartAnew();
  const auto day = Now().day;
  while (Now().day == day) {
    const std::int64_t rest = SecondsToMidnight();
    if (rest <= 10) {
      Stretch(20);
    } else {
      ScanAfter(1 + Below(static_cast<int>(std::min<std::int64_t>(rest - 10, 4 * 3600))));
      Stretch(Below(30));
    }
  }
  ++tally_.days;
}

std::string World::Date() {
  const platform::DateTime now = machine_.clock.Now();
  const platform::CivilDate date = platform::DecodeDate(now);
  const platform::ClockTime time = platform::DecodeTime(now);
  char text[64];
  std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d", date.year, date.month, date.day,
                time.hour, time.minute, time.second);
  return text;
}

int World::Below(int n) { return static_cast<int>(die_() % static_cast<unsigned>(n)); }

// Mostly what lines carry in a second, now and then anything up to what wraps a counter.
std::uint32_t World::Bytes() {
  switch (Below(8)) {
    case 0:
    case 1:
      return 0;
    case 2:
      return static_cast<std::uint32_t>(die_());
    case 3:
      return 1;
    default:
      return static_cast<std::uint32_t>(Below(20000000));
  }
}

void World::Stretch(int scans) {
  for (int scan = 0; scan < scans; ++scan) {
    if (Chance(8)) Happen();
    ScanAfter(1);
  }
}

// Whole seconds, so that the scan comes at its time and alone.
void World::ScanAfter(std::int64_t seconds) {
  MoveTraffic();
  machine_.timers.Stall(seconds * kMillisecondsPerSecond);
  RunScan();
}

void World::RunScan() {
  const std::vector<Model::Counter> before = model_.counters;
  const int alerts = model_.alerts;
  model_.Scan(Rows(), Now());
  // Under the window of an alert the scans go on.
  if (model_.alerts > alerts) {
    machine_.message_loop.Then([this] {
      if (!machine_.windowing.Exists("T_frmBandWidthAlert")) return;
      for (int scan = Below(4); scan > 0; --scan) ScanAfter(1);
      machine_.windowing.Press("OkBtn");
    });
    PlayScan();
    return Compare();
  }
  bool disturbed = false;
  if (Chance(50)) {
    const bool changes = Chance(4);
    if (changes) {
      machine_.interface_table.after_size_read = [this] { ChangeAdapters(); };
    } else {
      machine_.notebook.FailCall(1 + Below(Chance(3) ? 40 : 400));
    }
    PlayScan();
    disturbed = changes || TakeFailure();
    if (disturbed) Adopt(changes ? nullptr : &before);
  } else {
    PlayScan();
  }
  if (!disturbed) Compare();
}

void World::PlayScan() {
  const std::int64_t missing = tally_.scans - scans_seen_;
  machine_.timers.Advance(0);
  ++tally_.scans;
  scans_missing_ = tally_.scans - scans_seen_ - missing;
}

// Whether the call that was to fail has come; if not, it is let off.
bool World::TakeFailure() {
  const bool failed = !machine_.notebook.FailurePending();
  machine_.notebook.FailCall(0);
  tally_.failed_calls += failed ? 1 : 0;
  return failed;
}

void World::MoveTraffic() {
  auto& table = machine_.interface_table;
  if (Chance(6)) return;
  for (std::size_t row = 0; row < table.rows.size(); ++row) {
    if (Chance(4)) continue;
    const auto was_in = table.rows[row].dwInOctets;
    const auto was_out = table.rows[row].dwOutOctets;
    table.AddTraffic(row, Bytes(), Bytes());
    tally_.wraps += (table.rows[row].dwInOctets < was_in ? 1 : 0) +
                    (table.rows[row].dwOutOctets < was_out ? 1 : 0);
  }
}

std::int64_t World::SecondsToMidnight() { return 86400 - Now().time.count(); }

void World::Happen() {
  switch (Below(24)) {
    case 0:
    case 1:
    case 2:
      return ChangeAdapters();
    case 3:
    case 4:
    case 5:
      return SetCountersBack();
    case 6:
      return Sleep();
    case 7:
      if (Chance(3)) SetClock();
      return;
    case 8:
    case 9:
      return Include();
    case 10:
      return UseMachineWindow();
    case 11:
      return UseAdapterWindow();
    case 12:
      return UsePreferences();
    case 13:
      return Restart();
    case 14:
      if (Chance(6)) StartAnew();
      return;
    default:
      return Choose();
  }
}

void World::ChangeAdapters() {
  switch (Below(4)) {
    case 0:
      return AddAdapter();
    case 1:
      return RemoveAdapter();
    default:
      return SwapAdapter();
  }
}

void World::AddAdapter() {
  auto& table = machine_.interface_table;
  if (table.rows.size() == kMostAdapters) return;
  platform::InterfaceRow row = platform::memory::MakeRow(kAdapters[Below(std::size(kAdapters))]);
  row.dwInOctets = static_cast<std::uint32_t>(die_());
  row.dwOutOctets = static_cast<std::uint32_t>(die_());
  if (table.AddRow(row).dwIndex % 4 == 0) table.hidden.insert(table.rows.back().dwIndex);
}

void World::RemoveAdapter() {
  auto& rows = machine_.interface_table.rows;
  if (!rows.empty()) machine_.interface_table.RemoveRow(Below(static_cast<int>(rows.size())));
}

// Between two scans, so that the number of rows stays.
void World::SwapAdapter() {
  if (machine_.interface_table.rows.empty()) return;
  RemoveAdapter();
  AddAdapter();
}

void World::SetCountersBack() {
  auto& rows = machine_.interface_table.rows;
  if (rows.empty()) return;
  platform::InterfaceRow& row =
      rows[static_cast<std::size_t>(Below(static_cast<int>(rows.size())))];
  if (Chance(2)) row.dwInOctets = static_cast<std::uint32_t>(Below(2000));
  if (Chance(2)) row.dwOutOctets = 0;
  ++tally_.set_back;
}

// The drivers may start their counters anew meanwhile.
void World::Sleep() {
  machine_.timers.Stall((1 + Below(40000)) * kMillisecondsPerSecond);
  if (Chance(2)) SetCountersBack();
  MoveTraffic();
  if (Chance(8)) return;  // a machine that does not say that it came back
  model_.Resume(Rows());
  machine_.windowing.Tell(&platform::TopWindowEvents::OnResume);
}

void World::SetClock() {
  static constexpr int kDays[] = {1, 1, 2, 6, 7, 8, 14, 28, 30, 31, 32, 62, 365, 366};
  const int days = kDays[Below(std::size(kDays))];
  const platform::DateTime now = machine_.clock.Now();
  machine_.clock.SetNow(Chance(2) ? now - days : now + days);
}

void World::Choose() {
  Choices& choices = model_.choices;
  switch (Below(6)) {
    case 0:
      choices.wPerStartsOn = Below(10);
      break;
    case 1:
      choices.mPerStartsOn = Below(32);
      break;
    case 2:
      choices.GraphScaleType = Below(16);
      break;
    case 3:
      choices.BAAlerts = Below(2);
      break;
    case 4:
      choices.MoreThan = 1 + Below(5000);
      choices.AlertsMoreThan = Below(3);
      choices.BADayWeekMonth = Below(4);
      break;
    default:
      choices.baDownload = Below(2);
      choices.baUpload = Below(2);
  }
  StoreChoices();
}

// The flag as the engine reads it, also where the menu writes another.
void World::Include() {
  auto& included = model_.choices.included;
  if (included.empty()) return;
  auto flag = std::next(included.begin(), Below(static_cast<int>(included.size())));
  flag->second = Below(2);
  StoreChoices();
}

void World::UseMachineWindow() {
  if (!machine_.windowing.Exists("T_frmConnInfo")) return OpenFromMenu("DL-UL Statistics");
  switch (Below(3)) {
    case 0:
      machine_.windowing.Press("Button3");
      return model_.ResetMachine();
    case 1:
      machine_.windowing.Press("ISBAShown");  // it shows what was stored half a second ago
      return Adopt(nullptr);
    default:
      machine_.windowing.ClickCloseBox("T_frmConnInfo");
  }
}

void World::UseAdapterWindow() {
  machine_.message_loop.Then([this] {
    if (!machine_.windowing.Exists("T_frmSpecificConnInfo")) return;
    for (int scan = Below(4); scan > 0; --scan) ScanAfter(1);
    // The machine's window has a button of this name as well.
    if (!machine_.windowing.Exists("T_frmConnInfo")) {
      machine_.windowing.Press("Button3");
      model_.ResetAdapter("Wireless");
    }
    machine_.windowing.ClickCloseBox("T_frmSpecificConnInfo");
  });
  OpenFromMenu("Wireless");
}

void World::UsePreferences() {
  constexpr const char* kForm = "T_frmPreferences";
  if (machine_.windowing.Exists(kForm) && machine_.windowing.Find(kForm).visible) {
    return machine_.windowing.ClickCloseBox(kForm);
  }
  OpenFromMenu("Settings...");
  if (Chance(2)) return;
  const auto& pages = machine_.windowing.Find("TreeItems").items;
  const auto page = std::find(pages.begin(), pages.end(), "Graph Other");
  machine_.windowing.Choose("TreeItems", static_cast<int>(page - pages.begin()));
  // The choice that is shown is no change, and leaves a fresh run uncapped.
  const int scale = Below(16);
  machine_.windowing.Choose("ScaleCombo", scale);
  if (std::exchange(model_.choices.GraphScaleType, scale) != scale) model_.TakeScale();
}

// Killed or ended: no figure is written at the end, so both leave the same behind. What a kill in
// the middle of a scan leaves is what a call that fails there does.
void World::Restart() {
  if (Chance(2)) machine_.windowing.Tell(&platform::TopWindowEvents::OnEndSession);
  EndProgram();
  machine_.timers.Stall(Below(100000) * kMillisecondsPerSecond);
  MoveTraffic();
  StartProgram();
  ++tally_.restarts;
}

void World::StartAnew() {
  EndProgram();
  machine_.registry.RemoveKey("SOFTWARE\\Korvane");
  model_.Forget();
  machine_.registry.Set(KeyPath("Settings"), "BAAction", RegistryValue::Dword(1));
  StoreChoices();
  StartProgram();
}

// A start may meet a call that fails as well; the program runs all the same.
void World::StartProgram() {
  model_.Start(Rows(), Now());
  const bool wanted = model_.choices.included.size() > 3 && Chance(4);
  if (wanted) machine_.notebook.FailCall(1 + Below(600));
  program_ = std::make_unique<program::Program>(machine_.Platform());
  if (wanted && TakeFailure()) return Adopt(nullptr);
  Compare();
}

void World::EndProgram() {
  program_.reset();
  machine_.EndProcess();
}

// From the tray icon, which is there whatever the window is.
void World::OpenFromMenu(const std::string& text) {
  machine_.menus.WillChoose(text);
  machine_.notification_area.RightClick({900, 700});
}

// The model's choices are the user's; what it says of figures is not stored by this.
void World::StoreChoices() {
  const Choices& c = model_.choices;
  const auto store = [&](const std::string& name, std::int64_t value) {
    machine_.registry.Set(KeyPath("Settings"), name,
                          RegistryValue::Dword(static_cast<std::uint32_t>(value)));
  };
  store("wPerStartsOn", c.wPerStartsOn);
  store("mPerStartsOn", c.mPerStartsOn);
  store("GraphScaleType", c.GraphScaleType);
  store("BAAlerts", c.BAAlerts);
  store("MoreThan", c.MoreThan);
  store("AlertsMoreThan", c.AlertsMoreThan);
  store("baDownload", c.baDownload);
  store("baUpload", c.baUpload);
  store("BADayWeekMonth", c.BADayWeekMonth);
  for (const auto& [name, included] : c.included) store(name, included);
}

Moment World::Now() {
  const platform::DateTime now = machine_.clock.Now();
  const auto days = static_cast<int>(platform::DateOf(now));
  return {kOrigin + std::chrono::days(days),
          std::chrono::seconds(std::llround(platform::TimeOf(now) * 86400))};
}

std::vector<Row> World::RowsOf(const std::vector<platform::InterfaceRow>& rows) {
  std::vector<Row> result;
  for (const platform::InterfaceRow& row : rows) {
    const auto full = machine_.interface_table.Octets(row.dwIndex);
    result.push_back({platform::DescriptionBytes(row), row.dwInOctets, row.dwOutOctets, {}});
    if (full) result.back().full.emplace(full->in, full->out);
  }
  return result;
}

// A value that is absent counts as zero.
std::int64_t World::Stored(const char* key, const std::string& name) {
  const auto value = machine_.registry.Raw(KeyPath(key), name);
  if (!value) return 0;
  if (const auto number = value->AsDword()) return static_cast<std::int32_t>(*number);
  if (const auto text = value->AsText()) return std::strtoll(text->c_str(), nullptr, 10);
  double date = 0;
  std::memcpy(&date, value->data.data(), std::min(sizeof date, value->data.size()));
  return static_cast<std::int64_t>(date);
}

void World::Compare() {
  std::string differences;
  const auto see = [&](const std::string& name, std::int64_t expected, std::int64_t found) {
    if (expected == found) return;
    differences += "\n  " + name + ": expected " + std::to_string(expected) + ", found " +
                   std::to_string(found);
  };
  model_.ForEachStored([&](const char* key, const std::string& name, std::int64_t& expected) {
    see(std::string(key) + "\\" + name, expected, Stored(key, name));
  });
  const engine::TrafficState& traffic = program_->Meter().Traffic();
  see("RunTotalDL", model_.run_total_dl, traffic.RunTotalDL);
  see("RunTotalUL", model_.run_total_ul, traffic.RunTotalUL);
  see("scans that were missed", 0, std::exchange(scans_missing_, 0));
  if (!differences.empty()) throw Difference(differences);
}

// A call of the scan failed, or the table changed while it was read: what was not done is not
// known, so the model goes on from what is stored and kept. One thing must hold all the same: where
// the rows are the same, a row's counters are those of this scan, or still those `before` it, which
// leaves the bytes to the next.
void World::Adopt(const std::vector<Model::Counter>* before) {
  const engine::TrafficState& traffic = program_->Meter().Traffic();
  std::vector<Model::Counter> kept;
  for (const engine::AdapterCounters& c : traffic.adapter_counters) {
    kept.push_back({c.LastInOctets, c.LastOutOctets, c.MaxIn, c.MaxOut});
  }
  if (before != nullptr && kept.size() == model_.counters.size()) {
    for (std::size_t row = 0; row < kept.size(); ++row) {
      const bool waits = row < before->size() && SameBase(kept[row], (*before)[row]);
      if (!waits && !SameBase(kept[row], model_.counters[row])) {
        throw Difference("\n  after a failed call the counters of row " + std::to_string(row) +
                         " are neither those of this scan nor those of the one before");
      }
    }
  }
  scans_seen_ += std::exchange(scans_missing_, 0);
  model_.counters = kept;
  model_.TakeTable(RowsOf(traffic.interface_table));
  model_.rows_at_seeding.reset();
  if (traffic.AdapterHigh != engine::kNotInitialised) {
    model_.rows_at_seeding = static_cast<std::size_t>(traffic.AdapterHigh + 1);
  }
  model_.speed_cap = traffic.SpeedCap;
  model_.run_total_dl = traffic.RunTotalDL;
  model_.run_total_ul = traffic.RunTotalUL;
  AdoptStored();
}

void World::AdoptStored() {
  // An include flag that the scan did not come to has its default.
  std::erase_if(model_.choices.included, [this](const auto& flag) {
    return !machine_.registry.Exists(KeyPath("Settings"), flag.first);
  });
  model_.ForEachStored([&](const char* key, const std::string& name, std::int64_t& value) {
    value = Stored(key, name);
  });
}

}  // namespace endure
