// The keyboard in windows with a caption.
#include "platform/windowing.h"
#include "tests/contract/controls_fixture.h"

namespace contract {
namespace {

using platform::Activation;
using platform::ButtonKind;
using platform::EditKind;
using platform::Widget;

constexpr const char* kDialog = "T_frmControls";

class DialogKeysTest : public ControlsTest {
 protected:
  void Show() { dialog_->Show(Activation::kActivate); }
};

TEST_F(DialogKeysTest, TabGoesThroughTheControlsInOrderOfCreation) {
  Reports silent;
  const auto label = Placed(Windowing().CreateText(*dialog_, "label", {}, silent));
  const auto first = Edit("first", EditKind::kLine, silent);
  const auto surface = Placed(Windowing().CreateSurface(*dialog_, "surface", silent), 80);
  const auto off = Button("off", ButtonKind::kPush, silent);
  const auto unchosen = Button("unchosen", ButtonKind::kRadio, silent);
  const auto chosen = Button("chosen", ButtonKind::kRadio, silent);
  const auto last = Button("last", ButtonKind::kPush, silent);
  // Made last, but they lie on the surface.
  const auto inner = Windowing().CreateButton(*surface, "inner", ButtonKind::kCheck, silent);
  const auto hidden = Windowing().CreateButton(*surface, "hidden", ButtonKind::kPush, silent);
  inner->SetVisible(true);
  off->SetEnabled(false);
  chosen->SetChecked(true);
  Show();
  EXPECT_TRUE(first->HasFocus()) << "a dialog begins in its first control";

  const std::vector<const Widget*> round = {inner.get(), chosen.get(), last.get(), first.get()};
  for (const Widget* next : round) {
    desk_->PressTab(kDialog, false);
    EXPECT_TRUE(next->HasFocus());
  }
  for (const Widget* next : {last.get(), chosen.get(), inner.get()}) {
    desk_->PressTab(kDialog, true);
    EXPECT_TRUE(next->HasFocus());
  }
  EXPECT_TRUE(surface->HasFocus()) << "it lies on it";
}

TEST_F(DialogKeysTest, TabSelectsTheTextThatItComesTo) {
  Reports reports;
  const auto first = Button("first", ButtonKind::kPush, reports);
  const auto edit = Edit("edit", EditKind::kLine, reports);
  edit->SetText("old");
  Show();
  desk_->PressTab(kDialog, false);
  desk_->Type("edit", "n");
  EXPECT_EQ(edit->Text(), "n");
  EXPECT_EQ(reports.focus_lost, 0);
  desk_->PressTab(kDialog, false);
  EXPECT_EQ(reports.focus_lost, 1);
}

TEST_F(DialogKeysTest, EnterPressesTheDefaultButtonUnlessSomethingElseWantsIt) {
  Reports on_edit, on_default, on_other, on_memo;
  const auto edit = Edit("edit", EditKind::kLine, on_edit);
  const auto memo = Edit("memo", EditKind::kMemo, on_memo);
  const auto surface = Placed(Windowing().CreateSurface(*dialog_, "surface", on_memo), 40);
  const auto ok = Windowing().CreateButton(*surface, "ok", ButtonKind::kPush, on_default);
  const auto other = Button("other", ButtonKind::kPush, on_other);
  ok->SetVisible(true);
  ok->SetDefault(true);
  Show();
  desk_->PressEnter(kDialog);
  EXPECT_EQ(on_default.clicks, 1) << "though it lies on a surface";
  EXPECT_TRUE(edit->HasFocus()) << "the keyboard stays where it is";
  on_edit.keep_keys = true;
  desk_->PressEnter(kDialog);
  EXPECT_EQ(on_default.clicks, 1) << "the edit kept it";
  other->Focus();
  desk_->PressEnter(kDialog);
  EXPECT_EQ(on_default.clicks, 1);
  EXPECT_EQ(on_other.clicks, 1) << "it has the keyboard";
  memo->Focus();
  desk_->PressEnter(kDialog);
  EXPECT_EQ(memo->Text(), "\n");
  ok->SetEnabled(false);
  on_edit.keep_keys = false;
  edit->Focus();
  desk_->PressEnter(kDialog);
  EXPECT_EQ(on_default.clicks, 1) << "it is disabled";
}

TEST_F(DialogKeysTest, EscIsReportedByTheDialog) {
  Reports silent;
  const auto memo = Edit("memo", EditKind::kMemo, silent);
  Show();
  desk_->PressEsc(kDialog);
  EXPECT_EQ(dialog_reports_.cancels, 1);
  dialog_->SetEnabled(false);
  desk_->PressEsc(kDialog);
  EXPECT_EQ(dialog_reports_.cancels, 1) << "it is disabled by another one";
}

TEST_F(DialogKeysTest, CtrlTabGoesThroughTheTabsFromAnywhere) {
  Reports on_tabs, silent;
  const auto edit = Edit("edit", EditKind::kLine, silent);
  const auto tabs = Placed(Windowing().CreateTabs(*dialog_, "tabs", on_tabs), 60);
  const std::vector<std::string> captions = {"a", "b", "c"};
  tabs->SetItems(captions);
  Show();
  std::vector<int> chosen;
  on_tabs.on_changed = [&] { chosen.push_back(tabs->Index()); };
  for (const bool backwards : {false, false, false, true, true}) {
    desk_->PressCtrlTab(kDialog, backwards);
  }
  EXPECT_EQ(chosen, (std::vector<int>{1, 2, 0, 2, 1}));
  EXPECT_TRUE(edit->HasFocus());
}

TEST_F(DialogKeysTest, ArrowsChooseAmongRadioButtons) {
  Reports reports[3];
  const auto a = Button("a", ButtonKind::kRadio, reports[0]);
  const auto off = Button("off", ButtonKind::kRadio, reports[1]);
  const auto c = Button("c", ButtonKind::kRadio, reports[2]);
  const auto after = Button("after", ButtonKind::kPush, reports[1]);
  off->SetEnabled(false);
  a->SetChecked(true);
  Show();
  desk_->PressArrow(kDialog, false);
  EXPECT_TRUE(!a->Checked() && c->Checked() && c->HasFocus());
  EXPECT_EQ(reports[2].clicks, 1);
  desk_->PressArrow(kDialog, false);
  EXPECT_TRUE(a->Checked() && a->HasFocus()) << "around the end";
  desk_->PressArrow(kDialog, true);
  EXPECT_TRUE(c->Checked());
  EXPECT_EQ(reports[2].clicks, 2);
}

TEST_F(DialogKeysTest, AltReachesTheControlThatIsMarked) {
  Reports on_box, on_push, silent;
  platform::TextStyle marked;
  marked.mnemonic = true;
  const auto plain = Placed(Windowing().CreateText(*dialog_, "plain", {}, silent));
  const auto label = Placed(Windowing().CreateText(*dialog_, "label", marked, silent));
  const auto edit = Edit("edit", EditKind::kLine, silent);
  const auto box = Button("box", ButtonKind::kCheck, on_box);
  const auto push = Button("push", ButtonKind::kPush, on_push);
  plain->SetText("R&D network");
  label->SetText("Fish && &Dish");
  box->SetText("Show &hints");
  push->SetText("&Copy");
  Show();
  box->Focus();
  desk_->PressAlt(kDialog, 'd');
  EXPECT_TRUE(edit->HasFocus()) << "the control behind the label";
  desk_->PressAlt(kDialog, 'h');
  EXPECT_TRUE(box->Checked() && box->HasFocus());
  EXPECT_EQ(on_box.clicks, 1);
  desk_->PressAlt(kDialog, 'c');
  EXPECT_EQ(on_push.clicks, 1);
}

TEST_F(DialogKeysTest, WhatIsHiddenOrDisabledPassesTheKeyboardOn) {
  Reports reports;
  const auto first = Edit("first", EditKind::kLine, reports);
  const auto surface = Placed(Windowing().CreateSurface(*dialog_, "surface", reports), 60);
  const auto inner = Windowing().CreateEdit(*surface, "inner", {}, reports);
  const auto last = Edit("last", EditKind::kLine, reports);
  inner->SetVisible(true);
  Show();
  inner->Focus();
  surface->SetVisible(false);
  EXPECT_TRUE(last->HasFocus());
  last->SetEnabled(false);
  EXPECT_TRUE(first->HasFocus()) << "around the end";
  inner->Focus();
  EXPECT_TRUE(first->HasFocus()) << "what is hidden cannot have it";
}

TEST_F(DialogKeysTest, AWindowWithoutACaptionHasNoneOfIt) {
  DialogReports reports;
  Reports on_button;
  const auto bare = Windowing().CreateTopWindow(
      {"T_frmBare", "", platform::Frame::kSizeableTool, true}, nullptr, reports);
  bare->SetBounds({10, 10, 200, 100});
  const auto button = Windowing().CreateButton(*bare, "button", ButtonKind::kPush, on_button);
  button->SetVisible(true);
  button->SetDefault(true);
  bare->Show(Activation::kActivate);
  desk_->PressEnter("T_frmBare");
  desk_->PressEsc("T_frmBare");
  EXPECT_EQ(on_button.clicks, 0);
  EXPECT_EQ(reports.cancels, 0);
}

}  // namespace
}  // namespace contract
