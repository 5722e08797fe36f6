// What only the real system has: styles, hit tests, messages of the session.
#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <utility>
#include <vector>

#include "platform/windows/machine.h"
#include "platform/windows/widgets/widget_window.h"
#include "platform/windows/windows/window_effects.h"

namespace contract {
namespace {

using platform::Colour;
using platform::Frame;
using platform::Rect;
using platform::windows::WidgetWindow;

struct Heard : platform::TopWindowEvents {
  void OnContextMenu(platform::Point) override { ++context_menus; }
  void OnResume() override { ++resumes; }
  void OnEndSession() override { ++session_ends; }
  void OnMouseMove(const platform::MouseEvent&) override { throw std::runtime_error("a fault"); }
  void OnMoving(Rect& bounds) override {
    asked.push_back(bounds);
    if (bounds.left < 15) bounds.left = 0;
  }
  void OnPlaced() override {
    if (placed) std::exchange(placed, nullptr)();
  }
  std::function<void()> placed;
  std::vector<Rect> asked;
  int context_menus = 0;
  int resumes = 0;
  int session_ends = 0;
};

class RealTopWindow : public testing::Test {
 protected:
  RealTopWindow() {
    window_ = Windowing().CreateTopWindow({"T_frmReal", "Real", Frame::kSizeableTool, true},
                                          nullptr, heard_);
    window_->SetSizeLimits({150, 25}, {350, 200});
    window_->SetBounds({100, 100, 274, 135});
    surface_ = Windowing().CreateSurface(*window_, "surface", surface_events_);
    surface_->SetBounds({0, 0, 272, 133});
    surface_->SetVisible(true);
  }

  platform::Windowing& Windowing() { return machine_.platform().windowing; }
  HWND Window() { return WidgetWindow::Of(*window_); }
  static LRESULT HitTest(HWND hwnd, int x, int y) {
    return ::SendMessageW(hwnd, WM_NCHITTEST, 0, MAKELPARAM(x, y));
  }

  platform::windows::Machine machine_;
  Heard heard_;
  platform::WidgetEvents surface_events_;
  std::unique_ptr<platform::TopWindow> window_;
  std::unique_ptr<platform::Widget> surface_;
};

TEST_F(RealTopWindow, TheBareSizeableToolWindowHasItsStyle) {
  const LONG_PTR style = ::GetWindowLongPtrW(Window(), GWL_STYLE);
  EXPECT_EQ(style & (WS_POPUP | WS_THICKFRAME | WS_BORDER | WS_SYSMENU),
            LONG_PTR{WS_POPUP | WS_THICKFRAME | WS_BORDER | WS_SYSMENU});
  EXPECT_EQ(style & WS_DLGFRAME, 0);
  EXPECT_NE(::GetWindowLongPtrW(Window(), GWL_EXSTYLE) & WS_EX_TOOLWINDOW, 0);
  EXPECT_EQ(::FindWindowW(L"T_frmReal", L"Real"), Window());
}

TEST_F(RealTopWindow, TheHiddenWindowOfTheApplicationOwnsIt) {
  Windowing().SetApplicationTitle("The title");
  Windowing().HideTaskbarButton();
  const HWND application = ::FindWindowW(L"TremoluxApplication", L"The title");
  EXPECT_EQ(::GetWindow(Window(), GW_OWNER), application);
  EXPECT_FALSE(::IsWindowVisible(application));
  EXPECT_NE(::GetWindowLongPtrW(application, GWL_EXSTYLE) & WS_EX_TOOLWINDOW, 0);

  ::SendMessageW(application, WM_CLOSE, 0, 0);
  EXPECT_TRUE(::IsWindow(Window())) << "closing the owner must not take its windows with it";
}

TEST_F(RealTopWindow, TheEdgesSizeTheWindowThroughItsChildren) {
  struct Row {
    const char* why;
    int x, y;  // in the window
    LRESULT code;
  };
  static constexpr Row kRows[] = {
      {"left", 0, 60, HTLEFT},
      {"still left, over the child", 4, 60, HTLEFT},
      {"inside", 6, 60, HTCLIENT},
      {"right", 273, 60, HTRIGHT},
      {"top", 100, 0, HTTOP},
      {"bottom", 100, 134, HTBOTTOM},
      {"top left", 0, 0, HTTOPLEFT},
      {"top right, along the edge", 273, 8, HTTOPRIGHT},
      {"bottom left, along the edge", 8, 134, HTBOTTOMLEFT},
      {"bottom right", 273, 134, HTBOTTOMRIGHT},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.why);
    EXPECT_EQ(HitTest(Window(), 100 + row.x, 100 + row.y), row.code);
    EXPECT_EQ(HitTest(WidgetWindow::Of(*surface_), 100 + row.x, 100 + row.y),
              row.code == HTCLIENT ? HTCLIENT : HTTRANSPARENT);
  }

  window_->SetSizeLimits({274, 25}, {274, 200});
  EXPECT_EQ(HitTest(Window(), 100, 160), HTCLIENT) << "the width is fixed";
  EXPECT_EQ(HitTest(Window(), 100, 100), HTTOP) << "the height is not";
}

TEST_F(RealTopWindow, MessagesOfTheSessionAreHeardAndNeverRefused) {
  EXPECT_EQ(::SendMessageW(Window(), WM_QUERYENDSESSION, 0, 0), TRUE);
  ::SendMessageW(Window(), WM_ENDSESSION, FALSE, 0);
  EXPECT_EQ(heard_.session_ends, 0) << "it was called off";
  ::SendMessageW(Window(), WM_ENDSESSION, TRUE, 0);
  EXPECT_EQ(heard_.session_ends, 1);

  ::SendMessageW(Window(), WM_POWERBROADCAST, PBT_APMSUSPEND, 0);
  ::SendMessageW(Window(), WM_POWERBROADCAST, PBT_APMRESUMEAUTOMATIC, 0);
  EXPECT_EQ(heard_.resumes, 1);
}

TEST_F(RealTopWindow, AnExceptionInAReportEndsInTheWindow) {
  EXPECT_NO_THROW(::SendMessageW(Window(), WM_MOUSEMOVE, 0, MAKELPARAM(5, 5)));
}

TEST_F(RealTopWindow, AWidgetWhoseWindowWentWithItsParentDoesNothing) {
  window_.reset();
  surface_->SetBounds({1, 1, 10, 10});
  surface_->SetText("text");
  surface_->SetFont({});
  surface_->SetColours(1, 2);
  surface_->SetVisible(true);
  surface_->Invalidate();
  EXPECT_EQ(surface_->Bounds(), Rect{});
  EXPECT_EQ(surface_->Text(), "");
  EXPECT_FALSE(surface_->Visible());
}

TEST_F(RealTopWindow, OpacityAddsTheBitsOfTheMaskThatTheSystemTakes) {
  EXPECT_EQ(::GetWindowLongPtrW(Window(), GWL_EXSTYLE) & WS_EX_LAYERED, 0);
  for (const int alpha : {190, 255, 0}) {
    SCOPED_TRACE(alpha);
    window_->SetAlpha(static_cast<std::uint8_t>(alpha));
    constexpr LONG_PTR kTaken = 0x888888 & ~LONG_PTR{WS_EX_TOPMOST};
    EXPECT_EQ(::GetWindowLongPtrW(Window(), GWL_EXSTYLE) & kTaken, kTaken);
    EXPECT_FALSE(window_->Topmost());
    COLORREF key = 0;
    BYTE set = 0;
    DWORD flags = 0;
    ASSERT_TRUE(::GetLayeredWindowAttributes(Window(), &key, &set, &flags));
    EXPECT_EQ(set, alpha);
    EXPECT_EQ(flags, DWORD{2});
  }
}

TEST_F(RealTopWindow, LayeredWindowsCameWithVersionFiveOfTheFamily) {
  using platform::windows::HasLayeredWindows;
  EXPECT_TRUE(HasLayeredWindows(VER_PLATFORM_WIN32_NT, 5));
  EXPECT_TRUE(HasLayeredWindows(VER_PLATFORM_WIN32_NT, 10));
  EXPECT_FALSE(HasLayeredWindows(VER_PLATFORM_WIN32_NT, 4));
  EXPECT_FALSE(HasLayeredWindows(VER_PLATFORM_WIN32_WINDOWS, 5));
}

// One that always stays on top lies below the dialog, and would get it from the system.
TEST_F(RealTopWindow, ADialogGivesTheKeyboardBackToTheWindowThatHadIt) {
  window_->SetTopmost(true);
  window_->Show(platform::Activation::kLeaveFocus);
  platform::TopWindowEvents quiet;
  const auto work = Windowing().CreateTopWindow({"work", "", Frame::kDialog}, nullptr, quiet);
  const auto dialog = Windowing().CreateTopWindow({"dialog", "", Frame::kDialog}, nullptr, quiet);
  work->Show(platform::Activation::kActivate);
  dialog->Show(platform::Activation::kActivate);
  ASSERT_EQ(::GetForegroundWindow(), WidgetWindow::Of(*dialog));
  dialog->SetVisible(false);
  EXPECT_EQ(::GetForegroundWindow(), WidgetWindow::Of(*work));

  dialog->Show(platform::Activation::kActivate);
  window_->Raise();
  dialog->SetVisible(false);
  EXPECT_EQ(::GetForegroundWindow(), Window()) << "the user had gone on elsewhere";

  work->Raise();
  dialog->Show(platform::Activation::kActivate);
  work->SetVisible(false);
  dialog->SetVisible(false);
  EXPECT_NE(::GetForegroundWindow(), WidgetWindow::Of(*work)) << "it is not there any more";
}

TEST_F(RealTopWindow, OnlyTheShapeIsThereForTheMouse) {
  window_->Show(platform::Activation::kLeaveFocus);
  const Rect parts[] = {{0, 0, 274, 1}, {50, 40, 100, 50}};
  window_->SetShape(parts);
  EXPECT_EQ(::WindowFromPoint({160, 150}), WidgetWindow::Of(*surface_));
  EXPECT_NE(::WindowFromPoint({120, 120}), WidgetWindow::Of(*surface_));
  const DWORD objects = ::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS);
  for (int width = 1; width < 100; ++width) {
    const Rect part[] = {{0, 0, width, 10}};
    window_->SetShape(part);
  }
  EXPECT_LE(::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS), objects + 1);
  window_->ResetShape();
  EXPECT_EQ(::WindowFromPoint({120, 120}), WidgetWindow::Of(*surface_));
}

TEST_F(RealTopWindow, WhereAnotherProgramMovesTheWindowItIsAskedOnceAtTheEnd) {
  ::SendMessageW(Window(), WM_ENTERSIZEMOVE, 0, 0);
  ::SetWindowPos(Window(), nullptr, 9, 300, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
  EXPECT_TRUE(heard_.asked.empty());
  ::SendMessageW(Window(), WM_EXITSIZEMOVE, 0, 0);
  EXPECT_EQ(heard_.asked, (std::vector<Rect>{{9, 300, 274, 135}}));
  EXPECT_EQ(window_->Bounds(), (Rect{0, 300, 274, 135}));

  ::SendMessageW(Window(), WM_ENTERSIZEMOVE, 0, 0);
  ::SetWindowPos(Window(), nullptr, 0, 0, 300, 135, SWP_NOMOVE | SWP_NOZORDER);
  ::SendMessageW(Window(), WM_EXITSIZEMOVE, 0, 0);
  EXPECT_EQ(heard_.asked.size(), 1U) << "sized, not moved";
}

TEST_F(RealTopWindow, HangsOnThePointerWhereTheButtonWentDownHoweverLongTheFirstMove) {
  const HWND surface = WidgetWindow::Of(*surface_);
  const auto drag = [&] {
    ::PostMessageW(Window(), WM_LBUTTONUP, 0, 0);
    window_->BeginDrag();
    return window_->Bounds();
  };
  ::SetCursorPos(420, 330);
  EXPECT_EQ(drag(), (Rect{100, 100, 274, 135})) << "pressed elsewhere: it does not jump";
  ::SendMessageW(surface, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(19, 29));
  ::SendMessageW(surface, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(319, 229));
  EXPECT_EQ(drag(), (Rect{400, 300, 274, 135}));

  ::SetCursorPos(520, 430);
  EXPECT_EQ(drag(), (Rect{400, 300, 274, 135})) << "that press is over";
  for (const UINT end : {WM_LBUTTONUP, WM_MOUSEMOVE}) {
    ::SendMessageW(surface, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(19, 29));
    ::SendMessageW(surface, end, 0, MAKELPARAM(19, 29));
    EXPECT_EQ(drag(), (Rect{400, 300, 274, 135})) << "it was let go in between";
  }
}

TEST_F(RealTopWindow, ADragCountsFromThePlaceWhereThePointerHasTheWindow) {
  ::SetCursorPos(420, 330);
  ::SendMessageW(WidgetWindow::Of(*surface_), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(19, 29));
  // On the way from the button to the drag the pointer goes on.
  heard_.placed = [&] {
    ::SetCursorPos(470, 350);
    RECT proposed{0, 0, 274, 135};
    ::SendMessageW(Window(), WM_ENTERSIZEMOVE, 0, 0);
    ::SendMessageW(Window(), WM_MOVING, WMSZ_TOP, reinterpret_cast<LPARAM>(&proposed));
    ::SendMessageW(Window(), WM_EXITSIZEMOVE, 0, 0);
  };
  ::PostMessageW(Window(), WM_LBUTTONUP, 0, 0);
  window_->BeginDrag();
  ASSERT_FALSE(heard_.asked.empty());
  EXPECT_EQ(heard_.asked[0], (Rect{450, 320, 274, 135}));
}

// Fills its surface with a colour and, inside, asks for another painting.
struct Green : platform::WidgetEvents {
  void OnPaint(platform::Canvas& canvas) override {
    ++paintings;
    extent = canvas.Extent();
    canvas.Fill({0, 0, extent.width, extent.height}, platform::colour::kLime);
  }
  int paintings = 0;
  platform::Size extent;
};

TEST_F(RealTopWindow, APartThatIsUncoveredIsPaintedFromAWholePicture) {
  Green events;
  const auto painted = Windowing().CreateSurface(*surface_, "painted", events);
  painted->SetBounds({20, 20, 50, 40});
  painted->SetVisible(true);
  window_->Show(platform::Activation::kLeaveFocus);
  const HWND hwnd = WidgetWindow::Of(*painted);
  ::UpdateWindow(hwnd);
  events = {};

  const RECT part{10, 10, 12, 12};
  ::InvalidateRect(hwnd, &part, FALSE);
  ::UpdateWindow(hwnd);
  EXPECT_EQ(events.paintings, 1);
  EXPECT_EQ(events.extent, (platform::Size{50, 40}));
  const HDC dc = ::GetDC(hwnd);
  EXPECT_EQ(::GetPixel(dc, 11, 11), platform::colour::kLime);
  ::ReleaseDC(hwnd, dc);
}

// Notes how wide the entries come out, and chooses by Esc.
struct WidthPainter final : platform::MenuPainter {
  explicit WidthPainter(platform::Menus& of) : menus(of) {}
  platform::Size Measure(const platform::MenuEntry&, platform::Canvas&, int) override {
    return {150, 18};
  }
  void Paint(const platform::MenuEntry&, const platform::MenuEntryState&, platform::Canvas&,
             const Rect& area) override {
    painted = area;
    menus.Cancel();
  }
  void Highlighted(const platform::MenuEntry*, const Rect&) override {}
  platform::Menus& menus;
  Rect painted;
};

TEST_F(RealTopWindow, AMenuEntryIsAboutAsWideAsItMeasured) {
  WidthPainter painter(machine_.platform().menus);
  platform::MenuEntry entry;
  entry.id = 1;
  entry.text = "Entry";
  EXPECT_EQ(machine_.platform().menus.Popup(*window_, {300, 300}, {entry}, painter), 0);
  EXPECT_EQ(painter.painted.height, 18);
  EXPECT_NEAR(painter.painted.width, 150, 3) << "without the check mark that the system adds";
}

// Presses a key when the menu stands.
struct KeyPresser final : platform::MenuPainter {
  platform::Size Measure(const platform::MenuEntry&, platform::Canvas&, int) override {
    return {150, 18};
  }
  void Paint(const platform::MenuEntry&, const platform::MenuEntryState&, platform::Canvas&,
             const Rect&) override {
    ::PostMessageW(::FindWindowW(L"TremoluxMenu", nullptr), WM_KEYDOWN, VK_F7, 0);
  }
  void Highlighted(const platform::MenuEntry*, const Rect&) override {}
};

TEST_F(RealTopWindow, TheKeysOfAMenuEntryChooseItAlsoInAClosedSubmenu) {
  KeyPresser painter;
  platform::MenuEntry entry;
  entry.id = 1;
  entry.text = "Submenu";
  entry.children = {{}, {}};
  entry.children[0].id = 2;
  entry.children[1].id = 3;
  entry.children[1].keys = {VK_F7};
  EXPECT_EQ(machine_.platform().menus.Popup(*window_, {300, 300}, {entry}, painter), 3);
}

TEST_F(RealTopWindow, TheKeyOfTheMenuBarOpensTheMenuThatABareWindowHas) {
  ::SendMessageW(Window(), WM_SYSCOMMAND, SC_KEYMENU, 0);
  EXPECT_EQ(heard_.context_menus, 1);
}

}  // namespace
}  // namespace contract
