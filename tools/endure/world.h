// The whole program on a machine in memory, played by a die, beside the model of what it must
// store.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/memory/machine.h"
#include "program/program.h"
#include "tools/endure/model.h"

namespace endure {

// What was stored, or moved in memory, is not what the model says. Its text names the values.
class Difference : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// What happened so far.
struct Tally {
  int days = 0;
  std::int64_t scans = 0;
  std::int64_t wraps = 0;
  std::int64_t set_back = 0;
  int restarts = 0;
  int failed_calls = 0;
};

class World {
 public:
  explicit World(std::uint32_t seed);

  // Plays until the clock shows another date. A day is not 86,400 scans: some hours are jumped
  // through, one scan at the end of each jump finding all that moved meanwhile, with a stretch of
  // scans one second after the other behind it; the last seconds before midnight and the first ones
  // behind it are always such a stretch, and with midnight come the turns of weeks, months and
  // years. Throws Difference.
  void PlayDay();

  [[nodiscard]] const Tally& Counted() const { return tally_; }
  [[nodiscard]] const Model& Expected() const { return model_; }
  [[nodiscard]] std::string Date();

 private:
  // The die.
  [[nodiscard]] int Below(int n);  // 0 to n - 1
  [[nodiscard]] bool Chance(int one_in) { return Below(one_in) == 0; }
  [[nodiscard]] std::uint32_t Bytes();

  // Time, in which traffic may move and a scan finds it.
  void Stretch(int scans);
  void ScanAfter(std::int64_t seconds);
  void RunScan();
  void PlayScan();
  bool TakeFailure();
  void MoveTraffic();
  [[nodiscard]] std::int64_t SecondsToMidnight();

  // What may happen between two scans.
  void Happen();
  void ChangeAdapters();
  void AddAdapter();
  void RemoveAdapter();
  void SwapAdapter();
  void SetCountersBack();
  void Sleep();
  void SetClock();
  void Choose();
  void Include();
  void UseMachineWindow();
  void UseAdapterWindow();
  void UsePreferences();
  void Restart();
  void StartAnew();

  // The program.
  void StartProgram();
  void EndProgram();
  void OpenFromMenu(const std::string& text);
  void StoreChoices();

  // The comparison.
  [[nodiscard]] Moment Now();
  [[nodiscard]] std::vector<Row> RowsOf(const std::vector<platform::InterfaceRow>& rows);
  [[nodiscard]] std::vector<Row> Rows() { return RowsOf(machine_.interface_table.rows); }
  [[nodiscard]] std::int64_t Stored(const char* key, const std::string& name);
  void Compare();
  void Adopt(const std::vector<Model::Counter>* before);
  void AdoptStored();

  std::mt19937 die_;
  platform::memory::Machine machine_;
  std::unique_ptr<program::Program> program_;
  Model model_;
  Tally tally_;
  std::int64_t scans_seen_ = 0;     // each asks once whether notifications are on
  std::int64_t scans_missing_ = 0;  // in what was played last; negative for scans too many
};

}  // namespace endure
