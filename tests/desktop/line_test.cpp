// Adapters that come and go, and traffic in one direction. Where no adapter can be made these tests
// are skipped.
#include <algorithm>

#include "tests/desktop/driver/network_line.h"
#include "tests/desktop/program_test.h"

namespace desktop {
namespace {

class Line : public ProgramTest {
 protected:
  void SetUp() override {
    if (!line_.Available()) GTEST_SKIP() << "no adapter can be made here";
    ProgramTest::SetUp();
    // A name of its own for each test: Wine goes on listing an adapter that is gone.
    card_ = "testcard" + std::to_string(++cards_);
    CountOnly(card_);  // the tests talk to the line through the loopback
  }

  [[nodiscard]] std::int64_t CardTotal(const std::string& name) const {
    return Counter(kAdaptersKey, card_ + name);
  }
  static std::int64_t DayTotal(const std::string& direction) {
    return Counter(kSettingsKey, "CurrentDayTotal" + direction);
  }

  // Right behind the program's measuring, so that what follows falls into one scan.
  static void AwaitMeasured() { AwaitScans(1); }
  // Until what has moved so far is counted.
  static void AwaitCounted() { AwaitScans(3); }

  static bool Lists(Meter& meter, const std::string& adapter) {
    OpenMenu menu = meter.Menu();
    bool found = false;
    for (const MenuItem& item : menu.Items({"Connection Sources"})) found |= item.text == adapter;
    menu.Leave();
    return found;
  }

  NetworkLine line_;
  std::string card_;

 private:
  static inline int cards_ = 0;
};

TEST_F(Line, DownloadAndUploadAreCountedApartAndToTheByte) {
  line_.Add(card_);
  Store(card_, 1U);
  Start();
  AwaitCounted();
  AwaitMeasured();
  line_.Receive(card_, 123457);
  line_.Send(card_, 2049);
  AwaitCounted();
  EXPECT_EQ(DayTotal("DL"), 123457);
  EXPECT_EQ(DayTotal("UL"), 2049);
  EXPECT_EQ(CardTotal("InfoTotalDL"), 123457);
  EXPECT_EQ(CardTotal("InfoTotalUL"), 2049);
  EXPECT_EQ(CardTotal("CurrentMonthMaxDL"), 123457);
  EXPECT_EQ(CardTotal("CurrentMonthMaxUL"), 2049);

  AwaitMeasured();
  line_.Receive(card_, 5000);
  AwaitCounted();
  EXPECT_EQ(DayTotal("DL"), 128457);
  EXPECT_EQ(CardTotal("InfoTotalDL"), 123457)
      << "a scan with one direction only keeps nothing for the adapter";
}

TEST_F(Line, AnAdapterComesAndGoesWithoutASpike) {
  Meter& meter = Start();
  AwaitCounted();
  EXPECT_FALSE(Lists(meter, card_));
  Store("ExecuteTime", 10U);

  AwaitMeasured();
  line_.Add(card_);
  line_.Receive(card_, 5000000);
  line_.Send(card_, 5000000);
  AwaitCounted();
  EXPECT_TRUE(Lists(meter, card_));
  EXPECT_EQ(Setting("ExecuteTime"), 11U) << "the window was initialised again, once";
  EXPECT_EQ(DayTotal("DL"), 0) << "what the card had moved before counts as traffic";

  AwaitMeasured();
  line_.Receive(card_, 1000);
  line_.Send(card_, 700);
  AwaitCounted();
  EXPECT_EQ(DayTotal("DL"), 1000);
  EXPECT_EQ(CardTotal("InfoTotalUL"), 700);

  line_.Remove(card_);
  const auto listed = [this] {
    const std::vector<AdapterRow> rows = ReadAdapters();
    return std::any_of(rows.begin(), rows.end(),
                       [&](const auto& row) { return row.name == card_; });
  };
  if (listed()) return;  // Wine does, for ever
  Await("the window to be initialised again", [] { return Setting("ExecuteTime") == 12U; });
  AwaitCounted();
  EXPECT_FALSE(Lists(meter, card_));
  EXPECT_EQ(DayTotal("DL"), 1000);
  EXPECT_EQ(CardTotal("InfoTotalUL"), 700) << "its figures stay";
}

TEST_F(Line, TwentyAdaptersComeAtOnce) {
  Meter& meter = Start();
  AwaitCounted();
  for (int card = 0; card < 20; ++card) line_.Add("card" + std::to_string(card));
  Await("the last card in the store", [] { return Stored(kAdaptersKey, "card19MTU").has_value(); });
  AwaitCounted();
  for (const char* card : {"card0", "card19"}) EXPECT_TRUE(Lists(meter, card)) << card;
  EXPECT_EQ(DayTotal("DL"), 0);
}

}  // namespace
}  // namespace desktop
