// The whole program over a machine in memory, whose adapters all move in every scan.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/memory/machine.h"
#include "program/program.h"

namespace bench {

class MemoryMeter {
 public:
  explicit MemoryMeter(int adapters) {
    for (int adapter = 1; adapter <= adapters; ++adapter) {
      machine.interface_table.AddRow(
          platform::memory::MakeRow("Ethernet card " + std::to_string(adapter)));
    }
  }

  // Runs the program; `body` is what happens while it runs, and then the user leaves.
  void Run(const std::function<void()>& body) {
    program::Program program(machine.Platform());
    machine.message_loop.Then([&] {
      body();
      program.App().Terminate();
    });
    program.Run();
  }

  // One second passes, in which every adapter receives and sends.
  void Scan() {
    for (std::size_t row = 0; row < machine.interface_table.rows.size(); ++row) {
      machine.interface_table.AddTraffic(row, 5000, 700);
    }
    machine.timers.Advance(1000);
  }

  platform::memory::Machine machine;
};

}  // namespace bench
