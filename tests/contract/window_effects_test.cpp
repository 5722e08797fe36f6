// Dragging, the pointer and the shape of a top window; and what has no file of its own.
#include <gtest/gtest.h>

#include "tests/contract/desk.h"

namespace contract {
namespace {

using platform::Rect;

struct Heard : platform::TopWindowEvents {
  void OnMoving(Rect& bounds) override {
    ++moving;
    asked = bounds;
    was_dragging = window->Dragging();
    if (pull) bounds.left = 0;
  }
  void OnDragEnded() override {
    ++ended;
    bounds_at_end = window->Bounds();
  }
  platform::TopWindow* window = nullptr;
  bool pull = false;
  bool was_dragging = false;
  int moving = 0;
  int ended = 0;
  Rect asked, bounds_at_end;
};

class WindowEffects : public testing::Test {
 protected:
  WindowEffects() {
    window_ = desk_->Platform().windowing.CreateTopWindow(
        {"T_frmEffects", "Effects", platform::Frame::kSizeableTool, true}, nullptr, heard_);
    heard_.window = window_.get();
    surface_ = desk_->Platform().windowing.CreateSurface(*window_, "surface", surface_events_);
    window_->SetBounds({200, 150, 202, 102});
    surface_->SetBounds({0, 0, 200, 100});
    surface_->SetVisible(true);
    window_->Show(platform::Activation::kLeaveFocus);
  }

  std::unique_ptr<Desk> desk_ = MakeDesk();
  Heard heard_;
  platform::WidgetEvents surface_events_;
  std::unique_ptr<platform::TopWindow> window_;
  std::unique_ptr<platform::Widget> surface_;
};

TEST_F(WindowEffects, ADragAsksForEachPlaceAndTellsItsEnd) {
  desk_->Drag("T_frmEffects", {30, 40});
  EXPECT_EQ(heard_.moving, 1);
  EXPECT_TRUE(heard_.was_dragging);
  EXPECT_EQ(heard_.asked, (Rect{230, 190, 202, 102}));
  EXPECT_EQ(window_->Bounds(), (Rect{230, 190, 202, 102}));
  EXPECT_EQ(heard_.ended, 1);
  EXPECT_FALSE(window_->Dragging());

  heard_.pull = true;
  desk_->Drag("T_frmEffects", {-10, 0});
  EXPECT_EQ(window_->Bounds(), (Rect{0, 190, 202, 102}));
  EXPECT_EQ(heard_.bounds_at_end, window_->Bounds());
}

TEST_F(WindowEffects, ThePointerIsOnAWindowAlsoWhenItIsOnAChild) {
  desk_->PointAway();
  EXPECT_FALSE(window_->UnderPointer());
  desk_->PointAt("surface");
  EXPECT_TRUE(window_->UnderPointer());
  window_->SetVisible(false);
  EXPECT_FALSE(window_->UnderPointer());
}

TEST_F(WindowEffects, OpacityAndShapeLeaveTheBoundsAlone) {
  window_->SetAlpha(100);
  const Rect parts[] = {{0, 0, 202, 1}, {10, 10, 5, 5}};
  window_->SetShape(parts);
  window_->SetShape({});
  window_->ResetShape();
  window_->SetAlpha(255);
  EXPECT_EQ(window_->Bounds(), (Rect{200, 150, 202, 102}));
  EXPECT_EQ(window_->ClientSize(), (platform::Size{200, 100}));
}

TEST_F(WindowEffects, WaitingForMessagesEndsAtOnceWithTheProgram) {
  platform::MessageLoop& loop = desk_->Platform().message_loop;
  EXPECT_TRUE(loop.ProcessFor(20));
  loop.Quit();
  EXPECT_FALSE(loop.ProcessFor(60000));
}

TEST_F(WindowEffects, ARowIsReadAsItsPixels) {
  const auto bitmap = desk_->Platform().graphics.CreateBitmap({4, 3});
  ASSERT_NE(bitmap, nullptr);
  bitmap->GetCanvas().Fill({1, 1, 2, 1}, 0x302010);
  platform::Colour row[4] = {1, 1, 1, 1};
  bitmap->ReadRow(1, row);
  for (int x = 0; x < 4; ++x) EXPECT_EQ(row[x], bitmap->Pixel({x, 1})) << x;
  EXPECT_EQ(row[1], 0x302010U);
}

TEST_F(WindowEffects, SmallLettersOfAllScripts) {
  platform::Locale& locale = desk_->Platform().locale;
  EXPECT_EQ(locale.Lower("Mixed 1 |\xC3\x84\xCE\xA9\xD0\x96 \xE6\xBC\xA2"),
            "mixed 1 |\xC3\xA4\xCF\x89\xD0\xB6 \xE6\xBC\xA2");
  EXPECT_EQ(locale.Lower(""), "");
  EXPECT_EQ(locale.Lower("I"), "i") << "whatever the user's language";
}

TEST_F(WindowEffects, AFileThatIsMissingIsNotOpened) {
  EXPECT_FALSE(desk_->Platform().shell.Open("C:\\no such folder\\no such file.html"));
}

}  // namespace
}  // namespace contract
