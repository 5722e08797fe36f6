#include "platform/windowing.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/contract/desk.h"

namespace contract {
namespace {

using platform::Activation;
using platform::Frame;
using platform::MouseButton;
using platform::MouseEvent;
using platform::Point;
using platform::Rect;
using platform::Size;

// Writes down what a window reports.
struct Heard : platform::TopWindowEvents {
  void OnMouseMove(const MouseEvent& event) override { moves.push_back(event); }
  void OnDoubleClick(const MouseEvent& event) override { double_clicks.push_back(event); }
  void OnContextMenu(Point at) override { context_menus.push_back(at); }
  void OnResize(Size size) override { sizes.push_back(size); }
  void OnClose() override {
    ++closes;
    if (on_close) on_close();
  }
  void OnPlaced() override { ++placed; }

  std::vector<MouseEvent> moves;
  std::vector<MouseEvent> double_clicks;
  std::vector<Point> context_menus;
  std::vector<Size> sizes;
  int closes = 0;
  int placed = 0;
  std::function<void()> on_close;
};

class WindowingTest : public testing::Test {
 protected:
  WindowingTest() {
    window_ = Windowing().CreateTopWindow({"T_frmContract", "Contract", Frame::kSizeableTool, true},
                                          nullptr, heard_);
    window_->SetSizeLimits({100, 40}, {400, 300});
    surface_ = Windowing().CreateSurface(*window_, "surface", surface_heard_);
    text_ = Windowing().CreateText(*surface_, "text", {}, text_heard_);
  }

  platform::Windowing& Windowing() { return desk_->Platform().windowing; }

  void ShowAll() {
    window_->SetBounds({60, 50, 202, 102});
    surface_->SetBounds({0, 0, 200, 100});
    text_->SetBounds({10, 20, 100, 17});
    surface_->SetVisible(true);
    text_->SetVisible(true);
    window_->Show(Activation::kLeaveFocus);
  }

  std::unique_ptr<Desk> desk_ = MakeDesk();
  Heard heard_, surface_heard_, text_heard_;
  std::unique_ptr<platform::TopWindow> window_;
  std::unique_ptr<platform::Widget> surface_, text_;
};

TEST_F(WindowingTest, WidgetsBeginHiddenWithoutASizeAndSilent) {
  EXPECT_EQ(window_->Bounds(), Rect{});
  EXPECT_EQ(surface_->Bounds(), Rect{});
  EXPECT_EQ(text_->Bounds(), Rect{});
  EXPECT_FALSE(window_->Visible() || surface_->Visible() || text_->Visible());
  EXPECT_TRUE(window_->Enabled() && surface_->Enabled() && text_->Enabled());
  EXPECT_EQ(window_->Text(), "Contract");
  EXPECT_EQ(heard_.placed, 0);
  EXPECT_TRUE(heard_.sizes.empty() && surface_heard_.sizes.empty());
}

TEST_F(WindowingTest, ABareWindowHasAFrameOfOnePixel) {
  ShowAll();
  EXPECT_EQ(window_->ClientSize(), (Size{200, 100}));
  EXPECT_EQ(window_->ToScreen({0, 0}), (Point{61, 51}));
  EXPECT_EQ(surface_->Bounds(), (Rect{0, 0, 200, 100}));
  EXPECT_EQ(text_->Bounds(), (Rect{10, 20, 100, 17}));
  EXPECT_EQ(text_->ToScreen({1, 2}), (Point{72, 73}));
}

TEST_F(WindowingTest, AChangeOfSizeOrPlaceIsReportedOnce) {
  ShowAll();
  EXPECT_EQ(heard_.sizes, (std::vector<Size>{{200, 100}}));
  EXPECT_EQ(heard_.placed, 1) << "to show it is no change of its place";
  EXPECT_EQ(surface_heard_.sizes, (std::vector<Size>{{200, 100}}));

  window_->SetBounds(window_->Bounds());
  surface_->SetBounds(surface_->Bounds());
  EXPECT_EQ(heard_.placed, 1) << "the same again is no change";
  EXPECT_EQ(surface_heard_.sizes.size(), 1U);

  window_->SetBounds({80, 50, 202, 102});
  EXPECT_EQ(heard_.placed, 2);
  EXPECT_EQ(heard_.sizes.size(), 1U) << "only moved";

  surface_->SetBounds({5, 5, 200, 100});
  EXPECT_EQ(surface_heard_.sizes.size(), 1U) << "only moved";
  window_->SetVisible(false);
  EXPECT_EQ(heard_.placed, 2);
}

TEST_F(WindowingTest, TheUserSizesWithinTheLimits) {
  ShowAll();
  struct Row {
    const char* why;
    Rect wanted, got;
  };
  static constexpr Row kRows[] = {
      {"inside the limits", {60, 50, 300, 200}, {60, 50, 300, 200}},
      {"too small", {60, 50, 99, 39}, {60, 50, 100, 40}},
      {"too large", {60, 50, 401, 301}, {60, 50, 400, 300}},
      {"wide and flat", {60, 50, 1000, 1}, {60, 50, 400, 40}},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.why);
    desk_->Place("T_frmContract", row.wanted);
    EXPECT_EQ(window_->Bounds(), row.got);
  }
}

TEST_F(WindowingTest, TextComesBackAsItWasSet) {
  for (const char* text : {"[ DL:0,0 kB UL:0,0 kB ]", "a && b",
                           "Gr\xC3\xB6\xC3\x9F"
                           "e \xE6\xBC\xA2\xE5\xAD\x97 \xF0\x9F\x98\x80",
                           ""}) {
    SCOPED_TRACE(text);
    window_->SetText(text);
    surface_->SetText(text);
    text_->SetText(text);
    EXPECT_EQ(window_->Text(), text);
    EXPECT_EQ(surface_->Text(), text);
    EXPECT_EQ(text_->Text(), text);
  }
}

TEST_F(WindowingTest, AWidgetKnowsItsOwnFlagsWhateverItsParentsAre) {
  surface_->SetVisible(true);
  EXPECT_TRUE(surface_->Visible()) << "though the window is hidden";
  window_->SetEnabled(false);
  EXPECT_FALSE(window_->Enabled());
  EXPECT_TRUE(surface_->Enabled());
  text_->SetEnabled(false);
  EXPECT_FALSE(text_->Enabled());
}

TEST_F(WindowingTest, TopmostComesAndGoesWithoutMovingTheWindow) {
  ShowAll();
  EXPECT_FALSE(window_->Topmost());
  window_->SetTopmost(true);
  EXPECT_TRUE(window_->Topmost());
  window_->SetTopmost(false);
  EXPECT_FALSE(window_->Topmost());
  EXPECT_EQ(window_->Bounds(), (Rect{60, 50, 202, 102}));
  EXPECT_EQ(heard_.placed, 1);
}

TEST_F(WindowingTest, TheMouseIsReportedByTheWidgetThatItIsOn) {
  ShowAll();
  desk_->MoveMouse("text", {30, 8}, true);
  desk_->DoubleClick("surface", {40, 50});
  desk_->RightClick("text", {30, 8});

  ASSERT_EQ(text_heard_.moves.size(), 1U);
  EXPECT_EQ(text_heard_.moves[0].at, (Point{30, 8}));
  EXPECT_EQ(text_heard_.moves[0].button, MouseButton::kNone);
  EXPECT_TRUE(text_heard_.moves[0].left_down);
  EXPECT_TRUE(surface_heard_.moves.empty() && heard_.moves.empty());

  ASSERT_EQ(surface_heard_.double_clicks.size(), 1U);
  EXPECT_EQ(surface_heard_.double_clicks[0].at, (Point{40, 50}));
  EXPECT_EQ(surface_heard_.double_clicks[0].button, MouseButton::kLeft);

  EXPECT_EQ(text_heard_.context_menus, (std::vector<Point>{text_->ToScreen({30, 8})}));
  EXPECT_TRUE(surface_heard_.context_menus.empty() && heard_.context_menus.empty());
}

TEST_F(WindowingTest, TheCloseBoxOnlyAsks) {
  ShowAll();
  desk_->ClickCloseBox("T_frmContract");
  EXPECT_EQ(heard_.closes, 1);
  EXPECT_TRUE(window_->Visible());
}

TEST_F(WindowingTest, AReportMayDestroyTheWindowThatMadeIt) {
  ShowAll();
  heard_.on_close = [this] {
    text_.reset();
    surface_.reset();
    window_.reset();
  };
  desk_->ClickCloseBox("T_frmContract");
  EXPECT_EQ(window_, nullptr);
}

TEST_F(WindowingTest, TwoWindowsOfOneFormLiveSideBySide) {
  Heard other_heard;
  const auto other = Windowing().CreateTopWindow({"T_frmContract", "Other", Frame::kDialog, false},
                                                 window_.get(), other_heard);
  other->SetBounds({0, 0, 300, 200});
  EXPECT_EQ(other->Text(), "Other");
  EXPECT_LT(other->ClientSize().height, 200) << "with a caption";
  EXPECT_EQ(window_->Text(), "Contract");
  EXPECT_EQ(heard_.placed, 0);
}

}  // namespace
}  // namespace contract
