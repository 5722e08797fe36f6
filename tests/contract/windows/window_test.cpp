// Top windows: what they report, how they are sized and dragged, and what the system tells them.
#include <stdexcept>

#include "platform/top_window.h"
#include "tests/contract/windows/desk.h"

namespace contract {
namespace {

using platform::Activation;
using platform::Frame;
using platform::Rect;
using platform::Size;

struct Heard : platform::TopWindowEvents {
  void OnContextMenu(platform::Point) override { ++context_menus; }
  void OnResume() override { ++resumes; }
  void OnSettingChange() override { ++setting_changes; }
  void OnDisplayChange() override { ++display_changes; }
  void OnEndSession() override { ++session_ends; }
  void OnMouseMove(const platform::MouseEvent&) override { throw std::runtime_error("a fault"); }
  void OnResize(Size size) override { sizes.push_back(size); }
  void OnMoving(Rect& bounds) override {
    asked.push_back(bounds);
    if (bounds.left < 15) bounds.left = 0;
  }
  void OnDragEnded() override { ++drags; }
  void OnPlaced() override {
    ++placed;
    if (on_placed) std::exchange(on_placed, nullptr)();
  }
  void OnClose() override {
    if (on_close) on_close();
  }
  std::function<void()> on_placed, on_close;
  std::vector<Rect> asked;
  std::vector<Size> sizes;
  int context_menus = 0, resumes = 0, session_ends = 0, placed = 0, drags = 0;
  int setting_changes = 0, display_changes = 0;
};

// Fills its surface with a colour.
struct Green : platform::WidgetEvents {
  void OnPaint(platform::Canvas& canvas) override {
    ++paintings;
    extent = canvas.Extent();
    canvas.Fill({0, 0, extent.width, extent.height}, platform::colour::kLime);
  }
  int paintings = 0;
  Size extent;
};

class TopWindow : public DeskTest {
 protected:
  HWND Hwnd() { return WidgetWindow::Of(*window_); }
  HWND Surface() { return WidgetWindow::Of(*surface_); }
  void Tell(UINT message, WPARAM w = 0, LPARAM l = 0) { ::SendMessageW(Hwnd(), message, w, l); }
  static LRESULT HitTest(HWND hwnd, int x, int y) {
    return ::SendMessageW(hwnd, WM_NCHITTEST, 0, MAKELPARAM(x, y));
  }
  // As when the button, held down on the window, comes up at once.
  Rect BeginAndEndDrag() {
    ::PostMessageW(Hwnd(), WM_LBUTTONUP, 0, 0);
    window_->BeginDrag();
    return window_->Bounds();
  }

  Heard heard_;
  Green green_;
  std::unique_ptr<platform::TopWindow> window_ = Window("T_frmReal", Frame::kSizeableTool, heard_);
  std::unique_ptr<platform::Widget> surface_ =
      Placed(Windowing().CreateSurface(*window_, "surface", green_), {0, 0, 272, 133});
};

TEST_F(TopWindow, ABareOneHasAFrameOfOnePixelAndAnOwnerThatTakesNobodyAlong) {
  EXPECT_EQ(window_->ClientSize(), (Size{272, 133}));
  EXPECT_EQ(surface_->ToScreen({1, 2}), (platform::Point{102, 103}));
  ::SendMessageW(::GetWindow(Hwnd(), GW_OWNER), WM_CLOSE, 0, 0);
  EXPECT_TRUE(::IsWindow(Hwnd()));

  platform::TopWindowEvents silent;
  const auto dialog = Window("T_frmReal", Frame::kDialog, silent);
  dialog->SetClientSize({277, 102});
  EXPECT_EQ(dialog->ClientSize(), (Size{277, 102}));
  EXPECT_GT(dialog->Bounds().height, 110) << "with a caption";
}

TEST_F(TopWindow, AChangeOfSizeOrPlaceIsReportedOnce) {
  EXPECT_EQ(heard_.sizes, (std::vector<Size>{{272, 133}}));
  EXPECT_EQ(heard_.placed, 1);
  window_->Show(Activation::kLeaveFocus);
  window_->SetBounds(window_->Bounds());
  window_->SetTopmost(true);
  window_->SetTopmost(false);
  window_->SetVisible(false);
  EXPECT_EQ(heard_.placed, 1) << "none of it moves the window";
  window_->SetBounds({80, 50, 274, 135});
  EXPECT_EQ(heard_.placed, 2);
  EXPECT_EQ(heard_.sizes.size(), 1U) << "only moved";
}

TEST_F(TopWindow, AReportMayDestroyItAndWhoLosesItsWindowDoesNothing) {
  heard_.on_close = [this] { window_.reset(); };
  Tell(WM_SYSCOMMAND, SC_CLOSE);
  EXPECT_EQ(window_, nullptr);
  surface_->SetBounds({1, 1, 10, 10});
  surface_->SetText("text");
  surface_->SetFont({});
  surface_->SetColours(1, 2);
  surface_->SetVisible(true);
  EXPECT_EQ(surface_->Bounds(), Rect{});
  EXPECT_EQ(surface_->Text(), "");
}

TEST_F(TopWindow, TheEdgesSizeItThroughItsChildrenWithinTheLimits) {
  struct Row {
    const char* why;
    int x, y;  // in the window
    LRESULT code;
  };
  static constexpr Row kRows[] = {
      {"left, over the child", 4, 60, HTLEFT},
      {"inside", 6, 60, HTCLIENT},
      {"top right, along the edge", 273, 8, HTTOPRIGHT},
      {"bottom left, along the edge", 8, 134, HTBOTTOMLEFT},
  };
  window_->SetSizeLimits({150, 25}, {350, 200});
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.why);
    EXPECT_EQ(HitTest(Hwnd(), 100 + row.x, 100 + row.y), row.code);
    EXPECT_EQ(HitTest(Surface(), 100 + row.x, 100 + row.y),
              row.code == HTCLIENT ? HTCLIENT : HTTRANSPARENT);
  }
  ::SetWindowPos(Hwnd(), nullptr, 100, 100, 351, 24, SWP_NOZORDER | SWP_NOACTIVATE);
  EXPECT_EQ(window_->Bounds(), (Rect{100, 100, 350, 25}));
  window_->SetSizeLimits({350, 25}, {350, 200});
  EXPECT_EQ(HitTest(Hwnd(), 100, 112), HTCLIENT) << "the width is fixed";
  EXPECT_EQ(HitTest(Hwnd(), 100, 100), HTTOP) << "the height is not";
}

TEST_F(TopWindow, MessagesOfTheSystemAreHeardAndFaultsStayInside) {
  Tell(WM_ENDSESSION, FALSE);
  EXPECT_EQ(heard_.session_ends, 0) << "it was called off";
  Tell(WM_POWERBROADCAST, PBT_APMSUSPEND);
  Tell(WM_POWERBROADCAST, PBT_APMRESUMEAUTOMATIC);
  EXPECT_EQ(heard_.resumes, 1);
  Tell(WM_SYSCOLORCHANGE);
  Tell(WM_SETTINGCHANGE, SPI_SETWORKAREA);
  EXPECT_EQ(heard_.setting_changes, 2);
  EXPECT_EQ(heard_.display_changes, 1);
  Tell(WM_SYSCOMMAND, SC_KEYMENU);
  EXPECT_EQ(heard_.context_menus, 1) << "the key of the menu bar";
  EXPECT_NO_THROW(Tell(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5)));
}

// One that always stays on top lies below the dialog, and would get it from the system.
TEST_F(TopWindow, ADialogGivesTheKeyboardBackToTheWindowThatHadIt) {
  window_->SetTopmost(true);
  window_->Show(Activation::kLeaveFocus);
  platform::TopWindowEvents quiet;
  const auto work = Window("work", Frame::kDialog, quiet);
  const auto dialog = Window("dialog", Frame::kDialog, quiet);
  work->Show(Activation::kActivate);
  dialog->Show(Activation::kActivate);
  ASSERT_EQ(::GetForegroundWindow(), WidgetWindow::Of(*dialog));
  dialog->SetVisible(false);
  EXPECT_EQ(::GetForegroundWindow(), WidgetWindow::Of(*work));

  dialog->Show(Activation::kActivate);
  window_->Raise();
  dialog->SetVisible(false);
  EXPECT_EQ(::GetForegroundWindow(), Hwnd()) << "the user had gone on elsewhere";

  work->Raise();
  dialog->Show(Activation::kActivate);
  work->SetVisible(false);
  dialog->SetVisible(false);
  EXPECT_NE(::GetForegroundWindow(), WidgetWindow::Of(*work)) << "it is not there any more";
}

TEST_F(TopWindow, OnlyTheShapeIsThereForTheMouse) {
  window_->Show(Activation::kLeaveFocus);
  const Rect parts[] = {{0, 0, 274, 1}, {50, 40, 100, 50}};
  window_->SetShape(parts);
  EXPECT_EQ(::WindowFromPoint({160, 150}), Surface());
  EXPECT_NE(::WindowFromPoint({120, 120}), Surface());
  desktop::MoveMouse({160, 150});
  EXPECT_TRUE(window_->UnderPointer()) << "also on a child";
  window_->ResetShape();
  EXPECT_EQ(::WindowFromPoint({120, 120}), Surface());
  window_->SetVisible(false);
  EXPECT_FALSE(window_->UnderPointer());
}

TEST_F(TopWindow, WhereAnotherProgramMovesTheWindowItIsAskedOnceAtTheEnd) {
  Tell(WM_ENTERSIZEMOVE);
  EXPECT_TRUE(window_->Dragging());
  ::SetWindowPos(Hwnd(), nullptr, 9, 300, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
  EXPECT_TRUE(heard_.asked.empty());
  Tell(WM_EXITSIZEMOVE);
  EXPECT_EQ(heard_.asked, (std::vector<Rect>{{9, 300, 274, 135}}));
  EXPECT_EQ(window_->Bounds(), (Rect{0, 300, 274, 135}));
  EXPECT_EQ(heard_.drags, 1);
  EXPECT_FALSE(window_->Dragging());
}

TEST_F(TopWindow, HangsOnThePointerWhereTheButtonWentDownHoweverLongTheFirstMove) {
  ::SetCursorPos(420, 330);
  EXPECT_EQ(BeginAndEndDrag(), (Rect{100, 100, 274, 135})) << "pressed elsewhere: it does not jump";
  ::SendMessageW(Surface(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(19, 29));
  ::SendMessageW(Surface(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(319, 229));
  EXPECT_EQ(BeginAndEndDrag(), (Rect{400, 300, 274, 135}));

  ::SetCursorPos(520, 430);
  EXPECT_EQ(BeginAndEndDrag(), (Rect{400, 300, 274, 135})) << "that press is over";
  static constexpr UINT kEnds[] = {WM_LBUTTONUP, WM_MOUSEMOVE};
  for (const UINT end : kEnds) {
    ::SendMessageW(Surface(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(19, 29));
    ::SendMessageW(Surface(), end, 0, MAKELPARAM(19, 29));
    EXPECT_EQ(BeginAndEndDrag(), (Rect{400, 300, 274, 135})) << "it was let go in between";
  }

  ::SendMessageW(Surface(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(119, 129));
  // On the way from the button to the drag the pointer goes on.
  heard_.on_placed = [&] {
    ::SetCursorPos(570, 450);
    RECT proposed{0, 0, 274, 135};
    Tell(WM_ENTERSIZEMOVE);
    Tell(WM_MOVING, WMSZ_TOP, reinterpret_cast<LPARAM>(&proposed));
    Tell(WM_EXITSIZEMOVE);
  };
  ::SetCursorPos(540, 440);
  heard_.asked.clear();
  BeginAndEndDrag();
  ASSERT_FALSE(heard_.asked.empty());
  EXPECT_EQ(heard_.asked[0], (Rect{450, 320, 274, 135}));
}

TEST_F(TopWindow, APartThatIsUncoveredIsPaintedFromAWholePicture) {
  window_->Show(Activation::kLeaveFocus);
  ::UpdateWindow(Surface());
  green_ = {};
  const RECT part{10, 10, 12, 12};
  ::InvalidateRect(Surface(), &part, FALSE);
  ::UpdateWindow(Surface());
  EXPECT_EQ(green_.paintings, 1);
  EXPECT_EQ(green_.extent, (Size{272, 133}));
  const HDC dc = ::GetDC(Surface());
  EXPECT_EQ(::GetPixel(dc, 11, 11), platform::colour::kLime);
  ::ReleaseDC(Surface(), dc);
}

}  // namespace
}  // namespace contract
