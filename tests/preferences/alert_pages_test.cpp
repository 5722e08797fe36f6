// The pages BandwidthAlert, Notification, Interfaces and Admin.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "tests/preferences/preferences_world.h"

namespace {

using platform::memory::RegistryValue;

class AlertPages : public test::PreferencesTest {
 protected:
  // What the user does, and the values that are other ones then; no other value changes.
  struct Row {
    const char* why;
    std::function<void()> act;
    std::vector<std::pair<const char*, RegistryValue>> values;
    std::function<bool()> shows = {};
  };

  void Check(const char* page, const std::vector<Row>& rows) {
    ChoosePage(page);
    for (const Row& row : rows) {
      SCOPED_TRACE(row.why);
      const Values before = AllValues();
      row.act();
      Values expected;
      for (const auto& [name, value] : row.values) expected[InSettings(name)] = Bytes(value);
      EXPECT_EQ(Changes(before, AllValues()), expected);
      EXPECT_TRUE(!row.shows || row.shows());
    }
  }

  static RegistryValue Number(std::uint32_t number) { return RegistryValue::Dword(number); }
  static RegistryValue Text(std::string_view text) { return RegistryValue::Text(text); }
  std::function<void()> Press(const char* control) {
    return [this, control] { User().Press(control); };
  }
  std::function<void()> Up(const char* spin) {
    return [this, spin] { User().PressKey(spin, platform::Key::kUp); };
  }
  std::function<void()> Select(const char* list, int row) {
    return [this, list, row] { User().Choose(list, row); };
  }
  // The user chooses a file in the dialog that the button opens.
  std::function<void()> File(const char* button, const char* path) {
    return [this, button, path] {
      machine.message_loop.Then([this, path] { machine.system_dialogs.Choose(std::string(path)); });
      User().Press(button);
    };
  }
  // Whether the menu "Connection Sources" has a tick at an adapter.
  bool TickedInMenu(const char* adapter) {
    const auto sources = Entry("Connection Sources").children;
    const platform::MenuEntry* entry = platform::memory::Menus::Find(sources, adapter);
    return entry != nullptr && entry->checked;
  }
  void ChooseSource(const char* adapter) {
    machine.menus.user = [this, adapter](const auto& entries, auto&) {
      machine.menus.user = nullptr;
      const auto* sources = platform::memory::Menus::Find(entries, "Connection Sources");
      return platform::memory::Menus::Find(sources->children, adapter)->id;
    };
    User().RightClick("T_frmBrisanto");
  }
  void TypeNew(const char* edit, std::string_view text) {
    Widget(edit).all_selected = true;
    User().Type(edit, text);
  }
};

TEST_F(AlertPages, TheFootOfTheBandwidthAlertSaysWhatWillCome) {
  for (const char* on : {"baDownload", "baUpload"}) Set(on, 1);
  for (const char* last : {"AlertsMoreThan", "BADayWeekMonth"}) Set(last, 2);
  Set("BAAlerts", 0U);
  const auto says = [&] { return Widget("lblBaOutcome").text; };
  RunOpen([&] {
    ChoosePage("Bandwidth Alerts");
    EXPECT_EQ(says(), "Never alerts: the bandwidth alert is not active.");
    User().Press("BAAlertsCheckBox");
    EXPECT_EQ(says(), "Alerts when download and upload of a month reach 1 GB.");
    User().Press("baUpload");
    Select("cmbDayWeekMonth", 0)();
    TypeNew("MoreThan", "50");
    EXPECT_EQ(says(), "Alerts when the download of a day reaches 50 GB.");
    User().Press("baDownload");
    EXPECT_EQ(says(), "Never alerts: neither download nor upload counts.");
  });
}

TEST_F(AlertPages, OfTheBandwidthAlertEachControlWritesItsOneValue) {
  const auto plays = [this] {
    return Widget("BaPlayFile").enabled && Widget("BaSpeedbtn").enabled &&
           Widget("BaSpeedbtn2").enabled;
  };
  RunOpen([&] {
    ChoosePage("Bandwidth Alerts");
    EXPECT_EQ(Widget("mPerStartsOn").items.size(), 31U);
    EXPECT_EQ(Widget("mPerStartsOn").text, "2") << "the stored 1 is the second row";
    Check("Bandwidth Alerts",
          {{"play alone", Press("chkBAPlay"), {{"chkBAPlay", Number(1)}}, [&] { return !plays(); }},
           {"play and active", Press("BAAlertsCheckBox"), {{"BAAlerts", Number(1)}}, plays},
           {"month", Select("mPerStartsOn", 30), {{"mPerStartsOn", Number(30)}}},
           {"week", Select("wPerStartsOn", 7), {{"wPerStartsOn", Number(7)}}},
           {"limit", Up("MoreThan"), {{"MoreThan", Number(2)}}},
           {"limit, too much",
            [&] {
              TypeNew("MoreThan", "9999999999");
              User().Press("baUpload");
            },
            {{"MoreThan", Number(2100000000)}, {"baUpload", Number(1)}}},
           {"unit", Select("AlertsMoreThan", 2), {{"AlertsMoreThan", Number(2)}}},
           {"download", Press("baDownload"), {{"baDownload", Number(1)}}},
           {"period", Select("cmbDayWeekMonth", 1), {{"BADayWeekMonth", Number(1)}}},
           {"sound", File("BaSpeedbtn", "C:\\x.wav"), {{"BaPlayFile", Text("C:\\x.wav")}}},
           {"preview",
            Press("BaSpeedbtn2"),
            {},
            [&] { return machine.sound.played == std::vector<std::string>{"C:\\x.wav"}; }},
           {"message",
            Select("BaAction", 1),
            {{"BAAction", Number(1)}},
            [&] { return Widget("BaMessage").visible && Widget("lblBaMessage").visible; }},
           {"its text", [&] { User().Type("BaMessage", "Hi"); }, {{"BAMessage", Text("Hi")}}},
           {"the inert one",
            Select("BaAction", 3),
            {{"BAAction", Number(3)}},
            [&] { return !Widget("BaMessage").visible; }},
           {"no alert", Press("BAAlertsCheckBox"), {{"BAAlerts", Number(0)}}, [&] {
              return !plays();
            }}});
    EXPECT_EQ(machine.system_dialogs.file_requests.at(0).title, "Choose a Sound");
  });
}

TEST_F(AlertPages, OfTheRulesEachControlWritesIntoTheChosenOne) {
  RunOpen([&] {
    for (const std::string rule : {"Less", "More"}) {
      std::vector<std::string> names;
      for (const char* end : {"IsPlay", "PlayWavFile", "ByteWere", "Downloaded", "Uploaded",
                              "NotSecs", "Action", "DisplayMessage"}) {
        names.push_back(rule + end);
      }
      const auto name = [&names](std::size_t at) { return names[at].c_str(); };
      if (rule == "More") {
        Check("Notifications",
              {{"switch", Select("LessOrMore", 1), {{"LessOrMore", Number(1)}}, [&] {
                  return Widget("BytesSpin").text == "5000" && !Widget("DisplayMessage").visible &&
                         !Widget("PlayEnabled").checked &&
                         Widget("PlayWavFile").text.ends_with("\\warning.wav");
                }}});
      }
      Check("Notifications",
            {{"play", Press("PlayEnabled"), {{name(0), Number(1)}}},
             {"sound", File("PlayOpenBtn", "C:\\y.wav"), {{name(1), Text("C:\\y.wav")}}},
             {"preview",
              Press("PlayPreview"),
              {},
              [&] { return machine.sound.played.back() == "C:\\y.wav"; }},
             {"bytes", Up("BytesSpin"), {{name(2), Number(6000)}}},
             {"download", Press("WhenDownload"), {{name(3), Number(1)}}},
             {"upload", Press("WhenUpload"), {{name(4), Number(1)}}},
             {"seconds", Up("BytesSec"), {{name(5), Number(61)}}},
             {"action",
              Select("ActionComboBox", 1),
              {{name(6), Number(1)}},
              [&] { return Widget("DisplayMessage").visible; }},
             {"message",
              [&] { User().Type("DisplayMessage", "\xC3\x84h"); },
              {{name(7), Text("\xC3\x84h")}}}});
    }
    Check("Notifications",
          {{"active", Press("NotificationsCheckBox"), {{"NotificationsActive", Number(1)}}},
           {"ticker", Press("TickerCheckBox"), {{"TickerActive", Number(1)}}},
           {"its bytes", Up("TickerSpin"), {{"TickerBytes", Number(2000)}}},
           {"its sound", File("TickerOpenWav", "C:\\t.wav"), {{"TickerWav", Text("C:\\t.wav")}}},
           {"its preview",
            Press("TickerPlayWav"),
            {},
            [&] { return machine.sound.played.back() == "C:\\t.wav"; }},
           {"another program has chosen the other rule",
            [&] {
              Set("LessOrMore", 0);
              User().PressKey("BytesSec", platform::Key::kUp);
            },
            {{"LessOrMore", Number(0)}, {"LessNotSecs", Number(62)}}}});
    Scan({1, 1});
    EXPECT_TRUE(Window().Parts().options.Parts().notifications.TimeOutTimer.Enabled());
    User().Press("NotificationsCheckBox");
    EXPECT_FALSE(Window().Parts().options.Parts().notifications.TimeOutTimer.Enabled())
        << "at once";
  });
}

TEST_F(AlertPages, OddStoredValuesAreShownAndLeftAlone) {
  const std::string long_path = "C:\\" + std::string(397, 'x');
  const std::string long_text(300, 'm');
  RunOpen([&] {
    Close();
    Set("LessOrMore", 99);
    for (const char* list : {"BAAction", "AlertsMoreThan", "wPerStartsOn", "mPerStartsOn",
                             "BADayWeekMonth", "MoreAction"}) {
      Set(list, 99);
    }
    Set("MoreThan", 0);
    Set("TickerBytes", 5);
    Set("BaPlayFile", long_path);
    Set("MoreDisplayMessage", long_text);
    Set("MoreAction", 1);
    const Values before = AllValues();
    Open();
    SeeEveryPage();
    EXPECT_EQ(Changes(before, AllValues()), Values());
    EXPECT_EQ(Widget("LessOrMore").index, 1) << "every number but 0 is the second rule";
    EXPECT_EQ(Widget("MoreThan").text, "0");
    EXPECT_EQ(Widget("BaPlayFile").text, long_path);
    EXPECT_EQ(Widget("DisplayMessage").text, long_text);
    ChoosePage("Notifications");
    User().Type("DisplayMessage", "y");  // no more goes in
    EXPECT_EQ(Changes(before, AllValues()), Values());
    TypeNew("DisplayMessage", std::string(255, 'z'));
    EXPECT_EQ(StoredText("MoreDisplayMessage"), std::string(254, 'z'));
    Set("LessAction", 99);
    User().Choose("LessOrMore", 0);
    EXPECT_EQ(Widget("ActionComboBox").index, -1) << "the other rule's action";
    EXPECT_FALSE(Widget("DisplayMessage").visible);
    EXPECT_EQ(Stored("LessAction"), 99U);
  });
}

TEST_F(AlertPages, AnAdapterIsTickedUnderItsNameAndTheMenuFollows) {
  machine.interface_table.AddRow(platform::memory::MakeRow("Radio X", {1, 2, 3}, 900, 54000));
  machine.interface_table.AddRow(platform::memory::MakeRow("MS TCP Loopback interface"));
  RunOpen([&] {
    ChoosePage("Interfaces");
    auto& list = Widget("NIMListBox");
    EXPECT_EQ(list.items, (std::vector<std::string>{"Ethernet", "Radio X"}));
    EXPECT_TRUE(Widget("chkSelectALL").checked);
    EXPECT_EQ(list.index, 0) << "the data are of the first one until another is chosen";
    EXPECT_EQ(Widget("lblMTUValue").text, "1500");
    Check("Interfaces",
          {{"data",
            Select("NIMListBox", 1),
            {},
            [&] {
              return Widget("lblMacAddressValue").text == "01-02-03" &&
                     Widget("lblSpeedValue").text == "54000" && Widget("lblMTUValue").text == "900";
            }},
           {"untick",
            [&] { User().Tick("NIMListBox", 1); },
            {{"radio x", Number(0)}},
            [&] { return !TickedInMenu("Radio X") && !Widget("chkSelectALL").checked; }},
           {"all",
            Press("chkSelectALL"),
            {{"radio x", Number(1)}},
            [&] { return list.row_checks[1] && TickedInMenu("Radio X"); }},
           {"none",
            Press("chkSelectALL"),
            {{"ethernet", Number(0)}, {"radio x", Number(0)}},
            [&] { return !list.row_checks[0] && !TickedInMenu("Ethernet"); }},
           {"by the menu",
            [&] { ChooseSource("Ethernet"); },
            {{"ethernet", Number(1)}},
            [&] { return static_cast<bool>(list.row_checks[0]); }}});
    // The chosen one stays chosen when one before it goes, and its data go with it.
    machine.interface_table.RemoveRow(0);
    machine.timers.Advance(1000);
    EXPECT_EQ(list.items, std::vector<std::string>{"Radio X"});
    EXPECT_EQ(list.index, 0);
    EXPECT_FALSE(list.row_checks[0]);
    machine.interface_table.RemoveRow(0);
    machine.timers.Advance(1000);
    EXPECT_TRUE(list.items.empty());
    EXPECT_EQ(Widget("lblMTUValue").text, "");
    const Values before = AllValues();
    User().Press("chkSelectALL");
    EXPECT_EQ(Changes(before, AllValues()), Values());
  });
}

TEST_F(AlertPages, TheLockIsPutOnWithTwoEqualPasswordsAndTakenOffWithOne) {
  const std::string odd(200, '\x7E');
  RunOpen([&] {
    const auto try_lock = [this](std::string_view one, std::string_view two) {
      return [this, one, two] {
        User().Type("AdminPassword", one);
        User().Type("AdminVerifyPass", two);
        User().Press("LockBtn");
      };
    };
    const auto refused = [this] {
      return Widget("CaseSensitive").text == "Enter your password again" &&
             User().Focused() == "AdminPassword" && Widget("AdminPassword").text.empty() &&
             Widget("AdminVerifyPass").text.empty() && Widget("LockBtn").text == "Lock";
    };
    const auto locked = [this] {
      return Widget("CaseSensitive").text == "Brisanto Locked Now!" &&
             Widget("LockBtn").text == "Open" && !Widget("AdminVerifyPass").visible &&
             Widget("AdminPassword").text.empty();
    };
    const auto open = [this] {
      return Widget("CaseSensitive").text == "Warning: Case Sensitive" &&
             Widget("LockBtn").text == "Lock" && Widget("AdminVerifyPass").visible &&
             Widget("AdminPassword").text.empty();
    };
    const auto try_open = [this](std::string_view password) {
      return [this, password] {
        TypeNew("AdminPassword", password);
        User().PressEnter(kForm);
      };
    };
    Check("Admin", {{"two different ones", try_lock("a", "b"), {}, refused},
                    {"none", try_lock("", ""), {}, refused},
                    {"on",
                     try_lock("Secret", "Secret"),
                     {{"zdP", Text("Secret")}, {"zdP1", Number(1)}},
                     locked},
                    {"other capitals",
                     try_open("secret"),
                     {},
                     [&] { return Widget("LockBtn").text == "Open"; }},
                    {"off; the password stays", try_open("Secret"), {{"zdP1", Number(0)}}, open},
                    {"another script",
                     try_lock("\xD0\xBF\xD0\xB0", "\xD0\xBF\xD0\xB0"),
                     {{"zdP", Text("\xD0\xBF\xD0\xB0")}, {"zdP1", Number(1)}},
                     locked},
                    {"off again", try_open("\xD0\xBF\xD0\xB0"), {{"zdP1", Number(0)}}, open},
                    {"200 characters",
                     try_lock(odd, odd),
                     {{"zdP", Text(odd)}, {"zdP1", Number(1)}},
                     locked}});
    EXPECT_EQ(machine.sound.beeps, 2);
    // The password is gone: the page alone knows another one.
    machine.registry.Remove(test::kSettingsKey, "zdP");
    Check("Admin", {{"nothing", try_open(""), {}, [&] { return Widget("LockBtn").text == "Open"; }},
                    {"the one for that", try_open("Quillmoth"), {{"zdP1", Number(0)}}, open}});
    // Put on by another program while a mismatch is typed.
    Set("zdP1", 1);
    Check("Admin", {{"a mismatch", try_lock("x", "y"), {{"zdP1", Number(0)}}, refused}});
  });
}

}  // namespace
