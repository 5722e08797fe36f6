#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "tests/settings/preferences/preferences_world.h"

namespace {

using platform::memory::RegistryValue;

class PreferenceOptions : public test::PreferencesTest {
 protected:
  display::RunningMeter Meter() { return Window().Parts(); }

  // What the user does on a page, and what comes of it.
  struct Row {
    const char* why;
    const char* page;
    std::function<void()> act;
    const char* name;
    RegistryValue value;
    std::function<bool()> shows;  // in the running meter; empty for what is read when it is used
  };

  void Check(const std::vector<Row>& rows) {
    RunOpen([&] {
      for (const Row& row : rows) {
        SCOPED_TRACE(row.why);
        ChoosePage(row.page);
        const Values before = AllValues();
        row.act();
        const Values expected{{InSettings(row.name), Bytes(row.value)}};
        EXPECT_EQ(Changes(before, AllValues()), expected);
        EXPECT_TRUE(!row.shows || row.shows()) << "in the meter";
      }
    });
  }

  static RegistryValue Number(std::uint32_t number) { return RegistryValue::Dword(number); }
  std::function<void()> Press(const char* control) {
    return [this, control] { User().Press(control); };
  }
};

TEST_F(PreferenceOptions, WorkedOnceEachWritesItsOneValueAndShowsInTheMeter) {
  Check({
      {"docking", "General", Press("chkScreenDocking"), "FormMagnet", Number(0),
       [&] { return !Meter().magnet.Active; }},
      {"icon mode", "General", Press("chkStartIconMode"), "StartIconMode", Number(1), {}},
      {"hints off", "General", Press("chkShowHints"), "ShowHints", Number(0),
       [&] { return Meter().hints.HidePause == 0; }},
      {"hints on", "General", Press("chkShowHints"), "ShowHints", Number(1),
       [&] { return Meter().hints.Pause == 0; }},
      {"without the system's Run key",
       "General",
       Press("chkLoadOnWindows"),
       "AutoStart",
       Number(1),
       {}},
      {"address", "General", Press("chkCopyIP"), "CopyIP", Number(1), {}},
      {"average", "General", [&] { User().Drag("AvarageTrackBar", 60); }, "AvarageTime", Number(60),
       [&] { return Widget("lblAvarageTime").text == "60"; }},
  });
}

TEST_F(PreferenceOptions, OpeningShowsWhatIsStoredAndChangesNoStoredValue) {
  struct Row {
    const char* name;
    RegistryValue value;
    std::function<bool()> shows;
    const char* why;
  };
  const Row rows[] = {
      {"FormMagnet", Number(0), [&] { return !Widget("chkScreenDocking").checked; }, ""},
      {"CopyIP", Number(5), [&] { return Widget("chkCopyIP").checked; }, "any number is true"},
      {"AvarageTime", Number(4000),
       [&] {
         return Widget("lblAvarageTime").text == "4000" && Widget("AvarageTrackBar").position == 60;
       },
       "beyond the bar"},
      {"AvarageTime", Number(4001), [&] { return Widget("lblAvarageTime").text == "4001"; },
       "the bar stays at its end"},
      {"Language", RegistryValue::Text("gone"), [&] { return Widget("cmbLanguage").index == 0; },
       "there is no such file"},
  };
  for (const bool again : {false, true}) {
    SCOPED_TRACE(again ? "opened before" : "opened for the first time");
    for (const Row& row : rows) {
      SCOPED_TRACE(std::string(row.name) + " " + row.why);
      RunOpen([&] {
        Close();
        if (!again) return;
        machine.registry.Set(test::kSettingsKey, row.name, row.value);
        const Values before = AllValues();
        Open();
        EXPECT_TRUE(row.shows());
        EXPECT_EQ(Changes(before, AllValues()), Values());
      });
      if (again) continue;
      machine.registry.Set(test::kSettingsKey, row.name, row.value);
      Run([&] {
        Window().SetPreferences(settings::preferences::PreferencesOf(App(), Window().Parts()));
        const Values before = AllValues();
        Open();
        EXPECT_TRUE(row.shows());
        Values changes = Changes(before, AllValues());
        EXPECT_EQ(changes, Values());
      });
    }
  }
}

TEST_F(PreferenceOptions, AutostartFollowsItsBoxAlsoWhenTheBoxFollowsTheStore) {
  constexpr std::string_view kRun = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";
  machine.registry.Set(kRun, "other", RegistryValue::Text("other.exe"));
  RunOpen([&] {
    User().Press("chkLoadOnWindows");
    EXPECT_EQ(machine.registry.Text(kRun, "BrisantoXP"), machine.files.ProgramPath());
    Close();
    Set("AutoStart", 0);
    Open();
    EXPECT_EQ(machine.registry.Values(kRun), std::vector<std::string>{"other"});
    EXPECT_EQ(Stored("AutoStart"), 0U);
  });
}

TEST_F(PreferenceOptions, AnotherLanguageCountsAtOnceInAllWindows) {
  machine.files.PutBesideProgram("Languages\\Pirate.lng",
                                 "[MainForm]\nS1=Booty\n[SettingsForm]\nTitle=Rigging\n"
                                 "chkShowHints=Parrot\nTreeItem0=Captain\n");
  RunOpen([&] {
    EXPECT_EQ(Widget("cmbLanguage").items, (std::vector<std::string>{"English", "Pirate"}));
    User().Choose("cmbLanguage", 1);
    EXPECT_EQ(StoredText("Language"), "Pirate");
    EXPECT_EQ(Line(), "[ Booty DL:0,0 kB UL:0,0 kB ]");
    EXPECT_EQ(Widget(kForm).text, "Rigging");
    EXPECT_EQ(Widget("chkShowHints").text, "Parrot");
    EXPECT_EQ(Widget("TreeItems").items[0], "Captain");
    EXPECT_EQ(Widget("TreeItems").index, 0);
    // A file that came while the window was closed.
    Close();
    machine.files.PutBesideProgram("Languages\\Aaa.lng", "");
    Open();
    EXPECT_EQ(Widget("cmbLanguage").items.size(), 3U);
    EXPECT_EQ(Widget("cmbLanguage").text, "Pirate");
  });
}

}  // namespace
