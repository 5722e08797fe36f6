// Every option of the preferences: the value that it stores, and what it does to the running meter.
#include "tests/meter.h"

namespace {

using platform::Key;

class Options : public test::Meter {
 protected:
  using Act = std::function<void()>;
  using Looks = std::map<std::string, std::string>;
  struct Row {
    Act act;
    std::string changes;  // the values that are other ones then, and what looks different; no more
  };

  void Check(const char* page, const std::vector<Row>& rows) {
    ChoosePage(page);
    for (const Row& row : rows) {
      SCOPED_TRACE(std::string(page) + ": " + row.changes);
      machine.system_dialogs.file_requests.clear();
      machine.sound.played.clear();
      const StoredValues stored = AllValues();
      const Looks look = Look();
      row.act();
      std::string changes = ChangesSince(stored);
      for (const auto& [part, now] : Look()) {
        if (now == look.at(part)) continue;
        changes += (changes.empty() ? "" : " ") + part;
        if (now.size() < 100) changes += "=" + now;
      }
      EXPECT_EQ(changes, row.changes);
    }
  }
  // Pages that were not seen have no controls.
  std::string Text(const char* name) { return User().Exists(name) ? Widget(name).text : ""; }
  std::string State(const char* name) {
    if (!User().Exists(name)) return "";
    return !Widget(name).visible ? " hidden" : Widget(name).enabled ? " on" : " off";
  }
  // Where a dialog for a file begins; the program's own folder is a dot.
  std::string Folder() {
    const auto& asked = machine.system_dialogs.file_requests;
    const std::string& own = machine.files.ProgramFolder();
    if (asked.empty()) return "";
    const std::string& folder = asked.back().folder;
    return folder.starts_with(own) ? ".\\" + folder.substr(own.size()) : folder;
  }
  // What the user sees of the meter and of the page, part by part, and hears.
  Looks Look() {
    const auto picture = [](const platform::memory::Raster& raster) {
      const auto pixels = Pixels(raster);
      return std::string(pixels.begin(), pixels.end());  // the lowest byte tells the colours apart
    };
    const display::GraphLook& look = Parts().graph.Look();
    const auto& line = Widget("_tlkDLULMeter");
    return {
        {"graph", picture(*Graph())},
        {"tray", picture(*machine.notification_area.Picture())},
        {"line", Line()},
        {"ink", std::to_string(line.text_colour)},
        {"paper", std::to_string(line.background)},
        {"font", line.font.face},
        {"alpha", std::to_string(Widget("T_frmBrisanto").alpha.value_or(0))},
        {"docks", Parts().magnet.Active ? "yes" : "no"},
        {"hints",
         std::to_string(Parts().hints.Pause) + "/" + std::to_string(Parts().hints.HidePause)},
        {"scale", look.AutoScale ? "auto" : std::to_string(look.SpeedLimit)},
        {"cap", std::to_string(Parts().SpeedCap)},
        {"played", machine.sound.played.empty() ? "" : machine.sound.played.back()},
        {"folder", Folder()},
        {"panel", User().Exists("FontColor") ? std::to_string(Widget("FontColor").background) : ""},
        {"average", Text("lblAvarageTime")},
        {"custom", Text("CustomScale") + State("CustomScale")},
        {"sound", State("BaPlayFile") + State("BaSpeedbtn") + State("BaSpeedbtn2")},
        {"message", State("BaMessage")},
        {"notice", State("DisplayMessage")},
        {"says", Text("lblBaOutcome")}};
  }

  Act Press(const char* control) {
    return [this, control] { User().Press(control); };
  }
  Act Up(const char* spin) {
    return [this, spin] { User().PressKey(spin, Key::kUp); };
  }
  Act Select(const char* list, int row) {
    return [this, list, row] { User().Choose(list, row); };
  }
  Act Slide(const char* bar, int to) {
    return [this, bar, to] { User().Drag(bar, to); };
  }
  Act Enter(const char* edit, std::string_view text) {
    return [this, edit, text] {
      Widget(edit).all_selected = true;
      User().Type(edit, text);
    };
  }
  // The user chooses a colour in the system's dialog, or a file in the one that the button opens.
  Act Colour(const std::string& panel, platform::Colour colour) {
    return [this, panel, colour] {
      Then([this] { User().Press("btnMoreColors"); });
      Then([this, colour] { machine.system_dialogs.Choose(colour); });
      User().Press(panel);
    };
  }
  Act File(const char* button, const char* path) {
    return [this, button, path] {
      Then([this, path] { machine.system_dialogs.Choose(std::string(path)); });
      User().Press(button);
      const auto& asked = machine.system_dialogs.file_requests.back();
      EXPECT_TRUE(!asked.title.empty() && asked.kinds.size() == 2);
      for (const auto& kind : asked.kinds) EXPECT_FALSE(kind.name.starts_with(' ')) << kind.mask;
    };
  }
};

TEST_F(Options, WorkedOnceStoreTheirValueAndShowInTheMeter) {
  Set("Transparent2k", 1);
  machine.files.PutBesideProgram("Icons\\default.bmp",
                                 test::ReadFile(SOURCE_FOLDER "/assets/Icons/default.bmp"));
  std::string other = *machine.files.BytesBesideProgram("Icons\\default.bmp");
  for (std::size_t at = other.size() / 2; at < other.size(); ++at) other[at] ^= 7;
  machine.files.Put("C:\\t.bmp", other);
  RunOpen("General", [&] {
    Scan({100000, 90000});
    Scan({90000, 100000});
    Check("General", {{Press("chkScreenDocking"), "FormMagnet=0 docks=no"},
                      {Press("chkStartIconMode"), "StartIconMode=1"},
                      {Press("chkShowHints"), "ShowHints=0 hints=100000000/0"},
                      {Press("chkShowHints"), "ShowHints=1 hints=0/1000000000"},
                      {Press("chkLoadOnWindows"), "AutoStart=1"},  // the system's key is not there
                      {Press("chkCopyIP"), "CopyIP=1"},
                      {Slide("AvarageTrackBar", 60), "AvarageTime=60 average=60"}});
    platform::Colour colour = 0;
    for (const std::string name : {"Download", "DownloadLight", "DownloadShadow", "Upload",
                                   "UploadLight", "UploadShadow", "Background", "Border"}) {
      const std::string stored = "GraphColor_" + name + "=\"$0000000" + std::to_string(++colour);
      Check("Graph Colors", {{Colour(name + "Color", colour), stored + "\" graph"}});
    }
    Check(
        "Graph Colors",
        {{Colour("HisRecColor", 9), "GraphColor_HistogramReceiving=\"$00000009\" tray"},
         {Colour("HisSendColor", 10), "GraphColor_HistogramSend=\"$0000000A\" tray"},
         {File("ImagesTrayIcon", "C:\\u.bmp"), "TrayIconFile=\"C:\\u.bmp\" folder=.\\Icons"},
         {Press("Ic3"), "IconType=2 tray"},
         {Press("Ic2"), "IconType=1 tray"},
         {Press("Ic1"), "IconType=0 tray"},
         {File("ImagesTrayIcon", "C:\\t.bmp"), "TrayIconFile=\"C:\\t.bmp\" folder=.\\Icons tray"}});
    Check("Graph Grids", {{Select("cmbVLineStyle", 0), "cmbVLineStyle=0 graph"},
                          {Up("vLineSpace"), "vLineSpace=61 graph"},
                          {Colour("vLineColor", 0x929394), "vLineColor=\"$00929394\" graph"},
                          {Press("vGridsVisibleCheckBox"), "vGridVisible=0 graph"},
                          {Press("hGridsVisibleCheckBox"), "hGridVisible=1 graph"},
                          {Select("cmbHLineStyle", 1), "cmbHLineStyle=1 graph"},
                          {Up("hLineSpace"), "hLineSpace=26 graph"},
                          {Colour("hLineColor", 0xA3A4A5), "hLineColor=\"$00A3A4A5\" graph"}});
    Check("Graph Other",
          {{Select("BevelInner", 0), "BevelInner=0 graph"},
           {Select("BevelOuter", 2), "BevelOuter=2 graph"},
           {Up("BevelWidth"), "BevelWidth=2 graph"},
           {Up("BorderWidth"), "BorderWidth=2 graph"},
           {Press("chkScaleActive"), "ScaleShow=0 graph"},
           {Press("chkZeroBased"), "ZeroBased=1 graph"},
           {Press("chk3dGraph"), "Pulse3D=0 graph"},
           {Up("PulseSpace"), "PulseSpace=1 graph"},
           {Up("PulseWidth"), "PulseWidth=4 graph"},
           {Select("ScaleCombo", 14), "GraphScaleType=14 cap=5929500 graph scale=5929500"},
           {Select("ScaleCombo", 16), "GraphScaleType=16 cap=128 custom=1024 on graph scale=128"},
           {Up("CustomScale"), "SpeedLimit=256 cap=256 custom=2048 on scale=256"},
           {Select("ScaleCombo", 0), "GraphScaleType=0 cap=0 custom=2048 off graph scale=auto"}});
    Check("Numeric Colors",
          {{Colour("FontColor", 11), "GraphColor_Font=\"$0000000B\" ink=11 panel=11"},
           {Colour("FontBackground", 12), "GraphColor_FontBackground=\"$0000000C\" paper=12"},
           {Select("FontChoose", 1), "FontName=\"Courier New\" FontNameIndex=1 font=Courier New"}});
    Check("Numeric Other",
          {{Press("chkTariffName"),
            "SOM1=1 line=[ DL:0,0 kB UL:0,0 kB ][ Average DL:0,0 kB UL:0,0 kB ]"},
           {Press("chkConnLength"), "SOM2=0 line=[ DL:0,0 kB UL:0,0 kB ]"},
           {Press("rdoScaleUnits1"), "ScaleUnit=1 graph line=[ DL:0,0 kbit UL:0,0 kbit ]"},
           {Press("chkTotalCost"),
            "SOM3=1 line=[ DL:0,0 kbit UL:0,0 kbit ][ Max DL:0,0 kbits Max UL:0,0 kbits ]"},
           {Press("chkTariffName"), "SOM1=0 line=[ Max DL:0,0 kbits Max UL:0,0 kbits ]"},
           {Press("chkTotalCost"), "SOM3=0 line=Korvane Tremolux"},
           {Press("Post3"), "WindowTitle=3"},
           {Press("Post2"), "WindowTitle=2"},
           {Press("Post1"), "WindowTitle=1"},
           {Press("Post0"), "WindowTitle=0"}});
    Then([&] { User().Press("OkBtn"); });
    User().Press("DefineButton");
    Check("Other",
          {{Slide("Win2kTransTrack", 100), "Win2kTransparentRatio=100 alpha=100"},
           {[&] { User().PointAt("_tlkInterMeter"); }, "alpha=255"},
           {Press("AutoTransparentONOFF"), "AutoTransparentONOFF=0 alpha=100"},
           {Press("AutoTransparentONOFF"), "AutoTransparentONOFF=1 alpha=255"},
           {Slide("Win2kTransTrack", 101), "Win2kTransparentRatio=101"},
           {[&] { User().PointAway(); }, "alpha=101"},
           {Press("AutoTransparentONOFF"), "AutoTransparentONOFF=0"},
           {Press("AutoTransparentONOFF"), "AutoTransparentONOFF=1"},
           {Press("TransparentFade"), "TransparentFade=1"},
           {Press("AskOnExit"), "AskOnExit=0"},
           {Press("DLSwitchScr"), "DLSwitchScr=1"},
           {Press("ULSwitchNum"), "ULSwitchNum=1"},
           {[&] { User().PressKey("spnKeyLedsLimit", Key::kDown); }, "spnKeyLedsLimit=-1000"}});
  });
}

TEST_F(Options, TellWhetherTheOpacityCountsWhenTheKeySwitchesIt) {
  RunOpen("Other", [&] {
    machine.windowing.PointAt("Win2kTransTrack");
    machine.timers.Advance(10);
    EXPECT_TRUE(Widget("TremoluxHint").text.starts_with("Has no effect"));
    machine.hot_keys.Press({'D', false, true, true});
    EXPECT_EQ(Widget("TremoluxHint").text, "From invisible to opaque");
  });
}

TEST_F(Options, OfTheAlertsWorkedOnceStoreTheirValue) {
  RunOpen("General", [&] {
    ChoosePage("Bandwidth Alerts");
    EXPECT_EQ(Look().at("sound"), " off off off");
    EXPECT_EQ(Widget("mPerStartsOn").items.size(), 31U);
    EXPECT_EQ(Widget("mPerStartsOn").text, "2") << "the stored 1 is the second row";
    Check(
        "Bandwidth Alerts",
        {{Press("chkBAPlay"), "chkBAPlay=1"},
         {Press("BAAlertsCheckBox"),
          "BAAlerts=1 says=Never alerts: neither download nor upload counts. sound= on on on"},
         {Select("mPerStartsOn", 30), "mPerStartsOn=30"},
         {Select("wPerStartsOn", 7), "wPerStartsOn=7"},
         {Press("baUpload"), "baUpload=1 says=Alerts when the upload of a day reaches 1 kB."},
         {Up("MoreThan"), "MoreThan=2 says=Alerts when the upload of a day reaches 2 kB."},
         {Enter("MoreThan", "9999999999"),
          "MoreThan=999999999 says=Alerts when the upload of a day reaches 999999999 kB."},
         {Select("AlertsMoreThan", 2),
          "AlertsMoreThan=2 MoreThan=2100000000 says=Alerts when the upload of a day reaches "
          "2100000000 GB."},
         {Enter("MoreThan", "50"),
          "MoreThan=50 says=Alerts when the upload of a day reaches 50 GB."},
         {Press("baDownload"),
          "baDownload=1 says=Alerts when download and upload of a day reach 50 GB."},
         {Select("cmbDayWeekMonth", 2),
          "BADayWeekMonth=2 says=Alerts when download and upload of a month reach 50 GB."},
         {Press("baUpload"), "baUpload=0 says=Alerts when the download of a month reaches 50 GB."},
         {File("BaSpeedbtn", "C:\\s\\x.wav"), "BaPlayFile=\"C:\\s\\x.wav\" folder=.\\"},
         {File("BaSpeedbtn", "C:\\x.wav"), "BaPlayFile=\"C:\\x.wav\" folder=C:\\s\\"},
         {Press("BaSpeedbtn2"), "played=C:\\x.wav"},
         {Select("BaAction", 1), "BAAction=1 message= on"},
         {Enter("BaMessage", "Hi"), "BAMessage=\"Hi\""},
         {Select("BaAction", 3), "BAAction=3 message= hidden"},
         {Press("BAAlertsCheckBox"),
          "BAAlerts=0 says=Never alerts: the bandwidth alert is not active. sound= off off off"}});
    ChoosePage("Notifications");
    for (const std::string rule : {"Less", "More"}) {
      if (rule == "More")
        Check("Notifications", {{Select("LessOrMore", 1), "LessOrMore=1 notice= hidden"}});
      EXPECT_EQ(Widget("BytesSpin").text, "5000");
      EXPECT_FALSE(Widget("PlayEnabled").checked);
      Check("Notifications",
            {{Press("PlayEnabled"), rule + "IsPlay=1"},
             {File("PlayOpenBtn", "C:\\y.wav"), rule + "PlayWavFile=\"C:\\y.wav\" folder=.\\"},
             {Press("PlayPreview"), "played=C:\\y.wav"},
             {Up("BytesSpin"), rule + "ByteWere=6000"},
             {Press("WhenDownload"), rule + "Downloaded=1"},
             {Press("WhenUpload"), rule + "Uploaded=1"},
             {Up("BytesSec"), rule + "NotSecs=61"},
             {Select("ActionComboBox", 1), rule + "Action=1 notice= on"},
             {Enter("DisplayMessage", "\xC3\x84h"), rule + "DisplayMessage=\"\xC3\x84h\""}});
    }
    Check("Notifications",
          {{Press("NotificationsCheckBox"), "NotificationsActive=1"},
           {Press("TickerCheckBox"), "TickerActive=1"},
           {Up("TickerSpin"), "TickerBytes=2000"},
           {File("TickerOpenWav", "C:\\t.wav"), "TickerWav=\"C:\\t.wav\" folder=.\\"},
           {Press("TickerPlayWav"), "played=C:\\t.wav"},
           {[&] {
              Set("LessOrMore", 0);  // by another program
              User().PressKey("BytesSec", Key::kUp);
            },
            "LessNotSecs=62 LessOrMore=0"}});
    toolkit::Timer& timer = Parts().notifications.TimeOutTimer;
    Scan({1, 1});
    EXPECT_TRUE(timer.Enabled());
    User().Press("NotificationsCheckBox");
    EXPECT_FALSE(timer.Enabled()) << "at once";
  });
}

}  // namespace
