// The meter window as the desktop sees it: where it stands, and how it looks.
#include "tests/desktop/program_test.h"

namespace desktop {
namespace {

class MeterWindow : public ProgramTest {
 protected:
  static void PlaceAt(const Meter& meter, LONG left, LONG top) {
    ::SetWindowPos(meter.window(), nullptr, left, top, 0, 0,
                   SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    Await("the meter at its place", [&] {
      const RECT area = AreaOf(meter.window());
      return area.left == left && area.top == top;
    });
  }
  static void ExpectSize(const Meter& meter, SIZE expected) {
    const RECT area = AreaOf(meter.window());
    // Wine stops the mouse one pixel earlier.
    EXPECT_NEAR(WidthOf(area), meter.Scaled(expected.cx), 1);
    EXPECT_NEAR(HeightOf(area), meter.Scaled(expected.cy), 1);
  }

  // What the meter shows: graph, numeric line.
  static void AwaitShown(const Meter& meter, bool graph, bool line) {
    Await("the mode", [&] {
      return (::IsWindowVisible(meter.graph()) != FALSE) == graph &&
             (::IsWindowVisible(meter.line()) != FALSE) == line;
    });
  }
  static void AwaitAlpha(const Meter& meter, BYTE alpha) {
    Await("the opacity " + std::to_string(alpha), [&] {
      BYTE now = 0;
      DWORD flags = 0;
      return ::GetLayeredWindowAttributes(meter.window(), nullptr, &now, &flags) && now == alpha;
    });
  }
};

TEST_F(MeterWindow, IsSizedWithinItsLimitsDraggedDockedAndFoundAgain) {
  Meter* meter = &Start();
  PlaceAt(*meter, 300, 300);
  RECT area = AreaOf(meter->window());
  Drag(meter->window(), {area.right - 2, area.bottom - 2}, {area.left + 10, area.top + 5});
  ExpectSize(*meter, {150, 25});
  area = AreaOf(meter->window());
  Drag(meter->window(), {area.right - 2, area.bottom - 2}, {area.right + 600, area.bottom + 500});
  ExpectSize(*meter, {350, 200});

  for (const HWND handle : {meter->graph(), meter->line()}) {
    PlaceAt(*meter, 400, 300);
    const POINT from = MiddleOf(AreaOf(handle));
    Drag(meter->window(), from, {from.x + 120, from.y + 70});
    area = AreaOf(meter->window());
    // The system begins with the first step, or takes that as the beginning.
    EXPECT_NEAR(area.left, 520, 2);
    EXPECT_NEAR(area.top, 370, 2);
    ExpectSize(*meter, {350, 200});
  }

  RECT work{};
  ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
  const POINT from = MiddleOf(AreaOf(meter->graph()));
  Drag(meter->window(), from, {from.x - area.left + work.left + 8, from.y});
  Await("the edge", [&] { return AreaOf(meter->window()).left == work.left; });
  EXPECT_EQ(AreaOf(meter->window()).top, area.top);
  area = AreaOf(meter->window());
  Store("AskOnExit", 0U);
  meter->Choose({"Exit"});
  EXPECT_EQ(meter->program().AwaitEnd(), 0U);
  meter = &Start();
  const RECT again = AreaOf(meter->window());
  EXPECT_NE(::EqualRect(&again, &area), FALSE) << "its place is kept";
}

TEST_F(MeterWindow, LooksAsTheMenuSaysAlsoAfterARestart) {
  MoveMouse({5, 900});
  Meter* meter = &Start();
  EXPECT_TRUE(meter->OnTop());
  AwaitShown(*meter, true, true);
  meter->Choose({"Graph Options", "Numeric"});
  meter->Choose({"Graph Options", "Always on Top"});
  meter->Choose({"Graph Options", "Graph Transparency Options", "Windows XP Style"});
  MoveMouse({5, 900});
  AwaitAlpha(*meter, 190);
  Store("Win2kTransparentRatio", 100U);
  meter = &Start();
  AwaitAlpha(*meter, 100);
  AwaitShown(*meter, false, true);
  Await("the meter among the other windows", [&] { return !meter->OnTop(); });
  constexpr LONG_PTR kBits = 0x888880;  // with that of a topmost window, which it is not now
  EXPECT_EQ(::GetWindowLongPtrW(meter->window(), GWL_EXSTYLE) & kBits, kBits);
  MoveMouse(MiddleOf(AreaOf(meter->window())));
  AwaitAlpha(*meter, 255);
  OpenMenu menu = meter->Menu();
  EXPECT_TRUE(menu.Find({"Graph Options", "Numeric"}).checked);
  EXPECT_FALSE(menu.Find({"Graph Options", "Graph&&Numeric"}).checked);
  menu.Leave();
  MoveMouse({5, 900});
  AwaitAlpha(*meter, 100);

  meter->Choose({"Graph Options", "Always on Top"});
  Await("the meter on top", [&] { return meter->OnTop(); });
  ::SetWindowPos(meter->window(), HWND_NOTOPMOST, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  Await("the meter on top, which another program took away", [&] { return meter->OnTop(); });

  meter->Choose({"Graph Options", "Graphic"});
  AwaitShown(*meter, true, false);
}

}  // namespace
}  // namespace desktop
