#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

#include "tests/display/meter.h"

namespace {

using test::MeterTest;

class LanguageChoice : public MeterTest {
 protected:
  // Puts a shipped language file beside the program.
  void Ship(const std::string& language) {
    std::ifstream file(SOURCE_FOLDER "/assets/Languages/" + language + ".lng", std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    machine.files.PutBesideProgram("Languages\\" + language + ".lng", bytes);
  }

  void ChooseLanguage(const std::string& name) {
    Window().Parts().language.Choose(name);
    App().LanguageChanged();
  }
};

TEST_F(LanguageChoice, CountsAtOnceInMenuLineAndGraphAndAtTheNextStart) {
  Ship("German");
  Set("AvarageTime", 1);
  Run([&] {
    Scan({1024, 2048});
    Scan({});
    ASSERT_EQ(Line(), "[ Average DL:1 kB UL:2 kB ]");
    ChooseLanguage("German");
    EXPECT_EQ(Line(), "[ Ø DL:1 kB UL:2 kB ]") << "before another scan";
    EXPECT_TRUE(Entry("Immer im Vordergrund").checked);
    EXPECT_EQ(Entry("Diagrammtransparenz").hint, "Tastenkürzel [ Ctrl+Alt+S ]");
    EXPECT_EQ(Widget("_tlkInterMeter").text, "Datenverkehr");
    EXPECT_EQ(StoredText("Language"), "German");
  });
  Run([&] {
    EXPECT_EQ(Line(), "[ Ø DL:0,0 kB UL:0,0 kB ]");
    ChooseLanguage("English");
    EXPECT_EQ(Line(), "[ Average DL:0,0 kB UL:0,0 kB ]") << "there is no file of it";
    EXPECT_TRUE(Entry("Always on Top").checked);
  });
}

TEST_F(LanguageChoice, TheWordForMaximumIsTheLanguagesOnlyUntilTheFirstScan) {
  machine.files.PutBesideProgram("Languages\\x.lng", "[MainForm]\nS2=Peak\n");
  Set("SOM2", 0);
  Set("SOM3", 1);
  Run([&] {
    ChooseLanguage("x");
    EXPECT_EQ(Line(), "[ Peak DL:0,0 kB Max UL:0,0 kB ]");
    Scan({});
    EXPECT_EQ(Line(), "[ Max DL:0,0 kB Max UL:0,0 kB ]");
    ChooseLanguage("English");
    EXPECT_EQ(Line(), "[ Max DL:0,0 kB Max UL:0,0 kB ]");
  });
}

TEST_F(LanguageChoice, ScansReadNoLanguageFile) {
  Ship("German");
  Set("Language", "German");
  Set("AvarageTime", 1);
  Run([&] {
    Scan({});
    const int loads = machine.files.loads;
    for (int i = 0; i < 20; ++i) Scan({1024, 1024});
    EXPECT_EQ(machine.files.loads, loads);
    EXPECT_EQ(Line(), "[ Ø DL:1 kB UL:1 kB ]");
  });
}

TEST_F(LanguageChoice, EveryOpenWindowIsToldEvenIfOneFails) {
  platform::TopWindowParams params;
  params.name = "Window";
  struct Window final : toolkit::Form {
    Window(toolkit::Application& app, const platform::TopWindowParams& params, bool throws)
        : Form(app, params), fails(throws) {}
    void Localise() override {
      ++told;
      if (fails) throw std::runtime_error("no text");
    }
    bool fails;
    int told = 0;
  };
  machine.files.PutBesideProgram("Languages\\x.lng", "");
  Run([&] {
    Window first(App(), params, true);
    Window second(App(), params, false);
    ChooseLanguage("x");
    EXPECT_EQ(first.told, 1);
    EXPECT_EQ(second.told, 1);
  });
}

}  // namespace
