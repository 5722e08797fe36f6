// The page of the adapters, whose ticks are those of the meter's menu.
#include "tests/meter.h"

namespace {

using Strings = std::vector<std::string>;

class Interfaces : public test::Meter {
 protected:
  // The ticks of the list, which are those of the menu, and of the box for all.
  std::string Ticks() {
    std::string ticks;
    Choose("");
    for (const platform::MenuEntry& entry : machine.menus.last[2].children) {
      ticks += entry.checked ? '+' : '-';
    }
    std::string listed;
    for (const bool tick : Widget("NIMListBox").row_checks) listed += tick ? '+' : '-';
    EXPECT_EQ(listed, ticks);
    return ticks + (Widget("chkSelectALL").checked ? " all" : "");
  }
  std::string Data() {
    return Widget("lblMacAddressValue").text + " " + Widget("lblSpeedValue").text + " " +
           Widget("lblMTUValue").text;
  }
};

TEST_F(Interfaces, AnAdapterIsTickedUnderItsNameAndTheMenuFollows) {
  machine.interface_table.AddRow(platform::memory::MakeRow("Radio X", {1, 2, 3}, 900, 54000));
  machine.interface_table.AddRow(platform::memory::MakeRow("MS TCP Loopback interface"));
  RunOpen("Interfaces", [&] {
    // What the act changes in the store, and the ticks then.
    const auto after = [&](const std::function<void()>& act) {
      const StoredValues before = AllValues();
      act();
      return ChangesSince(before) + " " + Ticks();
    };
    const auto all = [&] { User().Press("chkSelectALL"); };
    auto& list = Widget("NIMListBox");
    EXPECT_EQ(list.items, (Strings{"Ethernet", "Radio X"}));
    EXPECT_EQ(Widget("lblMTUValue").text, "1500") << "the first one, until another is chosen";
    EXPECT_EQ(after([&] { User().Choose("NIMListBox", 1); }), " ++ all");
    EXPECT_EQ(Data(), "01-02-03 54000 900");
    EXPECT_EQ(after([&] { User().Tick("NIMListBox", 1); }), "radio x=0 +-");
    EXPECT_EQ(after(all), "radio x=1 ++ all");
    EXPECT_EQ(after(all), "ethernet=0 radio x=0 --");
    machine.menus.user = [this](const auto& entries, auto&) {
      machine.menus.user = nullptr;
      return entries[2].children[1].id;
    };
    EXPECT_EQ(after([&] { User().RightClick("T_frmBrisanto"); }), "radio x=1 -+");
    // The chosen one stays chosen when one before it goes, and its data go with it.
    const auto remove_first = [&] {
      machine.interface_table.RemoveRow(0);
      machine.timers.Advance(1000);
    };
    remove_first();
    EXPECT_EQ(list.items, Strings{"Radio X"});
    EXPECT_EQ(list.index, 0);
    EXPECT_EQ(Data() + " " + Ticks(), "01-02-03 54000 900 + all");
    remove_first();
    EXPECT_TRUE(list.items.empty());
    EXPECT_EQ(Data() + Ticks(), "  ");
    EXPECT_TRUE(after(all).starts_with(" "));
  });
}

}  // namespace
