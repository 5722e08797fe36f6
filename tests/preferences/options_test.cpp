#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "tests/preferences/preferences_world.h"

namespace {

using platform::memory::RegistryValue;

class PreferenceOptions : public test::PreferencesTest {
 protected:
  const display::MeterParts& Meter() { return Window().Parts().options.Parts(); }

  // What the user does on a page, and what comes of it.
  struct Row {
    const char* page;
    std::function<void()> act;
    std::vector<std::pair<const char*, RegistryValue>> values;  // that are other ones now
    std::function<bool()> shows;  // in the running meter; empty for what is read when it is used
  };

  void Check(const std::vector<Row>& rows) {
    for (const Row& row : rows) {
      SCOPED_TRACE(row.values[0].first);
      ChoosePage(row.page);
      const Values before = AllValues();
      row.act();
      Values expected;
      for (const auto& [name, value] : row.values) expected[InSettings(name)] = Bytes(value);
      EXPECT_EQ(Changes(before, AllValues()), expected);
      EXPECT_TRUE(!row.shows || row.shows()) << "in the meter";
    }
  }

  static RegistryValue Number(std::uint32_t number) { return RegistryValue::Dword(number); }
  static RegistryValue Text(const char* text) { return RegistryValue::Text(text); }
  std::function<void()> Press(const char* control) {
    return [this, control] { User().Press(control); };
  }
  std::function<void()> Up(const char* spin) {
    return [this, spin] { User().PressKey(spin, platform::Key::kUp); };
  }
  std::function<void()> Choose(const char* list, int row) {
    return [this, list, row] { User().Choose(list, row); };
  }
  // The user chooses a colour in the system's dialog.
  std::function<void()> Colour(const char* panel, platform::Colour colour) {
    return [this, panel, colour] {
      machine.message_loop.Then([this] { User().Press("btnMoreColors"); });
      machine.message_loop.Then([this, colour] { machine.system_dialogs.Choose(colour); });
      User().Press(panel);
    };
  }
  // The act also changes the picture of the graph.
  std::function<void()> Redrawn(std::function<void()> act) {
    return [this, act = std::move(act)] {
      const std::string before = Picture();
      act();
      EXPECT_NE(Picture(), before) << "the graph shows the same";
    };
  }
  std::string Picture() {
    const auto raster = Graph();
    const platform::Size size = raster->Extent();
    std::string picture;
    for (int y = 0; y < size.height; ++y) {
      for (int x = 0; x < size.width; ++x) picture += std::to_string(raster->Pixel({x, y})) + " ";
    }
    return picture;
  }
};

TEST_F(PreferenceOptions, OfGeneralWorkedOnceWriteTheirValueAndShowInTheMeter) {
  RunOpen([&] {
    Check({
        {"General",
         Press("chkScreenDocking"),
         {{"FormMagnet", Number(0)}},
         [&] { return !Meter().magnet.Active; }},
        {"General", Press("chkStartIconMode"), {{"StartIconMode", Number(1)}}, {}},
        {"General",
         Press("chkShowHints"),
         {{"ShowHints", Number(0)}},
         [&] { return Meter().hints.HidePause == 0; }},
        {"General",
         Press("chkShowHints"),
         {{"ShowHints", Number(1)}},
         [&] { return Meter().hints.Pause == 0; }},
        // Without the system's Run key nothing else is written.
        {"General", Press("chkLoadOnWindows"), {{"AutoStart", Number(1)}}, {}},
        {"General", Press("chkCopyIP"), {{"CopyIP", Number(1)}}, {}},
        {"General",
         [&] { User().Drag("AvarageTrackBar", 60); },
         {{"AvarageTime", Number(60)}},
         [&] { return Widget("lblAvarageTime").text == "60"; }},
    });
  });
}

TEST_F(PreferenceOptions, OfTheGraphWorkedOnceWriteTheirValueAndShowInTheMeter) {
  RunOpen([&] {
    Scan({100000, 90000});
    Scan({90000, 100000});
    const auto colour = [&](const char* panel, const char* name, platform::Colour chosen,
                            const char* text) {
      return Row{"Graph Colors", Redrawn(Colour(panel, chosen)), {{name, Text(text)}}, {}};
    };
    const auto grids = [&](std::function<void()> act, const char* name, RegistryValue value) {
      return Row{"Graph Grids", Redrawn(std::move(act)), {{name, std::move(value)}}, {}};
    };
    const auto others = [&](std::function<void()> act, const char* name, std::uint32_t value) {
      return Row{"Graph Other", Redrawn(std::move(act)), {{name, Number(value)}}, {}};
    };
    Check({
        colour("DownloadColor", "GraphColor_Download", 0x10E0A0, "$0010E0A0"),
        colour("DownloadLightColor", "GraphColor_DownloadLight", 0x20D0B0, "$0020D0B0"),
        colour("DownloadShadowColor", "GraphColor_DownloadShadow", 0x30C0C0, "$0030C0C0"),
        colour("UploadColor", "GraphColor_Upload", 0x40B0D0, "$0040B0D0"),
        colour("UploadLightColor", "GraphColor_UploadLight", 0x50A0E0, "$0050A0E0"),
        colour("UploadShadowColor", "GraphColor_UploadShadow", 0x6090F0, "$006090F0"),
        colour("BackgroundColor", "GraphColor_Background", 0x7080A1, "$007080A1"),
        colour("BorderColor", "GraphColor_Border", 0x8070B1, "$008070B1"),
        grids(Choose("cmbVLineStyle", 0), "cmbVLineStyle", Number(0)),
        grids(Up("vLineSpace"), "vLineSpace", Number(61)),
        grids(Colour("vLineColor", 0x929394), "vLineColor", Text("$00929394")),
        grids(Press("vGridsVisibleCheckBox"), "vGridVisible", Number(0)),
        grids(Press("hGridsVisibleCheckBox"), "hGridVisible", Number(1)),
        grids(Choose("cmbHLineStyle", 1), "cmbHLineStyle", Number(1)),
        grids(Up("hLineSpace"), "hLineSpace", Number(26)),
        grids(Colour("hLineColor", 0xA3A4A5), "hLineColor", Text("$00A3A4A5")),
        others(Choose("BevelInner", 0), "BevelInner", 0),
        others(Choose("BevelOuter", 2), "BevelOuter", 2),
        others(Up("BevelWidth"), "BevelWidth", 2),
        others(Up("BorderWidth"), "BorderWidth", 2),
        others(Press("chkScaleActive"), "ScaleShow", 0),
        others(Press("chkZeroBased"), "ZeroBased", 1),
        others(Press("chk3dGraph"), "Pulse3D", 0),
        others(Up("PulseSpace"), "PulseSpace", 1),
        others(Up("PulseWidth"), "PulseWidth", 4),
    });
  });
}

TEST_F(PreferenceOptions, TheCustomSpeedIsAnEighthOfWhatIsShownAndOutlastsAFixedOne) {
  RunOpen([&] {
    SeeEveryPage();
    EXPECT_FALSE(Widget("CustomScale").enabled);
    Check({
        {"Graph Other",
         Choose("ScaleCombo", 14),
         {{"GraphScaleType", Number(14)}},
         [&] {
           return !Meter().graph.Look().AutoScale && Meter().graph.Look().SpeedLimit == 5929500 &&
                  Meter().SpeedCap == 5929500;
         }},
        {"Graph Other",
         Choose("ScaleCombo", 16),
         {{"GraphScaleType", Number(16)}},
         [&] { return Meter().graph.Look().SpeedLimit == 128 && Widget("CustomScale").enabled; }},
        {"Graph Other",
         Up("CustomScale"),
         {{"SpeedLimit", Number(256)}},
         [&] { return Meter().graph.Look().SpeedLimit == 256 && Meter().SpeedCap == 256; }},
        {"Graph Other",
         Choose("ScaleCombo", 0),
         {{"GraphScaleType", Number(0)}},
         [&] {
           return Meter().graph.Look().AutoScale && Meter().SpeedCap == 0 &&
                  Widget("CustomScale").text == "2048";
         }},
    });
  });
}

TEST_F(PreferenceOptions, NeitherALookNorAResetChangesTheScaleOrTheCap) {
  Set("GraphScaleType", 16);
  Set("SpeedLimit", 128000);
  RunOpen([&] {
    EXPECT_EQ(Meter().graph.Look().SpeedLimit, 16000) << "as at the start";
    EXPECT_EQ(Meter().SpeedCap, 0) << "a fresh run has no cap";
    ChoosePage("Graph Other");
    User().PressKey("CustomScale", platform::Key::kUp);
    EXPECT_EQ(Meter().SpeedCap, 128128);
    ChoosePage("Reset Settings");
    User().Press("R3");
    User().Press("btnResetSettings");
    EXPECT_EQ(Meter().graph.Look().SpeedLimit, 128128);
    EXPECT_EQ(Meter().SpeedCap, 128128);
  });
}

TEST_F(PreferenceOptions, OfTheNumericLineWorkedOnceWriteTheirValueAndShowInTheMeter) {
  RunOpen([&] {
    Check({
        {"Numeric Colors",
         Colour("FontColor", 0xB4B5B6),
         {{"GraphColor_Font", Text("$00B4B5B6")}},
         [&] { return Widget("_tlkDLULMeter").text_colour == 0xB4B5B6U; }},
        {"Numeric Colors",
         Colour("FontBackground", 0xC5C6C7),
         {{"GraphColor_FontBackground", Text("$00C5C6C7")}},
         [&] { return Widget("_tlkDLULMeter").background == 0xC5C6C7U; }},
        {"Numeric Colors",
         Choose("FontChoose", 1),
         {{"FontName", Text("Courier New")}, {"FontNameIndex", Number(1)}},
         [&] { return Widget("_tlkDLULMeter").font.face == "Courier New"; }},
        {"Numeric Other",
         Press("chkTariffName"),
         {{"SOM1", Number(1)}},
         [&] { return Line() == "[ DL:0,0 kB UL:0,0 kB ][ Average DL:0,0 kB UL:0,0 kB ]"; }},
        {"Numeric Other",
         Press("chkConnLength"),
         {{"SOM2", Number(0)}},
         [&] { return Line() == "[ DL:0,0 kB UL:0,0 kB ]"; }},
        {"Numeric Other",
         Press("rdoScaleUnits1"),
         {{"ScaleUnit", Number(1)}},
         [&] { return Line() == "[ DL:0,0 kbit UL:0,0 kbit ]"; }},
        {"Numeric Other",
         Press("chkTotalCost"),
         {{"SOM3", Number(1)}},
         [&] {
           return Line() == "[ DL:0,0 kbit UL:0,0 kbit ][ Max DL:0,0 kbits Max UL:0,0 kbits ]";
         }},
        {"Numeric Other", Press("Post3"), {{"WindowTitle", Number(3)}}, {}},
        {"Numeric Other", Press("Post0"), {{"WindowTitle", Number(0)}}, {}},
    });
  });
}

TEST_F(PreferenceOptions, TellWhetherTheOpacityCountsWhenTheKeySwitchesIt) {
  RunOpen([&] {
    ChoosePage("Other");
    machine.windowing.PointAt("Win2kTransTrack");
    machine.timers.Advance(10);
    EXPECT_TRUE(Widget("TremoluxHint").text.starts_with("Has no effect"));
    machine.hot_keys.Press({'D', false, true, true});
    EXPECT_EQ(Widget("TremoluxHint").text, "From invisible to opaque");
  });
}

TEST_F(PreferenceOptions, OfTrayIconAndWindowWorkedOnceWriteTheirValueAndShowInTheMeter) {
  Set("Transparent2k", 1);
  std::ifstream icons(SOURCE_FOLDER "/assets/Icons/default.bmp", std::ios::binary);
  machine.files.PutBesideProgram("Icons\\default.bmp",
                                 std::string(std::istreambuf_iterator<char>(icons), {}));
  RunOpen([&] {
    Scan({5000, 800});  // so that the histogram is not the empty one
    const auto pictures = [&] { return machine.notification_area.picture_updates; };
    int before = 0;
    const auto pictured = [&](std::function<void()> act) {
      return [&, act = std::move(act)] {
        before = pictures();
        act();
      };
    };
    const auto other_picture = [&] { return pictures() > before; };
    Check({
        {"Graph Colors",
         pictured(Colour("HisRecColor", 0xD6D7D8)),
         {{"GraphColor_HistogramReceiving", Text("$00D6D7D8")}},
         other_picture},
        {"Graph Colors",
         pictured(Colour("HisSendColor", 0xE7E8E9)),
         {{"GraphColor_HistogramSend", Text("$00E7E8E9")}},
         other_picture},
        {"Graph Colors", pictured(Press("Ic3")), {{"IconType", Number(2)}}, other_picture},
        {"Graph Colors", pictured(Press("Ic1")), {{"IconType", Number(0)}}, other_picture},
        {"Graph Colors",
         [&] {
           machine.message_loop.Then([&] { machine.system_dialogs.Choose("C:\\tray.bmp"); });
           User().Press("ImagesTrayIcon");
           EXPECT_EQ(machine.system_dialogs.file_requests.back().folder,
                     machine.files.ProgramFolder() + "Icons");
         },
         {{"TrayIconFile", Text("C:\\tray.bmp")}},
         {}},
        {"Other",
         [&] { User().Drag("Win2kTransTrack", 100); },
         {{"Win2kTransparentRatio", Number(100)}},
         [&] { return Widget("T_frmBrisanto").alpha == 100; }},
        {"Other", Press("AutoTransparentONOFF"), {{"AutoTransparentONOFF", Number(0)}}, {}},
        {"Other", Press("TransparentFade"), {{"TransparentFade", Number(1)}}, {}},
        {"Other", Press("AskOnExit"), {{"AskOnExit", Number(0)}}, {}},
        {"Other", Press("DLSwitchScr"), {{"DLSwitchScr", Number(1)}}, {}},
        {"Other", Press("ULSwitchNum"), {{"ULSwitchNum", Number(1)}}, {}},
        {"Other",
         [&] { User().PressKey("spnKeyLedsLimit", platform::Key::kDown); },
         {{"spnKeyLedsLimit", Number(0xFFFFFC18)}},
         {}},
    });
  });
}

TEST_F(PreferenceOptions, ACancelledColourPopupChangesNothing) {
  RunOpen([&] {
    ChoosePage("Graph Colors");
    const Values before = AllValues();
    machine.message_loop.Then([&] {
      EXPECT_EQ(Widget("ColourPopup").text, "Download Light");
      User().PressEsc("ColourPopup");
    });
    User().Press("DownloadLightColor");
    EXPECT_EQ(Changes(before, AllValues()), Values());
    EXPECT_EQ(Widget("DownloadLightColor").background, 0x8184FEU);
    EXPECT_EQ(Meter().graph.Look().InLight, 0x8184FEU);
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
      {"GraphScaleType", Number(99), [&] { return Widget("ScaleCombo").index <= 0; },
       "no such row"},
      {"BevelInner", Number(99), [&] { return Widget("BevelInner").index <= 1; }, "no such row"},
      {"cmbVLineStyle", Number(5), [&] { return Widget("cmbVLineStyle").index != 5; }, ""},
      {"PulseWidth", Number(0), [&] { return Widget("PulseWidth").text == "0"; }, ""},
      {"BevelWidth", Number(0xFFFFFFFB), [&] { return Widget("BevelWidth").text == "-5"; }, ""},
      {"SpeedLimit", Number(999999999), [&] { return Widget("CustomScale").text == "7999999992"; },
       "beyond the range"},
      {"GraphColor_Upload", Text("$ff"), [&] { return Widget("UploadColor").background == 0xFF; },
       "another form of clRed"},
      {"FontNameIndex", Number(0xFFFFFFFF), [&] { return Widget("FontChoose").text == "Tahoma"; },
       "the name counts"},
      {"FontName", Text("COURIER new"), [&] { return Widget("FontChoose").text == "Courier New"; },
       "capitals do not matter"},
      {"FontName", Text("No Such Font"),
       [&] { return Widget("FontChoose").text == "No Such Font"; }, "not installed"},
      {"Win2kTransparentRatio", Number(4000),
       [&] {
         return Widget("Win2kTransTrack").position == 255 &&
                Widget("lblWin2kTransTrack").text.ends_with(" 100 %");
       },
       ""},
      {"FormMagnet", Number(0), [&] { return !Widget("chkScreenDocking").checked; }, ""},
      {"CopyIP", Number(5), [&] { return Widget("chkCopyIP").checked; }, "any number is true"},
      {"AvarageTime", Number(4000),
       [&] {
         return Widget("lblAvarageTime").text == "4000" && Widget("AvarageTrackBar").position == 60;
       },
       "beyond the bar"},
      {"AvarageTime", Number(4001), [&] { return Widget("lblAvarageTime").text == "4001"; },
       "the bar stays at its end"},
      {"Language", Text("gone"), [&] { return Widget("cmbLanguage").index == 0; },
       "there is no such file"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(std::string(row.name) + " " + row.why);
    for (const bool again : {false, true}) {
      SCOPED_TRACE(again ? "opened before" : "opened for the first time");
      RunOpen([&] {
        Close();
        if (!again) return;
        machine.registry.Set(test::kSettingsKey, row.name, row.value);
        const Values before = AllValues();
        Open();
        SeeEveryPage();
        EXPECT_TRUE(row.shows());
        EXPECT_EQ(Changes(before, AllValues()), Values());
      });
      if (again) continue;
      machine.registry.Set(test::kSettingsKey, row.name, row.value);
      Run([&] {
        const Values before = AllValues();
        Open();
        SeeEveryPage();
        EXPECT_TRUE(row.shows());
        EXPECT_EQ(Changes(before, AllValues()), Values());
      });
    }
  }
}

TEST_F(PreferenceOptions, TheTransparentMeterHasTheShapeOfLinesAsSoonAsTheyAreShown) {
  Set("Transparent", 1);
  Set("hLineSpace", 40);
  Set("cmbHLineStyle", 0);
  RunOpen([&] {
    ChoosePage("Graph Grids");
    const auto has_line = [&] {
      const auto& shape = *Widget("T_frmBrisanto").shape;
      return std::any_of(shape.begin(), shape.end(), [](const platform::Rect& part) {
        return part.Contains({41, 41});
      });
    };
    EXPECT_FALSE(has_line());
    User().Press("hGridsVisibleCheckBox");
    EXPECT_TRUE(has_line());
    User().Press("hGridsVisibleCheckBox");
    EXPECT_FALSE(has_line());
  });
}

TEST_F(PreferenceOptions, TheStyleOfGridLinesIsReadWithTheLines) {
  RunOpen([&] {
    Close();
    Set("hGridVisible", 0);
    Set("cmbHLineStyle", 4);
    Open();
    ChoosePage("Graph Grids");
    EXPECT_EQ(Widget("cmbHLineStyle").index, 2);
    User().Press("hGridsVisibleCheckBox");
    EXPECT_EQ(Widget("cmbHLineStyle").index, 4);
    EXPECT_EQ(Stored("cmbHLineStyle"), 4U);
  });
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

TEST_F(PreferenceOptions, PostedTitlesStayWhateverIsChosenUntilTheEnd) {
  const platform::WindowId notes = machine.other_windows.Add("Notes");
  const platform::WindowId bar = machine.other_windows.Add("Mail | Inbox");
  const auto title = [&](platform::WindowId window) {
    return machine.other_windows.Find(window).title;
  };
  machine.files.PutBesideProgram("WindowTitles.tit", "note\n");
  RunOpen([&] {
    ChoosePage("Numeric Other");
    User().Press("Post2");
    Scan({});
    const std::string posted = title(notes);
    EXPECT_NE(posted, "Notes");
    User().Press("Post0");
    EXPECT_EQ(title(notes), posted);
    User().Press("Post2");
    ChoosePage("Reset Settings");
    User().Press("R6");
    User().Press("btnResetSettings");
    EXPECT_EQ(Stored("WindowTitle"), 0U);
    Scan({});
    EXPECT_EQ(title(notes), posted);
    EXPECT_EQ(title(bar), "Mail | Inbox");
  });
  EXPECT_EQ(title(notes), "Notes");
}

TEST_F(PreferenceOptions, AnotherLanguageCountsAtOnceInAllWindows) {
  machine.files.PutBesideProgram("Languages\\Pirate.lng",
                                 "[MainForm]\nS1=Booty\n[SettingsForm]\nTitle=Rigging\n"
                                 "LanguageName=Arrr\n"
                                 "chkShowHints=Parrot\nTreeItem0=Captain\n");
  RunOpen([&] {
    EXPECT_EQ(Widget("cmbLanguage").items, (std::vector<std::string>{"English", "Arrr"}));
    User().Choose("cmbLanguage", 1);
    EXPECT_EQ(StoredText("Language"), "Pirate");
    EXPECT_EQ(Line(), "[ Booty DL:0,0 kB UL:0,0 kB ]");
    EXPECT_EQ(Widget(kForm).text, "Rigging");
    EXPECT_EQ(Widget("chkShowHints").text, "Parrot");
    EXPECT_EQ(Widget("TreeItems").items[0], "Captain");
    EXPECT_EQ(Widget("TreeItems").index, 0);
    machine.files.PutBesideProgram("Languages\\Pirate.lng",
                                   "[SettingsForm]\nTitle=Sails\nLanguageName=Arrr\n");
    User().Choose("cmbLanguage", 1);
    EXPECT_EQ(Widget(kForm).text, "Sails") << "chosen again, the edited file is read";
    // A file that came while the window was closed.
    Close();
    machine.files.PutBesideProgram("Languages\\Aaa.lng", "");
    Open();
    EXPECT_EQ(Widget("cmbLanguage").items, (std::vector<std::string>{"English", "Aaa", "Arrr"}));
    EXPECT_EQ(Widget("cmbLanguage").text, "Arrr");
  });
}

}  // namespace
