// What the preferences show of what is stored, and the languages, lock and titles on their pages.
#include "tests/meter.h"

namespace {

using namespace std::string_literals;
using Strings = std::vector<std::string>;

class Reading : public test::Meter {
 protected:
  void Close() { User().Press("btnClose"); }
  static RegistryValue Number(std::uint32_t number) { return RegistryValue::Dword(number); }
  static RegistryValue Text(std::string_view text) { return RegistryValue::Text(text); }
  // What a control shows: its text, the row of a list, the place of a slider, a tick, a colour.
  std::string Shown(const char* name) {
    using Kind = platform::memory::WidgetState::Kind;
    const auto& widget = Widget(name);
    if (widget.kind == Kind::kList) return "#" + std::to_string(widget.index) + " " + widget.text;
    if (widget.kind == Kind::kTrackBar) return std::to_string(widget.position);
    if (widget.IsButton(platform::ButtonKind::kPainted)) return std::to_string(widget.background);
    if (widget.kind == Kind::kButton) return widget.checked ? "on" : "off";
    return widget.text;
  }
};

TEST_F(Reading, ShowsWhatIsStoredAndChangesNoStoredValue) {
  const std::string long_path = "C:\\" + std::string(397, 'x');
  const std::string long_text(300, 'm');
  struct Row {
    const char* name;
    RegistryValue value;
    const char* control;
    std::string shows;
    std::string keeps = "";  // what it showed before, where that is not `shows`
  };
  const std::vector<Row> kRounds[] = {
      {{"GraphScaleType", Number(99), "ScaleCombo", "#-1 ", "#0 Auto Scale"},
       {"BevelInner", Number(99), "BevelInner", "#-1 ", "#1 None"},
       {"cmbVLineStyle", Number(5), "cmbVLineStyle", "#2 Dots"},
       {"BAAction", Number(99), "BaAction", "#-1 ", "#0 No action"},
       {"AlertsMoreThan", Number(3), "AlertsMoreThan", "#-1 ", "#0 Kilobytes"},
       {"LessOrMore", Number(99), "LessOrMore", "#1 When more than"},
       {"PulseWidth", Number(0), "PulseWidth", "0"},
       {"BevelWidth", Number(0xFFFFFFFB), "BevelWidth", "-5"},
       {"SpeedLimit", Number(999999999), "CustomScale", "7999999992"},
       {"Win2kTransparentRatio", Number(4000), "Win2kTransTrack", "255"},
       {"Win2kTransparentRatio", Number(4000), "lblWin2kTransTrack", "&Opacity: 100 %"},
       {"AvarageTime", Number(4001), "lblAvarageTime", "4001"},
       {"AvarageTime", Number(4001), "AvarageTrackBar", "60"},
       {"MoreThan", Number(0), "MoreThan", "0"},
       {"TickerBytes", Number(5), "TickerSpin", "5"},
       {"FormMagnet", Number(0), "chkScreenDocking", "off"},
       {"CopyIP", Number(5), "chkCopyIP", "on"},
       {"GraphColor_Upload", Text("$ff"), "UploadColor", "255"},
       {"FontName", Text("COURIER new"), "FontChoose", "#1 Courier New"},
       {"Language", Text("gone"), "cmbLanguage", "#0 English"},
       {"BaPlayFile", Text(long_path), "BaPlayFile", long_path},
       {"MoreDisplayMessage", Text(long_text), "DisplayMessage", long_text}},
      {{"cmbVLineStyle", Number(4), "cmbVLineStyle", "#4 Dash Dot Dot"},
       {"Win2kTransparentRatio", Number(4), "lblWin2kTransTrack", "&Opacity: 2 %"},
       {"FontName", Text("No Such Font"), "FontChoose", "#4 No Such Font"}}};
  for (const std::vector<Row>& rows : kRounds) {
    const auto plant = [&] {
      for (const Row& row : rows) machine.registry.Set(test::kSettingsKey, row.name, row.value);
    };
    for (const bool opened_before : {false, true}) {
      SCOPED_TRACE(opened_before ? "opened before" : "opened for the first time");
      if (!opened_before) plant();
      Run([&] {
        if (opened_before) OpenPreferences(), Close();
        plant();
        const StoredValues before = AllValues();
        OpenPreferences();
        SeeEveryPage();
        for (const Row& row : rows) {
          EXPECT_EQ(Shown(row.control), opened_before && !row.keeps.empty() ? row.keeps : row.shows)
              << row.name << " in " << row.control;
        }
        EXPECT_EQ(ChangesSince(before), "");
      });
      for (const Row& row : rows) machine.registry.Remove(test::kSettingsKey, row.name);
    }
  }
}

TEST_F(Reading, AMessageTakesSoManyCharactersAndTheOtherRuleItsOwnAction) {
  Set("LessAction", 1);
  Set("MoreAction", 4);
  RunOpen("Notifications", [&] {
    Widget("DisplayMessage").all_selected = true;
    User().Type("DisplayMessage", std::string(255, 'z'));
    EXPECT_EQ(StoredText("LessDisplayMessage"), std::string(254, 'z'));
    User().Choose("LessOrMore", 1);
    EXPECT_EQ(Widget("ActionComboBox").index, -1) << "no such row; the other's goes";
    EXPECT_FALSE(Widget("DisplayMessage").visible);
  });
}

TEST_F(Reading, TheStyleOfGridLinesIsReadWithTheLinesWhichAreShownAtOnce) {
  Set("Transparent", 1);
  Set("hLineSpace", 40);
  RunOpen("Graph Grids", [&] {
    Close();
    Set("hGridVisible", 0);
    Set("cmbHLineStyle", 0);
    Set("GraphColor_Upload", "$77");
    OpenPreferences();
    EXPECT_EQ(Parts().graph.Look().OutColor, 0x77U) << "what they show counts";
    EXPECT_EQ(Widget("cmbHLineStyle").index, 2);
    for (const bool shown : {true, false}) {
      User().Press("hGridsVisibleCheckBox");
      EXPECT_EQ(InShape({41, 41}), shown) << "of the see-through meter";
    }
    EXPECT_EQ(Widget("cmbHLineStyle").index, 0);
  });
}

TEST_F(Reading, AutostartFollowsItsBoxAlsoWhenTheBoxFollowsTheStore) {
  constexpr std::string_view kRun = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";
  machine.registry.Set(kRun, "other", Text("other.exe"));
  RunOpen("General", [&] {
    User().Press("chkLoadOnWindows");
    EXPECT_EQ(machine.registry.Text(kRun, "BrisantoXP"), machine.files.ProgramPath());
    Close();
    Set("AutoStart", 0);
    OpenPreferences();
    EXPECT_EQ(machine.registry.Values(kRun), Strings{"other"});
  });
}

TEST_F(Reading, AnotherLanguageCountsAtOnceInAllWindows) {
  machine.files.PutBesideProgram("Languages\\Pirate.lng",
                                 "[MainForm]\nS1=Booty\nS2=Peak\n_tlkInterMeter=Chart\n"
                                 "mnuAlwaysTopOn=Aloft\nTransparent1Hint=Spyglass\n"
                                 "[SettingsForm]\nTitle=Rigging\nLanguageName=Arrr\n"
                                 "chkShowHints=Parrot\nTreeItem0=Captain\n"
                                 "lblWin2kTransTrack=Sight\nAd5=Hatch\nS13=Trim\n");
  Set("SOM3", 1);
  Set("AvarageTime", 1);
  RunOpen("General", [&] {
    EXPECT_EQ(Widget("cmbLanguage").items, (Strings{"English", "Arrr"}));
    SeeEveryPage();
    User().Choose("cmbLanguage", 1);
    EXPECT_EQ(Widget("lblWin2kTransTrack").text, "Sight 75 %");
    EXPECT_EQ(Line(), "[ Booty DL:0,0 kB UL:0,0 kB ][ Peak DL:0,0 kB Max UL:0,0 kB ]");
    EXPECT_EQ(Entry("Graph Transparency Options").hint, "Spyglass");
    EXPECT_TRUE(Entry("Aloft").checked);
    for (const auto& [name, text] : {std::pair{"_tlkInterMeter", "Chart"},
                                     {"T_frmPreferences", "Rigging"},
                                     {"LockBtn", "Hatch"},
                                     {"ScaleCombo", "Trim"},
                                     {"chkShowHints", "Parrot"}}) {
      EXPECT_EQ(Widget(name).text, text);
    }
    EXPECT_EQ(Widget("TreeItems").items[0], "Captain");
    for (int scans = 0; scans < 2; ++scans) Scan({1024, 2048});
    EXPECT_EQ(Line(), "[ Booty DL:1 kB UL:2 kB ][ Max DL:1 kB Max UL:2 kB ]") << "a scan knows Max";
    const int loads = machine.files.loads;
    Scan({});
    EXPECT_EQ(machine.files.loads, loads) << "a scan reads no language file";
    machine.files.PutBesideProgram("Languages\\Pirate.lng",
                                   "[MainForm]\nmnuAlwaysTopOn=Aloft\n"
                                   "[SettingsForm]\nTitle=Sails\nLanguageName=Arrr\n");
    User().Choose("cmbLanguage", 1);
    EXPECT_EQ(Widget("T_frmPreferences").text, "Sails") << "chosen again, the edited file is read";
    EXPECT_EQ(Line(), "[ Average DL:1 kB UL:2 kB ][ Max DL:1 kB Max UL:2 kB ]");
    Set("SOM2", 0);
    Scan({1024, 2048});
    User().Choose("cmbLanguage", 1);
    EXPECT_EQ(Line() + ErrorLog(), "[ Max DL:1 kB Max UL:2 kB ]");
    Close();
    machine.files.PutBesideProgram("Languages\\Aaa.lng", "");  // came while they were closed
    OpenPreferences();
    EXPECT_EQ(Widget("cmbLanguage").items, (Strings{"English", "Aaa", "Arrr"}));
    EXPECT_EQ(Widget("cmbLanguage").text, "Arrr");
  });
  Run([&] { EXPECT_TRUE(Entry("Aloft").checked); });
}

TEST_F(Reading, TheLockIsPutOnWithTwoEqualPasswordsAndTakenOffWithOne) {
  const std::string long_one(200, '\x7E');
  RunOpen("Admin", [&] {
    // What the page says after a try, and whether the lock is on.
    const auto state = [&] {
      for (const char* verify : {"AdminVerifyPass", "lblAdminVerifyPass"}) {
        EXPECT_EQ(Widget(verify).visible, Widget("LockBtn").text == "Lock");
      }
      return Widget("CaseSensitive").text + (Stored("zdP1") == 1 ? " on" : " off");
    };
    const auto lock = [&](std::string_view one, std::string_view two) {
      User().Type("AdminPassword", one);
      User().Type("AdminVerifyPass", two);
      User().Press("LockBtn");
      EXPECT_EQ(Widget("AdminPassword").text + Widget("AdminVerifyPass").text, "");
      return state();
    };
    const auto open = [&](std::string_view password) {
      Widget("AdminPassword").all_selected = true;
      User().Type("AdminPassword", password);
      User().PressEnter("T_frmPreferences");
      return state();
    };
    const std::string again = "Enter your password again off";
    const std::string locked = "Brisanto Locked Now! on";
    const std::string opened = "Warning: Case Sensitive off";
    EXPECT_EQ(lock("a", "b"), again);
    EXPECT_EQ(User().Focused(), "AdminPassword");
    EXPECT_EQ(lock("", ""), again);
    EXPECT_EQ(machine.sound.beeps, 2);
    for (const std::string& password : {"Secret"s, long_one, "\xD0\xBF\xD0\xB0"s}) {
      EXPECT_EQ(lock(password, password), locked);
      EXPECT_EQ(StoredText("zdP"), password);
      EXPECT_EQ(open("secret"), locked);
      EXPECT_EQ(open(password), opened);
      EXPECT_EQ(StoredText("zdP"), password) << "it stays";
    }
    lock("x", "x");
    machine.registry.Remove(test::kSettingsKey, "zdP");
    EXPECT_EQ(open(""), locked);
    EXPECT_EQ(open("Quillmoth"), opened) << "the page alone knows another one";
    Set("zdP1", 1);  // by another program while a mismatch is typed
    EXPECT_EQ(lock("x", "y"), again);
    for (const char* edit : {"AdminPassword", "AdminVerifyPass"}) User().Type(edit, "z");
    Close();
    OpenPreferences();
    EXPECT_EQ(Widget("AdminPassword").text + Widget("AdminVerifyPass").text + state(), opened);
  });
}

}  // namespace
