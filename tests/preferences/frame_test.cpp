// The window of the preferences: its pages, and the reset.
#include <set>

#include "settings/schema.h"
#include "tests/layout_faults.h"
#include "tests/meter.h"
#include "toolkit/controls/spin_edit.h"

namespace {

class Preferences : public test::Meter {
 protected:
  static constexpr const char* kForm = "T_frmPreferences";

  // Gives every stored value another one than its default.
  void UpsetAll() {
    using settings::ValueType;
    for (const settings::SchemaRow& row : settings::Schema()) {
      const bool is_date = row.type == ValueType::kDate;
      const bool is_text = row.type == ValueType::kText || row.type == ValueType::kColour;
      if (row.name == "zdP1") continue;
      machine.registry.Set(test::kSettingsKey, row.name,
                           is_date ? RegistryValue::Binary(std::vector<std::byte>(8, std::byte{1}))
                           : is_text || row.type == ValueType::kCounter ? RegistryValue::Text("77")
                                                                        : RegistryValue::Dword(77));
    }
  }
  void Reset(std::initializer_list<const char*> boxes) {
    for (const char* box : boxes) User().Press(box);
    User().Press("btnResetSettings");
  }
  const std::vector<toolkit::Control*>& Pages() {
    const auto& parts = Find(kForm)->Children();
    const auto book = std::ranges::find(parts, "PrefNotebook", &toolkit::Control::Name);
    return (*book)->Children();
  }
  int ProgressAfter(int ms) {
    machine.timers.Advance(ms);
    return Widget("ResetSettingPrg").position;
  }
};

TEST_F(Preferences, EachItemOfTheTreeLeadsToItsPageWhichStaysWhileTheyAreClosed) {
  Run([&] {
    OpenPreferences();
    EXPECT_EQ(User().Focused(), "TreeItems");
    EXPECT_TRUE(Widget("General").OnScreen() && Widget("TreeItems").index == 0);
    // A heading, or an item without a page, leaves the one before.
    std::string pages;
    const auto& tree = Widget("TreeItems");
    for (std::size_t i = 0; i < tree.items.size(); ++i) {
      User().Choose("TreeItems", static_cast<int>(i));
      pages += (tree.levels[i] == 0 ? "; " : ", ") + tree.items[i] + ":";
      for (const toolkit::Control* page : Pages()) {
        const std::string& name = page->Name();
        if (User().Exists(name) && Widget(name).OnScreen()) pages += name;
      }
    }
    EXPECT_EQ(pages,
              "; General:General; Graph:General, Graph Colors:GraphColors, Graph Grids:GraphGrids, "
              "Graph Other:GraphOthers; Numeric:GraphOthers, Numeric Colors:TextColors, "
              "Numeric Other:TextOther; Alerts:TextOther, Notifications:Notification, "
              "Bandwidth Alerts:BandwidthAlert; Interfaces:Interfaces; Admin:Admin; Other:Other; "
              "Speed Up:SpeedUp; Brisanto Script:SpeedUp; Speed Up:SpeedUp; "
              "Reset Settings:ResetSettings");
    const auto* form = &Widget(kForm);
    User().Press("btnClose");
    EXPECT_FALSE(form->visible);
    OpenPreferences();
    EXPECT_EQ(&Widget(kForm), form) << "another one was made";
    EXPECT_TRUE(Widget("ResetSettings").OnScreen());
    Choose("DL-UL Statistics");
    User().Choose("PageControl1", 4);
    User().Press("Label1");
    EXPECT_TRUE(Widget("BandwidthAlert").OnScreen()) << "the link of the statistics";
  });
}

TEST_F(Preferences, EveryPageIsLaidOutInEveryLanguageAndEveryControlHasAHint) {
  for (const std::string language : {"German", "French", "Spanish", "Turkish", "Japanese"}) {
    machine.files.PutBesideProgram(
        "Languages\\" + language + ".lng",
        test::ReadFile(SOURCE_FOLDER "/assets/Languages/" + language + ".lng"));
  }
  std::string told;
  const std::function<void(toolkit::Control&)> check = [&](toolkit::Control& control) {
    for (toolkit::Control* child : control.Children()) check(*child);
    if (!User().Exists(control.Name())) return;
    const auto& widget = Widget(control.Name());
    const bool takes_keys = control.Role() != toolkit::KeyRole::kNone;
    const bool is_text = widget.kind == platform::memory::WidgetState::Kind::kText;
    if (is_text && widget.text.empty()) told += control.Name() + " says nothing\n";
    if (takes_keys && control.Hint().empty()) told += control.Name() + " has no hint\n";
    if (takes_keys && widget.events->Describe().name.empty())
      told += control.Name() + " has no name\n";
    const auto* spin = dynamic_cast<const toolkit::SpinEdit*>(&control);
    if (spin == nullptr) return;
    told += spin->Name() + " " + std::to_string(spin->Lowest()) + ".." +
            std::to_string(spin->Highest()) + "/" + std::to_string(spin->StepSize()) + "\n";
  };
  RunOpen("General", [&] {
    SeeEveryPage();
    ASSERT_EQ(Widget("cmbLanguage").items.size(), 6U);
    for (int i = 0; i < 6; ++i) {
      SCOPED_TRACE(Widget("cmbLanguage").items[static_cast<std::size_t>(i)]);
      User().Choose("cmbLanguage", i);
      EXPECT_EQ(test::LayoutFaults(*Find(kForm)), std::vector<std::string>());
    }
    check(*Find(kForm));
    EXPECT_EQ("\n" + told, R"(
TreeItems has no hint
vLineSpace 0..1000/1
hLineSpace 0..1000/1
BevelWidth 0..20/1
BorderWidth 0..20/1
PulseSpace 0..50/1
PulseWidth 1..50/1
CustomScale 1024..2100000000/1024
MoreThan 1..2100000000/1
BytesSpin 0..2100000000/1000
BytesSec 1..86400/1
TickerSpin 1000..10000000/1000
spnKeyLedsLimit -2147483648..2147483647/1000
)");
  });
}

// Which value is of which group is written in docs/settings.md.
TEST_F(Preferences, EachGroupOfTheResetWritesItsValuesAndNoOthers) {
  // A box of the page, a value that it writes, and how many.
  static constexpr std::tuple<const char*, const char*, std::size_t> kRows[] = {
      {"R1", "FormMagnet", 6},  {"R2", "IconType", 11},    {"R3", "vLineSpace", 8},
      {"R4", "BevelInner", 9},  {"R5", "FontName", 3},     {"R6", "SOM1", 9},
      {"R7", "BAAction", 12},   {"R8", "LessNotSecs", 20}, {"R9", "AskOnExit", 4},
      {"R10", "CurrentDay", 6}, {"R11", "CurrentWeek", 6}, {"R12", "CurrentMonth", 6},
  };
  RunOpen("Reset Settings", [&] {
    for (const auto& [box, of_them, values] : kRows) {
      SCOPED_TRACE(box);
      UpsetAll();
      std::set<std::string> written;
      machine.notebook.on_registry_write = [&](std::string_view name) { written.emplace(name); };
      Reset({box});
      machine.notebook.on_registry_write = nullptr;
      EXPECT_EQ(written.size(), values);
      EXPECT_TRUE(written.contains(of_them));
      ProgressAfter(600);
      EXPECT_FALSE(Widget(box).checked);
    }
  });
}

TEST_F(Preferences, TheResetWritesDefaultsOfItsOwnAndTheMeterTakesThem) {
  RunOpen("Reset Settings", [&] {
    machine.clock.SetNow(platform::EncodeDateTime(2024, 12, 29, 20, 0, 0));
    UpsetAll();
    Set("GraphScaleType", 14);
    User().Press("btnClose");
    OpenPreferences();
    Parts().SpeedCap = 4711;
    Parts().graph.Set(&display::GraphLook::SpeedLimit, std::int64_t{4711});
    User().Press("SelectAll");
    User().Press("R12");
    EXPECT_FALSE(Widget("SelectAll").checked) << "not all are";
    Reset({"R12"});
    EXPECT_EQ(Stored("MoreThan"), 10U);
    EXPECT_EQ(StoredText("LessPlayWavFile"), machine.files.ProgramFolder() + "Warning.wav");
    EXPECT_EQ(StoredText("GraphColor_Background"), "clBtnFace");
    EXPECT_EQ(Stored("GraphScaleType"), 14U) << "the scale is in no group";
    EXPECT_EQ(Parts().SpeedCap, 4711);
    EXPECT_EQ(Parts().graph.Look().SpeedLimit, 4711);
    EXPECT_EQ(store.ReadDate("CurrentDay", 0), platform::EncodeDate(2024, 12, 29));
    EXPECT_EQ(Stored("CurrentWeek"), 52U) << "a Sunday, in the evening too";
    EXPECT_EQ(Stored("CurrentMonth"), 12U);
    EXPECT_EQ(StoredText("CurrentWeekMaxUL"), "0");
    SeeEveryPage();
    EXPECT_EQ(Widget("AvarageTrackBar").position, 5);
    EXPECT_EQ(Widget("UploadColor").background, 0xFF0000U);
    EXPECT_EQ(Line(), "[ Average DL:0,0 kB  UL:0,0 kB ]") << "two blanks";
  });
}

TEST_F(Preferences, TheProgressOfTheResetLetsTheWindowBeUsedAndClosed) {
  RunOpen("Reset Settings", [&] {
    const StoredValues before = AllValues();
    Reset({});
    EXPECT_EQ(ChangesSince(before), "") << "no group was chosen";
    EXPECT_FALSE(Widget("btnResetSettings").enabled);
    EXPECT_EQ(ProgressAfter(5), 1);
    User().Press("R3");
    User().Press("btnClose");
    EXPECT_EQ(ProgressAfter(245), 50);
    OpenPreferences();
    EXPECT_EQ(ProgressAfter(250), 100);
    EXPECT_EQ(ProgressAfter(5), 0);
    EXPECT_TRUE(Widget("btnResetSettings").enabled);
    EXPECT_FALSE(Widget("R3").checked);
    User().Press("R3");
    ProgressAfter(5);
    EXPECT_TRUE(Widget("R3").checked) << "the timer has ended";
    Reset({});  // and the end of the program comes in the middle of it
  });
}

}  // namespace
