// The Windows calls that a scan cannot do without, and nothing else: what the program's cost is
// compared with.
#pragma once

#include <cstddef>
#include <functional>
#include <vector>

#include "bench/windows/recording_registry.h"
#include "platform/windows/win32.h"

namespace bench {

class BareScan {
 public:
  //   even, odd  the registry's work of two scans one behind the other; they are played in turn, so
  //              that values change as they do in the program
  BareScan(std::vector<RegistryOperation> even, std::vector<RegistryOperation> odd);
  ~BareScan();
  BareScan(const BareScan&) = delete;
  BareScan& operator=(const BareScan&) = delete;

  // The table, read twice, each time its size first; the registry, each value with an opening and a
  // closing of its own; and the picture in the notification area, given to the shell twice.
  void Run();

  // Of Run, one after the other; then the other scan's work is next.
  void ReadTableTwice();
  void WorkOnRegistry();
  void ShowPictures();
  void NextScan() { ++scans_; }

 private:
  std::vector<RegistryOperation> operations_[2];
  std::vector<std::byte> table_;
  HWND window_ = nullptr;
  HBITMAP pictures_[2] = {};
  HBITMAP mask_ = nullptr;
  HICON shown_ = nullptr;
  unsigned scans_ = 0;
};

}  // namespace bench
