// The figures against the system's own counters.
#include <fstream>
#include <functional>

#include "platform/windows/wide_text.h"
#include "tests/desktop/program_test.h"

namespace desktop {
namespace {

class Traffic : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    adapter_ = loopback_.FindAdapter();
    if (adapter_.empty()) GTEST_SKIP() << "this system does not count the loopback's traffic";
  }

  [[nodiscard]] AdapterRow Row() const {
    for (const AdapterRow& row : ReadAdapters()) {
      if (row.name == adapter_) return row;
    }
    throw std::runtime_error("the adapter " + adapter_ + " is gone");
  }

  // The system's counters at a moment at which every byte of them has been scanned.
  AdapterRow Settle() const {
    AdapterRow row;
    Await("scans without traffic", [&] {
      row = Row();
      AwaitScans(3);
      const AdapterRow later = Row();
      return later.in == row.in && later.out == row.out;
    });
    return row;
  }

  std::int64_t AdapterTotal(const std::string& name) const {
    return Counter(kAdaptersKey, adapter_ + name);
  }
  static std::int64_t MachineTotal(const std::string& name) { return Counter(kSettingsKey, name); }

  // Every total of the traffic, machine-wide and of the adapter; the same number in all of them.
  void ExpectTotals(std::int64_t dl, std::int64_t ul) const {
    for (const char* period : {"Day", "Week", "Month"}) {
      SCOPED_TRACE(period);
      const std::string total = std::string("Current") + period + "Total";
      EXPECT_EQ(MachineTotal(total + "DL"), dl);
      EXPECT_EQ(MachineTotal(total + "UL"), ul);
      EXPECT_EQ(AdapterTotal(total + "DL"), dl);
      EXPECT_EQ(AdapterTotal(total + "UL"), ul);
    }
    EXPECT_EQ(AdapterTotal("InfoTotalDL"), dl);
    EXPECT_EQ(AdapterTotal("InfoTotalUL"), ul);
  }

  Loopback loopback_;
  std::string adapter_;
};

TEST_F(Traffic, TheTotalsAgreeWithTheSystemToTheByteAlsoAfterARestart) {
  CountOnly(adapter_);
  std::int64_t dl = 0;
  std::int64_t ul = 0;
  for (const int run : {1, 2}) {
    SCOPED_TRACE("run " + std::to_string(run));
    Meter& meter = Start();
    AdapterRow before = Settle();
    // What moved before that moment is counted too; from here on it has to agree.
    const std::int64_t early_dl = MachineTotal("CurrentDayTotalDL") - dl;
    const std::int64_t early_ul = MachineTotal("CurrentDayTotalUL") - ul;
    ASSERT_GE(early_dl, 0);
    for (const int datagrams : {1, 500, 4000}) {
      loopback_.Send(datagrams);
      AwaitScans();
    }
    const AdapterRow after = Settle();
    EXPECT_GE(after.in - before.in, 4501U * 1024U) << "the system missed some";
    dl += early_dl + (after.in - before.in);
    ul += early_ul + (after.out - before.out);
    ExpectTotals(dl, ul);
    Store("AskOnExit", 0U);
    meter.Choose({"Exit"});
    EXPECT_EQ(meter.program().AwaitEnd(), 0U);
    ExpectTotals(dl, ul);
  }
}

TEST_F(Traffic, AnAdapterThatIsTickedOffIsMeasuredButDoesNotCount) {
  CountOnly("");
  Start();
  Settle();
  loopback_.Send(100);
  Settle();
  EXPECT_EQ(MachineTotal("CurrentDayTotalDL"), 0);
  EXPECT_EQ(MachineTotal("InfoMaxDL"), 0);
  // And where nothing counts, nothing is kept for any adapter.
  EXPECT_EQ(AdapterTotal("InfoTotalDL"), 0);
}

TEST_F(Traffic, TheNumericLineShowsTheBytesOfTheScan) {
  CountOnly(adapter_);
  Store("SOM1", 1U);
  Store("SOM2", 0U);
  Meter& meter = Start();
  constexpr std::uint32_t kBytes = 15 * 1024;
  // Something else may use the loopback in between, or a scan may fall into the sending.
  const bool seen = Comes([&] {
    const AdapterRow before = Settle();
    loopback_.Send(15);
    if (Row().in - before.in != kBytes) return false;
    return Comes([&] { return meter.LineText() == "[ DL:15 kB UL:15 kB ]"; }, 2000);
  });
  EXPECT_TRUE(seen) << "the line is " << meter.LineText();
  EXPECT_TRUE(Comes([&] { return meter.LineText() == "[ DL:0,0 kB UL:0,0 kB ]"; }))
      << "and is zero after the traffic, but shows " << meter.LineText();
}

TEST_F(Traffic, TheLineIsMadeOfThePartsThatAreSwitchedOn) {
  CountOnly("");
  struct Row {
    const char* why;
    std::uint32_t som1, som2, som3, unit;
    const char* line;
  };
  static constexpr Row kRows[] = {
      {"none", 0, 0, 0, 0, "Korvane Tremolux"},
      {"current", 1, 0, 0, 0, "[ DL:0,0 kB UL:0,0 kB ]"},
      {"current in bits", 1, 0, 0, 1, "[ DL:0,0 kbit UL:0,0 kbit ]"},
      {"maximum", 0, 0, 1, 0, "[ Max DL:0,0 kB Max UL:0,0 kB ]"},
      {"all", 1, 1, 1, 0,
       "[ DL:0,0 kB UL:0,0 kB ][ Average DL:0,0 kB UL:0,0 kB ][ Max DL:0,0 kB Max UL:0,0 kB ]"},
  };
  Meter& meter = Start();
  for (const Row& row : kRows) {
    Store("SOM1", row.som1);
    Store("SOM2", row.som2);
    Store("SOM3", row.som3);
    Store("ScaleUnit", row.unit);
    EXPECT_TRUE(Comes([&] { return meter.LineText() == row.line; }))
        << row.why << ": the line is " << meter.LineText();
  }
}

class ErrorLog : public Traffic {
 protected:
  void SetUp() override {
    Traffic::SetUp();
    if (!IsSkipped()) CountOnly(adapter_);
    Clear();
  }
  void TearDown() override {
    Traffic::TearDown();
    Clear();
  }

  // Neither file nor folder.
  void Clear() const {
    ::DeleteFileW(path_.c_str());
    ::RemoveDirectoryW(path_.c_str());
  }

  [[nodiscard]] int Lines() const {
    std::ifstream log(platform::windows::FromWide(path_));
    int count = 0;
    for (std::string line; std::getline(log, line);) ++count;
    return count;
  }

  // Lets scans fail until `condition` is true, and then no more.
  static void GarbleUntil(const std::function<bool()>& condition) {
    Store("CurrentDayTotalDL", "12abc");
    Await("what a garbled counter does", condition);
    EXPECT_EQ(SettingText("CurrentDayTotalDL"), "12abc") << "nobody may throw the value away";
    Store("CurrentDayTotalDL", "1000000000");
    AwaitScans(3);
  }

  const std::wstring path_ = ProgramPath().substr(0, ProgramPath().rfind(L'\\') + 1) + L"err.log";
};

TEST_F(ErrorLog, AGarbledCounterCostsALineAScanAndLaterScansCountAgain) {
  Start();
  Settle();
  GarbleUntil([this] { return Lines() >= 2; });
  const int lines = Lines();
  loopback_.Send(100);
  Settle();
  EXPECT_GE(Counter(kSettingsKey, "CurrentDayTotalDL"), 1000000000 + 100 * 1024);
  EXPECT_EQ(Lines(), lines) << "with the value mended, the errors end";
}

TEST_F(ErrorLog, WhereItCannotBeWrittenScansGoOn) {
  ASSERT_NE(::CreateDirectoryW(path_.c_str(), nullptr), FALSE);
  Meter& meter = Start();
  Settle();
  GarbleUntil([] { return (AwaitScans(3), true); });
  EXPECT_TRUE(meter.program().Running());
  EXPECT_EQ(VisibleTops(meter.program().id()).size(), 1U) << "the user is not bothered";
}

TEST_F(Traffic, TwentyScansTakeTwentySeconds) {
  Start();
  AwaitScans();
  const double start = SteadyMs();
  AwaitScans(20);
  // Scans keep their phase, so what one is late does not add up.
  EXPECT_NEAR(SteadyMs() - start, 20000, 500);
}

}  // namespace
}  // namespace desktop
