// The meter window as the desktop sees it.
#include "tests/desktop/program_test.h"
// Behind the system's own header, which it needs.
#include <shellapi.h>

namespace desktop {
namespace {

// Another program's window, in which the user works.
class OtherWindow {
 public:
  OtherWindow() {
    window_ = ::CreateWindowExW(0, L"STATIC", L"work", WS_POPUP | WS_VISIBLE | SS_NOTIFY, 20, 20,
                                300, 200, nullptr, nullptr, nullptr, nullptr);
    Click({100, 100});
    Await("the other window to have the foreground", [this] { return HasFocus(); });
  }
  ~OtherWindow() { ::DestroyWindow(window_); }
  OtherWindow(const OtherWindow&) = delete;
  OtherWindow& operator=(const OtherWindow&) = delete;

  [[nodiscard]] bool HasFocus() const {
    // A STATIC does not take the foreground with a click by itself.
    if (::GetForegroundWindow() != window_) ::SetForegroundWindow(window_);
    return ::GetForegroundWindow() == window_;
  }
  [[nodiscard]] HWND window() const { return window_; }

 private:
  HWND window_;
};

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
};

TEST_F(MeterWindow, IsASmallWindowWithAThinFrameAndNoTaskbarButton) {
  Meter& meter = Start();
  const auto style = static_cast<DWORD>(::GetWindowLongPtrW(meter.window(), GWL_STYLE));
  EXPECT_NE(style & WS_POPUP, 0U);
  EXPECT_EQ(style & WS_DLGFRAME, 0U);
  EXPECT_NE(style & WS_THICKFRAME, 0U) << "it can be sized";
  EXPECT_EQ(style & (WS_VSCROLL | WS_HSCROLL), 0U);
  EXPECT_NE(::GetWindowLongPtrW(meter.window(), GWL_EXSTYLE) & WS_EX_TOOLWINDOW, 0);
  const HWND application = ::GetWindow(meter.window(), GW_OWNER);
  ASSERT_NE(application, nullptr);
  EXPECT_EQ(TextOf(application), "Korvane Tremolux");
  EXPECT_NE(::GetWindowLongPtrW(application, GWL_EXSTYLE) & WS_EX_TOOLWINDOW, 0);
  EXPECT_EQ(::IsWindowVisible(application), FALSE);

  EXPECT_EQ(TextOf(meter.window()), "Korvane Tremolux");
  const RECT area = AreaOf(meter.window());
  EXPECT_EQ(WidthOf(area), meter.Scaled(274));
  EXPECT_EQ(HeightOf(area), meter.Scaled(135));
}

TEST_F(MeterWindow, StaysOnTopAsTheMenuSays) {
  Meter& meter = Start();
  EXPECT_TRUE(meter.OnTop());
  meter.Choose({"Graph Options", "Always on Top"});
  Await("the meter among the other windows", [&] { return !meter.OnTop(); });
  EXPECT_EQ(Setting("AlwaysTopOn"), 0U);

  Meter& again = Start();
  EXPECT_FALSE(again.OnTop()) << "the choice survives the program";
  again.Choose({"Graph Options", "Always on Top"});
  Await("the meter on top", [&] { return again.OnTop(); });
  EXPECT_EQ(Setting("AlwaysTopOn"), 1U);
}

TEST_F(MeterWindow, ComesBackOnTopAfterAnotherProgramTookThatAway) {
  Meter& meter = Start();
  ::SetWindowPos(meter.window(), HWND_NOTOPMOST, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  Await("the meter on top", [&] { return meter.OnTop(); });
}

TEST_F(MeterWindow, KeepsToItsSizeLimits) {
  Meter& meter = Start();
  struct Row {
    const char* why;
    SIZE wanted;
    SIZE expected;
  };
  static constexpr Row kRows[] = {
      {"too small both ways", {50, 10}, {150, 25}}, {"too large both ways", {900, 700}, {350, 200}},
      {"too wide", {351, 100}, {350, 100}},         {"too low", {200, 24}, {200, 25}},
      {"within", {222, 111}, {222, 111}},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.why);
    ::SetWindowPos(meter.window(), nullptr, 0, 0, meter.Scaled(row.wanted.cx),
                   meter.Scaled(row.wanted.cy), SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    const RECT area = AreaOf(meter.window());
    EXPECT_EQ(WidthOf(area), meter.Scaled(row.expected.cx));
    EXPECT_EQ(HeightOf(area), meter.Scaled(row.expected.cy));
  }
}

TEST_F(MeterWindow, IsSizedByItsEdgesAndStopsAtTheLimits) {
  Meter& meter = Start();
  PlaceAt(meter, 300, 300);
  RECT area = AreaOf(meter.window());
  Drag(meter.window(), {area.right - 2, area.bottom - 2}, {area.left + 10, area.top + 5});
  area = AreaOf(meter.window());
  EXPECT_EQ(WidthOf(area), meter.Scaled(150));
  EXPECT_EQ(HeightOf(area), meter.Scaled(25));
  Drag(meter.window(), {area.right - 2, area.bottom - 2}, {area.right + 600, area.bottom + 500});
  area = AreaOf(meter.window());
  // Wine stops the mouse one pixel earlier.
  EXPECT_NEAR(WidthOf(area), meter.Scaled(350), 1);
  EXPECT_NEAR(HeightOf(area), meter.Scaled(200), 1);
  EXPECT_LE(WidthOf(area), meter.Scaled(350));
  EXPECT_LE(HeightOf(area), meter.Scaled(200));
}

TEST_F(MeterWindow, IsDraggedByGraphAndLine) {
  Meter& meter = Start();
  for (const HWND handle : {meter.graph(), meter.line()}) {
    PlaceAt(meter, 400, 300);
    const POINT from = MiddleOf(AreaOf(handle));
    Drag(meter.window(), from, {from.x + 120, from.y + 70});
    const RECT area = AreaOf(meter.window());
    // The system begins with the first step, or takes that as the beginning.
    EXPECT_NEAR(area.left, 520, 2);
    EXPECT_NEAR(area.top, 370, 2);
    EXPECT_EQ(WidthOf(area), meter.Scaled(274)) << "it was sized instead";
  }
}

TEST_F(MeterWindow, NeverTakesTheFocusWhenItAppears) {
  const OtherWindow work;
  Meter& meter = Start();
  AwaitScans();
  EXPECT_EQ(::GetForegroundWindow(), work.window()) << "at the start";
  for (const bool visible : {false, true}) {
    ::PostMessageW(meter.tray(), WM_APP + 1, 0, MAKELPARAM(NIN_SELECT, 1));
    Await("the meter to come or go", [&] { return meter.Visible() == visible; });
  }
  AwaitScans();
  EXPECT_EQ(::GetForegroundWindow(), work.window()) << "when it comes back";
}

TEST_F(MeterWindow, ADoubleClickHidesItAndTheTrayIconBringsItBack) {
  Meter& meter = Start();
  AwaitScans();  // the icon comes a moment after the window
  for (const HWND place : {meter.graph(), meter.line()}) {
    DoubleClick(MiddleOf(AreaOf(place)));
    Await("the meter to go", [&] { return !meter.Visible(); });
    Click(MiddleOf(meter.TrayArea()));
    Await("the meter to come back", [&] { return meter.Visible(); });
  }
  Click(MiddleOf(meter.TrayArea()));
  Await("the meter to go", [&] { return !meter.Visible(); });
}

TEST_F(MeterWindow, ScansGoOnWhileItIsHidden) {
  Meter& meter = Start();
  meter.Choose({"Graph Options", "Show / Hide Graph"});
  Await("the meter to go", [&] { return !meter.Visible(); });
  AwaitScans(2);
  EXPECT_FALSE(meter.Visible());
}

TEST_F(MeterWindow, ExitEndsTheProgram) {
  Store("AskOnExit", 0U);
  Meter& meter = Start();
  const HWND tray = meter.tray();
  meter.Choose({"Exit"});
  EXPECT_EQ(meter.program().AwaitEnd(), 0U);
  EXPECT_EQ(::IsWindow(tray), FALSE);
  EXPECT_FALSE(ProgramRuns());
}

}  // namespace
}  // namespace desktop
