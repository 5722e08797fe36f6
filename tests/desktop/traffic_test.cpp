// The figures against bytes that the test itself moves, one way and to the byte. Where no adapter
// can be made these tests are skipped.
#include <algorithm>
#include <fstream>

#include "platform/windows/wide_text.h"
#include "tests/desktop/driver/network_line.h"
#include "tests/desktop/program_test.h"

namespace desktop {
namespace {

class Traffic : public ProgramTest {
 protected:
  void SetUp() override {
    if (!line_.Available()) GTEST_SKIP() << "no adapter can be made here";
    ProgramTest::SetUp();
    // A name of its own for each test: Wine goes on listing an adapter that is gone.
    card_ = "testcard" + std::to_string(++cards_);
    // The tests talk to the line through the loopback, which therefore does not count.
    CountNothing();
  }

  // Moves bytes right behind the program's measuring, so that they fall into the next scan.
  void Move(int received, int sent) {
    AwaitScans(1);
    line_.Move(card_, received, sent);
  }
  // Until that scan is over.
  static void AwaitCounted() { AwaitScans(2); }

  // Every total, machine-wide and of the adapter; the same number in all of them.
  void ExpectTotals(std::int64_t dl, std::int64_t ul) const {
    for (const char* period : {"CurrentDayTotal", "CurrentWeekTotal", "CurrentMonthTotal"}) {
      SCOPED_TRACE(period);
      EXPECT_EQ(Counter(kSettingsKey, std::string(period) + "DL"), dl);
      EXPECT_EQ(Counter(kSettingsKey, std::string(period) + "UL"), ul);
      EXPECT_EQ(Counter(kAdaptersKey, card_ + period + "DL"), dl);
      EXPECT_EQ(Counter(kAdaptersKey, card_ + period + "UL"), ul);
    }
  }
  static bool Lists(Meter& meter, const std::string& adapter) {
    OpenMenu menu = meter.Menu();
    const std::vector<MenuItem> items = menu.Items({"Connection Sources"});
    menu.Leave();
    return std::any_of(items.begin(), items.end(),
                       [&](const MenuItem& item) { return item.text == adapter; });
  }

  NetworkLine line_;
  std::string card_;

 private:
  static inline int cards_ = 0;
};

TEST_F(Traffic, OfACardThatComesIsCountedToTheByteAlsoAfterARestart) {
  Meter* meter = &Start();
  AwaitScans(2);
  EXPECT_FALSE(Lists(*meter, card_));
  line_.Add(card_);
  line_.Move(card_, 5000000, 5000000);
  AwaitScans(3);
  EXPECT_TRUE(Lists(*meter, card_));
  EXPECT_EQ(Setting("ExecuteTime"), 3U) << "the window was initialised again, once";
  ExpectTotals(0, 0);  // what the card had moved before is no traffic

  Store("SOM2", 0U);
  Store("SOM3", 1U);
  Move(15 * 1024, 2048);
  AwaitCounted();
  ExpectTotals(15 * 1024, 2048);
  EXPECT_EQ(meter->LineText(), "[ Max DL:15 kB Max UL:2 kB ]");
  Store("AskOnExit", 0U);
  meter->Choose({"Exit"});
  EXPECT_EQ(meter->program().AwaitEnd(), 0U);
  ExpectTotals(15 * 1024, 2048);

  line_.Move(card_, 777, 777);  // while it does not run
  meter = &Start();
  AwaitScans(1);
  Move(123457, 2049);
  AwaitCounted();
  ExpectTotals(15 * 1024 + 123457, 2048 + 2049);
  EXPECT_EQ(Counter(kAdaptersKey, card_ + "CurrentMonthMaxDL"), 123457);
  EXPECT_EQ(Counter(kAdaptersKey, card_ + "InfoTotalUL"), 2048 + 2049);
  for (const AdapterRow& row : ReadAdapters()) {
    if (row.name != card_) continue;
    EXPECT_EQ(row.in, 5000000U + 15 * 1024 + 777 + 123457) << "as the system counts";
    EXPECT_EQ(row.out, 5000000U + 2048 + 777 + 2049);
  }
}

TEST_F(Traffic, AGarbledCounterCostsALineAScanAndLaterScansCountAgain) {
  const std::wstring log = ProgramPath().substr(0, ProgramPath().rfind(L'\\') + 1) + L"err.log";
  const auto lines = [&log] {
    std::ifstream file(platform::windows::FromWide(log));
    int count = 0;
    for (std::string line; std::getline(file, line);) ++count;
    return count;
  };
  ::DeleteFileW(log.c_str());
  line_.Add(card_);
  Store(card_, 1U);
  Meter& meter = Start();
  AwaitScans(2);
  Store("CurrentDayTotalDL", "12abc");
  Await("what a garbled counter does", [&] { return lines() >= 2; });
  EXPECT_EQ(SettingText("CurrentDayTotalDL"), "12abc") << "nobody may throw the value away";
  EXPECT_EQ(VisibleTops(meter.program().id()).size(), 1U) << "the user is not bothered";
  Store("CurrentDayTotalDL", "1000000000");
  AwaitScans(2);
  const int errors = lines();
  Move(5000, 100);
  AwaitCounted();
  EXPECT_EQ(Counter(kSettingsKey, "CurrentDayTotalDL"), 1000005000);
  EXPECT_EQ(lines(), errors) << "with the value mended, the errors end";
  Stop();
  ::DeleteFileW(log.c_str());
}

}  // namespace
}  // namespace desktop
