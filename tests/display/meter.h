// The whole program over a machine in memory.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/memory/machine.h"
#include "program/program.h"
#include "settings/store.h"

namespace test {

inline constexpr std::string_view kSettingsKey = "SOFTWARE\\Korvane\\Dravenlow\\Settings";

// The bytes that one scan finds on the first adapter.
struct Traffic {
  std::uint32_t in = 0;
  std::uint32_t out = 0;
};

class MeterTest : public testing::Test {
 protected:
  MeterTest() {
    machine.interface_table.AddRow(platform::memory::MakeRow("Ethernet"));
    machine.locale.decimal_separator = ",";
  }

  // Runs the program; `body` is what happens while it runs, and then the user leaves.
  void Run(const std::function<void()>& body) {
    bool ran = false;
    {
      program::Program program(machine.Platform());
      program_ = &program;
      machine.message_loop.Then([&] {
        ran = true;
        body();
        program.App().Terminate();
      });
      program.Run();
    }
    program_ = nullptr;
    machine.EndProcess();
    EXPECT_TRUE(ran) << "the program did not start";
  }

  // One second passes, in which so much moves.
  void Scan(Traffic traffic) {
    machine.interface_table.AddTraffic(0, traffic.in, traffic.out);
    machine.timers.Advance(1000);
  }

  // Opens the menu of the meter and chooses from it.
  void Choose(const std::string& text) {
    machine.menus.WillChoose(text);
    machine.windowing.RightClick("T_frmBrisanto");
  }
  // An entry of the menu as the user sees it now.
  platform::MenuEntry Entry(const std::string& text) {
    Choose("");
    const platform::MenuEntry* entry = platform::memory::Menus::Find(machine.menus.last, text);
    EXPECT_NE(entry, nullptr) << text;
    return entry != nullptr ? *entry : platform::MenuEntry();
  }

  platform::memory::WidgetState& Widget(std::string_view name) {
    return machine.windowing.Find(name);
  }
  std::string Line() { return Widget("_tlkDLULMeter").text; }
  // What the graph shows; a repaint of it.
  std::unique_ptr<platform::memory::Raster> Graph() {
    return Widget("_tlkInterMeter").Paint(machine.screen);
  }

  void Set(std::string_view name, std::uint32_t value) {
    machine.registry.Set(kSettingsKey, name, platform::memory::RegistryValue::Dword(value));
  }
  void Set(std::string_view name, std::string_view value) {
    machine.registry.Set(kSettingsKey, name, platform::memory::RegistryValue::Text(value));
  }
  std::uint32_t Stored(std::string_view name) {
    return machine.registry.Dword(kSettingsKey, name).value_or(0xDEADBEEF);
  }
  std::string StoredText(std::string_view name) {
    return machine.registry.Text(kSettingsKey, name).value_or("(missing)");
  }

  toolkit::Application& App() { return program_->App(); }
  display::T_frmBrisanto& Window() { return program_->Meter(); }

  platform::memory::Machine machine;

 private:
  program::Program* program_ = nullptr;
};

}  // namespace test
