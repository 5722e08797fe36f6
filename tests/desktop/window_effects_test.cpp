// Opacity, the see-through graph and posted titles, as the desktop sees them.
#include <cstdint>

#include "tests/desktop/program_test.h"

namespace desktop {
namespace {

class WindowEffects : public ProgramTest {
 protected:
  // -1: not a layered window.
  static int AlphaOf(const Meter& meter) {
    BYTE alpha = 0;
    DWORD flags = 0;
    return ::GetLayeredWindowAttributes(meter.window(), nullptr, &alpha, &flags) ? alpha : -1;
  }
  static bool HasShape(const Meter& meter) {
    const HRGN region = ::CreateRectRgn(0, 0, 0, 0);
    const int kind = ::GetWindowRgn(meter.window(), region);
    ::DeleteObject(region);
    return kind == COMPLEXREGION;
  }
};

TEST_F(WindowEffects, TheMenuMakesTheWindowLetThroughWithTheStyleThatItAlwaysHad) {
  Meter& meter = Start();
  EXPECT_EQ(AlphaOf(meter), -1) << "a fresh meter is opaque";
  meter.Choose({"Graph Options", "Graph Transparency Options", "Windows XP Style"});
  Await("the opacity", [&] { return AlphaOf(meter) == 190 || AlphaOf(meter) == 255; });
  EXPECT_EQ(Setting("Transparent2k"), 1U);
  constexpr LONG_PTR kBits = 0x888888;
  EXPECT_EQ(::GetWindowLongPtrW(meter.window(), GWL_EXSTYLE) & kBits, kBits) << "it is topmost too";
  Stop();
  EXPECT_GE(AlphaOf(Start()), 190) << "as it was left";
}

TEST_F(WindowEffects, ThePointerMakesItOpaqueAndItsLeaveLetsItThroughAgain) {
  Store("Transparent2k", std::uint32_t{1});
  Store("Win2kTransparentRatio", std::uint32_t{100});
  MoveMouse({5, 900});
  Meter& meter = Start();
  Await("the opacity", [&] { return AlphaOf(meter) == 100; });
  MoveMouse(meter.Inside());
  Await("opaque", [&] { return AlphaOf(meter) == 255; });
  MoveMouse({5, 900});
  Await("let through", [&] { return AlphaOf(meter) == 100; });
}

TEST_F(WindowEffects, TheGraphsBackgroundGoesAndComesBack) {
  Meter& meter = Start();
  meter.Choose({"Graph Options", "Graph Transparency Options", "Custom Transparency"});
  Await("the shape", [&] { return HasShape(meter); });
  EXPECT_EQ(Setting("Transparent"), 1U);
  Stop();
  Meter& again = Start();
  Await("the shape", [&] { return HasShape(again); });
}

TEST_F(WindowEffects, DraggedNearAnEdgeOfTheWorkAreaItDocks) {
  Meter& meter = Start();
  RECT work{};
  ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
  const RECT area = AreaOf(meter.window());
  const POINT from = MiddleOf(AreaOf(meter.graph()));
  Drag(meter.window(), from, {from.x - area.left + work.left + 8, from.y});
  Await("the edge", [&] { return AreaOf(meter.window()).left == work.left; });
  EXPECT_EQ(AreaOf(meter.window()).top, area.top);
  Stop();
  EXPECT_EQ(AreaOf(Start().window()).left, work.left) << "its place is kept";
}

TEST_F(WindowEffects, TitlesAreMarkedAndFreeAgainWhenTheSessionEnds) {
  const HWND other = ::CreateWindowExW(0, L"STATIC", L"Some notes", WS_POPUP | WS_CAPTION, 0, 0,
                                       100, 50, nullptr, nullptr, nullptr, nullptr);
  Store("WindowTitle", std::uint32_t{1});
  Meter& meter = Start();
  Await("the marker", [&] { return TextOf(other).starts_with("Some notes|[ "); });
  EXPECT_EQ(::SendMessageW(meter.window(), WM_QUERYENDSESSION, 0, 0), TRUE);
  ::SendMessageW(meter.window(), WM_ENDSESSION, TRUE, 0);
  Await("the end of the program", [&] { return !meter.program().Running(); });
  EXPECT_EQ(TextOf(other), "Some notes");
  ::DestroyWindow(other);
}

}  // namespace
}  // namespace desktop
