// What the stored figures must be after each scan, worked out a second time from the rules of the
// statistics. It shares no code with the program: where both agree, both would have to be wrong in
// the same way.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace endure {

// A row of the machine's interface table as the system counts it.
struct Row {
  std::string description;
  std::uint32_t in = 0;
  std::uint32_t out = 0;
  // The same counters in 64 bits; nothing where the system does not say.
  std::optional<std::pair<std::uint64_t, std::uint64_t>> full;
};

struct Moment {
  std::chrono::sys_days day;
  std::chrono::seconds time{};  // since midnight
};

// What the user has chosen, by the names under which it is stored.
struct Choices {
  std::int64_t wPerStartsOn = 0;
  std::int64_t mPerStartsOn = 0;
  std::int64_t GraphScaleType = 0;
  std::int64_t BAAlerts = 0;
  std::int64_t MoreThan = 1;
  std::int64_t AlertsMoreThan = 0;
  std::int64_t baDownload = 0;
  std::int64_t baUpload = 0;
  std::int64_t BADayWeekMonth = 0;
  std::map<std::string, std::int64_t> included;  // by description in lower case; absent: true
};

class Model {
 public:
  // What the program keeps of a row between two scans.
  struct Counter {
    std::uint32_t last_in = 0;
    std::uint32_t last_out = 0;
    std::int64_t max_in = 0;
    std::int64_t max_out = 0;
  };

  // The program starts, on this table of interfaces.
  void Start(const std::vector<Row>& rows, Moment now);
  void Scan(const std::vector<Row>& rows, Moment now);
  // The machine comes back from sleep.
  void Resume(const std::vector<Row>& rows);
  // The program holds this table now, in whatever way it came by it.
  void TakeTable(std::vector<Row> rows);
  // The user picks the chosen scale in the preferences.
  void TakeScale();
  // The user resets the figures of the machine's window, or of an adapter's.
  void ResetMachine();
  void ResetAdapter(const std::string& description);
  // All that is stored has been taken away while the program did not run.
  void Forget();

  // Every stored figure and choice: its key's last part, its name and its value, which the callee
  // may change. Dates count in days since 1899-12-30.
  using See = std::function<void(const char* key, const std::string& name, std::int64_t& value)>;
  void ForEachStored(const See& see);

  Choices choices;
  std::vector<Row> table;                      // as last read; one without rows is not taken
  std::vector<Counter> counters;               // by row
  std::optional<std::size_t> rows_at_seeding;  // nothing: to be seeded by the next scan
  std::int64_t speed_cap = 0;
  std::int64_t run_total_dl = 0;
  std::int64_t run_total_ul = 0;
  int roll_overs = 0;
  int alerts = 0;

 private:
  struct Amounts {
    std::int64_t dl = 0;
    std::int64_t ul = 0;
    std::int64_t max_dl = 0;
    std::int64_t max_ul = 0;
  };
  struct Group {
    std::int64_t TotalDL = 0;
    std::int64_t TotalUL = 0;
    std::int64_t MaxDL = 0;
    std::int64_t MaxUL = 0;
    void Add(const Amounts& amounts);
    void See(const Model::See& see, const char* key, const std::string& prefix);
  };
  struct Figures {
    Group periods[3];  // day, week, month
    Group info;        // since the last reset; the machine's has no totals
  };
  // How today stands to a period's marker.
  struct Turn {
    bool same;
    bool too_far;  // does not wait for the start day
    bool started;
    std::int64_t marker;  // today's
  };

  void Read(const std::vector<Row>& rows);
  void Initialise(Moment now);
  [[nodiscard]] Turn TurnOf(int period, Moment now) const;
  void Measure(const Row& row, Counter& counter, Amounts& moved) const;
  void Persist(const std::string& description, const Amounts& moved, Moment now);
  void CountMachine(const Amounts& scan, Moment now);
  void CheckAlert();

  Figures machine_;
  std::map<std::string, Figures> adapters_;  // by description, trimmed, in lower case
  std::int64_t markers_[3] = {};
  std::int64_t BAShow_ = 0;
  std::int64_t ExecuteTime_ = 0;
};

}  // namespace endure
