// The real machine, except that the adapters move as the benchmark says, that the registry's work
// can be written down, and that the time of the timers is played.
#pragma once

#include <cstring>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "bench/windows/recording_registry.h"
#include "platform/windows/machine.h"

namespace bench {

// What moves in a second, another amount in each and every other time a fraction, so that the
// histogram of the icon is another one after each scan.
inline std::uint32_t PlayedBytesIn(std::uint32_t second) {
  return (5000 + 37 * (second % 101)) / (1 + 3 * (second % 2));
}
inline std::uint32_t PlayedBytesOut(std::uint32_t second) {
  return (700 + 11 * (second % 73)) / (1 + 3 * (second % 2));
}

// Reads the system's table for what that costs, and hands out rows of its own.
class MovingTable final : public platform::InterfaceTable {
 public:
  MovingTable(platform::InterfaceTable& real, int adapters) : real_(real) {
    for (int adapter = 1; adapter <= adapters; ++adapter) {
      platform::InterfaceRow row;
      row.dwIndex = static_cast<std::uint32_t>(adapter);
      row.dwMtu = 1500;
      row.dwSpeed = 1000000000;
      row.dwPhysAddrLen = 6;
      const std::string name = "Benchmark card " + std::to_string(adapter);
      std::memcpy(row.bDescr.data(), name.data(), name.size());
      row.dwDescrLen = static_cast<std::uint32_t>(name.size());
      rows_.push_back(row);
    }
  }

  // A second passes on the line. The amounts change from scan to scan.
  void Move() {
    ++seconds_;
    for (platform::InterfaceRow& row : rows_) {
      row.dwInOctets += PlayedBytesIn(seconds_);
      row.dwOutOctets += PlayedBytesOut(seconds_);
    }
  }

  [[nodiscard]] std::uint32_t Read(std::span<std::byte> buffer, std::uint32_t& size) override {
    const std::size_t needed = platform::kInterfaceTableHead + rows_.size() * sizeof(rows_[0]);
    std::uint32_t real_size = 0;
    if (buffer.empty()) {
      (void)real_.Read({}, real_size);
      real_table_.resize(real_size);
    } else {
      (void)real_.Read(real_table_, real_size);
    }
    size = static_cast<std::uint32_t>(needed);
    if (buffer.size() < needed) return platform::kInsufficientBuffer;
    const auto count = static_cast<std::uint32_t>(rows_.size());
    std::memcpy(buffer.data(), &count, sizeof(count));
    std::memcpy(buffer.data() + platform::kInterfaceTableHead, rows_.data(),
                rows_.size() * sizeof(rows_[0]));
    return 0;
  }

  [[nodiscard]] std::optional<bool> IsFilter(std::uint32_t /*index*/) override { return false; }
  [[nodiscard]] std::optional<platform::LongOctets> Octets(std::uint32_t /*index*/) override {
    return std::nullopt;
  }

 private:
  platform::InterfaceTable& real_;
  std::vector<platform::InterfaceRow> rows_;
  std::vector<std::byte> real_table_;
  std::uint32_t seconds_ = 0;
};

// Timers that tick when they are told to.
class PlayedTimers final : public platform::Timers {
 public:
  [[nodiscard]] std::unique_ptr<platform::Timer> Start(int /*milliseconds*/,
                                                       std::function<void()> tick) override {
    const int number = ++last_number_;
    running_.emplace(number, std::make_shared<const std::function<void()>>(std::move(tick)));
    return std::make_unique<Running>(*this, number);
  }

  // Each timer that runs ticks once.
  void Tick() {
    const auto running = running_;
    for (const auto& [number, tick] : running) {
      if (running_.contains(number)) (*tick)();
    }
  }

 private:
  struct Running final : platform::Timer {
    Running(PlayedTimers& of, int with_number) : timers(of), number(with_number) {}
    ~Running() override { timers.running_.erase(number); }
    PlayedTimers& timers;
    int number;
  };

  std::map<int, std::shared_ptr<const std::function<void()>>> running_;
  int last_number_ = 0;
};

class PlayedMachine {
 public:
  explicit PlayedMachine(int adapters) : table(real_.platform().interface_table, adapters) {}

  [[nodiscard]] platform::Platform& platform() { return platform_; }

 private:
  platform::windows::Machine real_;

 public:
  MovingTable table;
  RecordingRegistry registry{real_.platform().registry};
  PlayedTimers timers;

 private:
  platform::Platform platform_{
      .interface_table = table,
      .registry = registry,
      .sockets = real_.platform().sockets,
      .clock = real_.platform().clock,
      .files = real_.platform().files,
      .locale = real_.platform().locale,
      .clipboard = real_.platform().clipboard,
      .windowing = real_.platform().windowing,
      .menus = real_.platform().menus,
      .timers = timers,
      .message_loop = real_.platform().message_loop,
      .screen = real_.platform().screen,
      .graphics = real_.platform().graphics,
      .notification_area = real_.platform().notification_area,
      .sound = real_.platform().sound,
      .keyboard = real_.platform().keyboard,
      .session = real_.platform().session,
      .other_windows = real_.platform().other_windows,
      .hot_keys = real_.platform().hot_keys,
      .shell = real_.platform().shell,
      .fonts = real_.platform().fonts,
      .system_dialogs = real_.platform().system_dialogs,
  };
};

}  // namespace bench
