// The keys that a window with a caption hears of, and those that its controls keep.
#include "platform/windowing.h"
#include "tests/contract/controls_fixture.h"

namespace contract {
namespace {

using platform::ButtonKind;
using platform::DialogKey;
using platform::EditKind;

constexpr const char* kDialog = "T_frmControls";

class DialogKeysTest : public ControlsTest {
 protected:
  void Show() { dialog_->Show(platform::Activation::kActivate); }
};

TEST_F(DialogKeysTest, TheWindowHearsOfEachKey) {
  using Kind = DialogKey::Kind;
  Reports silent;
  const auto box = Button("box", ButtonKind::kCheck, silent);
  Show();
  EXPECT_EQ(dialog_reports_.focus_wanted, 1) << "no control has had the keyboard";
  box->Focus();
  for (const bool backwards : {false, true}) {
    desk_->PressTab(kDialog, backwards);
    desk_->PressCtrlTab(kDialog, backwards);
    desk_->PressArrow(kDialog, backwards);
  }
  desk_->PressEnter(kDialog);
  desk_->PressEsc(kDialog);
  desk_->PressAlt(kDialog, 'd');
  const std::vector<DialogKey> keys = {{Kind::kTab, false},
                                       {Kind::kControlTab, false},
                                       {Kind::kArrow, false},
                                       {Kind::kTab, true},
                                       {Kind::kControlTab, true},
                                       {Kind::kArrow, true},
                                       {Kind::kEnter},
                                       {Kind::kEscape},
                                       {Kind::kLetter, false, "d"}};
  EXPECT_EQ(dialog_reports_.keys, keys);
  dialog_->SetEnabled(false);
  desk_->PressEsc(kDialog);
  EXPECT_EQ(dialog_reports_.keys, keys) << "it is disabled by another one";
}

TEST_F(DialogKeysTest, WhatAControlWantsForItselfStaysWithIt) {
  Reports on_edit, on_memo;
  const auto edit = Edit("edit", EditKind::kLine, on_edit);
  const auto memo = Edit("memo", EditKind::kMemo, on_memo);
  Show();
  edit->Focus();
  desk_->Type("edit", "d");
  on_edit.keep_keys = true;
  desk_->PressEnter(kDialog);
  memo->Focus();
  desk_->PressEnter(kDialog);
  EXPECT_EQ(memo->Text(), "\n");
  EXPECT_EQ(dialog_reports_.keys, std::vector<DialogKey>());
  EXPECT_EQ(on_edit.focus_lost, 1);
  edit->Focus();
  on_edit.keys.clear();
  desk_->PressArrow(kDialog, false);
  EXPECT_EQ(on_edit.keys, std::vector<platform::Key>{platform::Key::kDown})
      << "the window had no use for it";
}

TEST_F(DialogKeysTest, AButtonIsPressedAsByTheUserAndTellsOfTheKeyboard) {
  Reports on_box, on_first, on_second, on_push;
  const auto box = Button("box", ButtonKind::kCheck, on_box);
  const auto first = Button("first", ButtonKind::kRadio, on_first);
  const auto second = Button("second", ButtonKind::kRadio, on_second);
  const auto push = Button("push", ButtonKind::kPush, on_push);
  first->SetChecked(true);
  Show();
  for (platform::Button* button : {box.get(), second.get(), push.get()}) {
    button->Focus();
    button->Press();
  }
  EXPECT_TRUE(box->Checked() && second->Checked() && !first->Checked());
  EXPECT_EQ(on_box.clicks, 1);
  EXPECT_EQ(on_first.clicks, 0);
  EXPECT_EQ(on_second.clicks, 1);
  EXPECT_EQ(on_push.clicks, 1);
  EXPECT_EQ(on_push.focus_changes, 1);
  box->Focus();
  EXPECT_EQ(on_push.focus_changes, 2);
}

TEST_F(DialogKeysTest, AWindowWithoutACaptionHasNoneOfIt) {
  DialogReports reports;
  Reports on_button;
  const auto bare = Windowing().CreateTopWindow(
      {"T_frmBare", "", platform::Frame::kSizeableTool, true}, nullptr, reports);
  bare->SetBounds({10, 10, 200, 100});
  const auto button = Windowing().CreateButton(*bare, "button", ButtonKind::kPush, on_button);
  button->SetVisible(true);
  bare->Show(platform::Activation::kActivate);
  desk_->PressEnter("T_frmBare");
  desk_->PressEsc("T_frmBare");
  EXPECT_EQ(reports.keys, std::vector<DialogKey>());
  EXPECT_EQ(reports.focus_wanted, 0);
}

}  // namespace
}  // namespace contract
