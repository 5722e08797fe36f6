// The figures against bytes that the test itself moves, one way and to the byte. Where no adapter
// can be made the test is skipped.
#include "tests/desktop/driver/traffic.h"

#include <filesystem>

#include "platform/windows/services/services.h"
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
    // The tests talk to the line through the loopback, which therefore does not count.
    for (const AdapterRow& row : ReadAdapters()) Store(row.name, 0U);
    Store("ExecuteTime", 1U);  // else the first start lets all of them count
  }

  // Moves bytes right behind the program's measuring, so that they fall into the next scan.
  void Move(int received, int sent) {
    AwaitScans(1);
    line_.Move(kCard, received, sent);
  }
  // Until that scan is over.
  static void AwaitCounted() { AwaitScans(2); }

  // Every total, machine-wide and of the adapter; the same number in all of them.
  static void ExpectTotals(std::int64_t dl, std::int64_t ul) {
    for (const std::string period : {"CurrentDayTotal", "CurrentWeekTotal", "CurrentMonthTotal"}) {
      EXPECT_EQ(Setting(period + "DL"), "text " + std::to_string(dl)) << period;
      EXPECT_EQ(Stored(kAdaptersKey, kCard + period + "UL"), "text " + std::to_string(ul))
          << period;
    }
  }

  NetworkLine line_;
  static inline const std::string kCard = "testcard";
};

TEST_F(Traffic, OfACardThatComesIsCountedToTheByteAlsoAfterARestart) {
  Meter* meter = &Start();
  AwaitScans(2);
  line_.Add(kCard);
  line_.Move(kCard, 5000000, 5000000);
  AwaitScans(3);
  const OpenMenu menu = meter->Menu();
  EXPECT_TRUE(menu.Find({"Connection Sources", kCard}).checked);
  menu.Leave();
  EXPECT_EQ(Setting("ExecuteTime"), "dword 3") << "the window was initialised again, once";
  EXPECT_EQ(Setting("CurrentMonthTotalDL"), "text 0") << "what the card had moved before";

  Store("SOM2", 0U);
  Store("SOM3", 1U);
  Move(15 * 1024, 2048);
  AwaitCounted();
  ExpectTotals(15 * 1024, 2048);
  EXPECT_EQ(TextOf(meter->line()), "[ Max DL:15 kB Max UL:2 kB ]");
  Store("AskOnExit", 0U);
  meter->Choose({"Exit"});
  EXPECT_EQ(meter->program().AwaitEnd(), 0U);
  ExpectTotals(15 * 1024, 2048);

  line_.Move(kCard, 777, 777);  // while it does not run
  Store("CurrentMonthTotalUL", "2048 B");
  const std::wstring log = std::filesystem::path(ProgramPath()).replace_filename("err.log");
  std::filesystem::remove(log);
  meter = &Start();
  AwaitScans(1);
  Move(123457, 0);
  AwaitCounted();
  ExpectTotals(15 * 1024 + 123457, 2048);
  EXPECT_EQ(Setting("CurrentMonthTotalUL"), "text 2048 B") << "the scan ends where it is no number";
  const auto errors = platform::windows::Files().Load(platform::windows::FromWide(log), 100000);
  EXPECT_TRUE(errors.value_or("").starts_with("'2048 B' is not a valid integer value\r\n"));
  for (const AdapterRow& row : ReadAdapters()) {
    if (row.name != kCard) continue;
    EXPECT_EQ(row.in, 5000000U + 15 * 1024 + 777 + 123457) << "as the system counts";
    EXPECT_EQ(row.out, 5000000U + 2048 + 777);
  }
}

}  // namespace
}  // namespace desktop
