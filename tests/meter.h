// The whole program over a machine in memory.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "program/program.h"
#include "tests/world.h"

namespace test {

// The bytes that one scan finds on the first adapter.
struct Traffic {
  std::uint32_t in = 0;
  std::uint32_t out = 0;
};

class Meter : public testing::Test, protected Computer {
 protected:
  using Widgets = platform::memory::Windowing;

  Meter() {
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
    EXPECT_EQ(machine.message_loop.starved, 0) << "something was asked that nobody answered";
    EXPECT_EQ(machine.message_loop.StepsLeft(), 0U) << "what was to be answered was not asked";
  }
  // The same with the preferences open, on a page.
  void RunOpen(const char* page, const std::function<void()>& body) {
    Run([&] {
      OpenPreferences();
      ChoosePage(page);
      body();
    });
  }

  // One second passes, in which so much moves.
  void Scan(Traffic traffic) {
    machine.interface_table.AddTraffic(0, traffic.in, traffic.out);
    machine.timers.Advance(1000);
  }

  Widgets& User() { return machine.windowing; }
  void Then(std::function<void()> step) { machine.message_loop.Then(std::move(step)); }
  // Opens the menu of the meter and chooses from it, or does so by the tray icon, which is there
  // while a window disables the meter.
  void Choose(const std::string& text) {
    machine.menus.WillChoose(text);
    User().RightClick("T_frmBrisanto");
  }
  void ChooseInTray(const std::string& text) {
    machine.menus.WillChoose(text);
    machine.notification_area.RightClick({900, 700});
  }
  // An entry of the menu as the user sees it now.
  platform::MenuEntry Entry(const std::string& text) {
    Choose("");
    const platform::MenuEntry* entry = platform::memory::Menus::Find(machine.menus.last, text);
    EXPECT_NE(entry, nullptr) << text;
    return entry != nullptr ? *entry : platform::MenuEntry();
  }
  void OpenPreferences() { Choose("Settings..."); }
  // Selects an item of their page tree by its text.
  void ChoosePage(const std::string& text) {
    const auto& items = Widget("TreeItems").items;
    const auto found = std::find(items.begin(), items.end(), text);
    ASSERT_NE(found, items.end()) << text;
    User().Choose("TreeItems", static_cast<int>(found - items.begin()));
  }
  // One after the other, the first one again at the end: a page that was not seen has no controls
  // that the user could look at.
  void SeeEveryPage() {
    for (int left = static_cast<int>(Widget("TreeItems").items.size()); left > 0; --left) {
      User().Choose("TreeItems", left - 1);
    }
  }

  std::string Line() { return Widget("_tlkDLULMeter").text; }
  // What the graph shows; a repaint of it.
  std::unique_ptr<platform::memory::Raster> Graph() {
    return Widget("_tlkInterMeter").Paint(machine.screen);
  }
  // Whether a pixel of the meter is part of its shape.
  bool InShape(platform::Point at) {
    const auto& shape = Widget("T_frmBrisanto").shape;
    return !shape || std::ranges::any_of(*shape, [at](const auto& it) { return it.Contains(at); });
  }
  static std::vector<platform::Colour> Pixels(const platform::memory::Raster& picture) {
    std::vector<platform::Colour> pixels;
    for (int y = 0; y < picture.Extent().height; ++y) {
      for (int x = 0; x < picture.Extent().width; ++x) pixels.push_back(picture.Pixel({x, y}));
    }
    return pixels;
  }
  // A picture with a letter for each pixel, "+" for a colour that has none.
  static std::string Drawn(const platform::memory::Raster& picture,
                           const std::map<platform::Colour, char>& letters) {
    std::string drawn;
    int pixels = 0;
    for (const platform::Colour colour : Pixels(picture)) {
      if (pixels++ % picture.Extent().width == 0) drawn += '\n';
      const auto letter = letters.find(colour);
      drawn += letter != letters.end() ? letter->second : '+';
    }
    return drawn + '\n';
  }
  std::string ErrorLog() { return machine.files.BytesBesideProgram("err.log").value_or(""); }

  toolkit::Application& App() { return program_->App(); }
  display::T_frmBrisanto& Window() { return program_->Meter(); }
  const display::MeterParts& Parts() { return Window().Parts().options.Parts(); }
  // The form of this name; null for none.
  toolkit::Form* Find(std::string_view name) {
    for (toolkit::Form* form : App().Forms()) {
      if (form->Name() == name) return form;
    }
    return nullptr;
  }

 private:
  program::Program* program_ = nullptr;
};

}  // namespace test
