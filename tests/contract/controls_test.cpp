#include "platform/controls.h"

#include "tests/contract/controls_fixture.h"

namespace contract {
namespace {

using platform::ButtonKind;
using platform::EditKind;
using platform::Key;
using platform::ListKind;
using platform::Rect;

TEST_F(ControlsTest, ABoxHasChangedBeforeItsClickIsReported) {
  Reports reports;
  const auto box = Button("box", ButtonKind::kCheck, reports);
  dialog_->Show(platform::Activation::kActivate);
  bool seen = false;
  reports.on_clicked = [&] { seen = box->Checked(); };
  box->SetChecked(true);
  box->SetChecked(false);
  EXPECT_EQ(reports.clicks, 0) << "the code is not told what it does itself";
  desk_->Press("box");
  EXPECT_TRUE(seen);
  desk_->Press("box");
  EXPECT_FALSE(box->Checked());
  EXPECT_EQ(reports.clicks, 2);
}

TEST_F(ControlsTest, RadioButtonsThatFollowEachOtherExcludeEachOther) {
  Reports reports[4];
  const auto a = Button("a", ButtonKind::kRadio, reports[0]);
  const auto b = Button("b", ButtonKind::kRadio, reports[1]);
  platform::WidgetEvents silent;
  const auto between = Placed(Windowing().CreateText(*dialog_, "between", {}, silent));
  const auto c = Button("c", ButtonKind::kRadio, reports[2]);
  const auto d = Button("d", ButtonKind::kRadio, reports[3]);
  dialog_->Show(platform::Activation::kActivate);
  a->SetChecked(true);
  c->SetChecked(true);
  desk_->Press("b");
  EXPECT_TRUE(!a->Checked() && b->Checked() && c->Checked() && !d->Checked());
  desk_->Press("d");
  EXPECT_TRUE(!a->Checked() && b->Checked() && !c->Checked() && d->Checked());
  desk_->Press("d");
  EXPECT_EQ(reports[3].clicks, 1) << "it was chosen already";
  EXPECT_EQ(reports[0].clicks + reports[2].clicks, 0) << "who loses the mark is not told";
}

TEST_F(ControlsTest, ButtonsTextsAndSurfacesAreClicked) {
  Reports push, painted, text, surface;
  const auto push_button = Button("push", ButtonKind::kPush, push);
  const auto painted_button = Button("painted", ButtonKind::kPainted, painted);
  const auto label = Placed(Windowing().CreateText(*dialog_, "text", {}, text));
  const auto area = Placed(Windowing().CreateSurface(*dialog_, "surface", surface));
  dialog_->Show(platform::Activation::kActivate);
  for (const char* name : {"push", "painted", "text", "surface"}) desk_->Press(name);
  EXPECT_EQ(push.clicks, 1);
  EXPECT_EQ(painted.clicks, 1);
  EXPECT_EQ(text.clicks, 1);
  EXPECT_EQ(surface.clicks, 1);
}

TEST_F(ControlsTest, AReportMayDestroyItsControl) {
  Reports reports;
  auto button = Button("button", ButtonKind::kPush, reports);
  dialog_->Show(platform::Activation::kActivate);
  reports.on_clicked = [&] { button.reset(); };
  desk_->Press("button");
  EXPECT_EQ(button, nullptr);
}

TEST_F(ControlsTest, TypingIsReportedAndSettingIsNot) {
  Reports reports;
  const auto edit = Edit("edit", EditKind::kLine, reports);
  dialog_->Show(platform::Activation::kActivate);
  edit->SetText("set");
  EXPECT_EQ(reports.changes, 0);
  desk_->Type("edit", "!?");
  EXPECT_EQ(edit->Text(), "set!?");
  EXPECT_EQ(reports.changes, 2);
  edit->SelectAll();
  desk_->Type("edit", "\xE6\xBC\xA2\xF0\x9F\x98\x80");
  EXPECT_EQ(edit->Text(), "\xE6\xBC\xA2\xF0\x9F\x98\x80");
  EXPECT_EQ(reports.changes, 4) << "a character in two units is one change";
  edit->SetReadOnly(true);
  desk_->Type("edit", "no");
  EXPECT_EQ(reports.changes, 4);
}

TEST_F(ControlsTest, TheLongestTextCountsWholeCharacters) {
  struct Row {
    const char* why;
    const char* set;
    const char* typed;
    const char* text;
    int changes;
  };
  static constexpr Row kRows[] = {
      {"up to the limit", "", "abc", "abc", 3},
      {"one more", "", "abcd", "abc", 3},
      {"behind what was set", "ab", "cd", "abc", 1},
      {"letters of two bytes", "", "\xC3\xA4\xC3\xB6\xC3\xBC\xC3\x9F", "\xC3\xA4\xC3\xB6\xC3\xBC",
       3},
      {"characters of two units", "ab", "\xF0\x9F\x98\x80\xF0\x9F\x98\x80", "ab\xF0\x9F\x98\x80",
       1},
      {"a longer text that the code has set stays", "abcdef", "g", "abcdef", 0},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.why);
    Reports reports;
    const auto edit = Edit("edit", EditKind::kLine, reports);
    dialog_->Show(platform::Activation::kActivate);
    edit->SetMaxLength(3);
    edit->SetText(row.set);
    desk_->Type("edit", row.typed);
    EXPECT_EQ(edit->Text(), row.text);
    EXPECT_EQ(reports.changes, row.changes);
  }
}

TEST_F(ControlsTest, AnEditAsksAboutKeysAndLetters) {
  Reports reports;
  const auto edit = Edit("edit", EditKind::kLine, reports);
  dialog_->Show(platform::Activation::kActivate);
  reports.keep_digits = true;
  desk_->Type("edit", "a1b2");
  EXPECT_EQ(edit->Text(), "ab");
  for (const Key key : {Key::kUp, Key::kDown, Key::kPageUp, Key::kPageDown, Key::kEnter}) {
    desk_->PressKey("edit", key);
  }
  EXPECT_EQ(reports.keys,
            (std::vector<Key>{Key::kUp, Key::kDown, Key::kPageUp, Key::kPageDown, Key::kEnter}));
  desk_->Wheel("edit", 2);
  desk_->Wheel("edit", -3);
  EXPECT_EQ(reports.turned, -1);
}

TEST_F(ControlsTest, APaintedButtonReportsTheKeysThatMoveWithinIt) {
  Reports reports;
  const auto button = Button("field", ButtonKind::kPainted, reports);
  dialog_->Show(platform::Activation::kActivate);
  const std::vector<Key> keys = {Key::kUp,    Key::kDown, Key::kLeft,
                                 Key::kRight, Key::kHome, Key::kEnd};
  for (const Key key : keys) desk_->PressKey("field", key);
  EXPECT_EQ(reports.keys, keys);
  EXPECT_EQ(reports.clicks, 0);
}

TEST_F(ControlsTest, AMemoHasLinesAndAPasswordItsText) {
  Reports memo_reports, password_reports;
  const auto memo =
      Placed(Windowing().CreateEdit(*dialog_, "memo", {EditKind::kMemo, platform::Border::kNone},
                                    memo_reports),
             60);
  const auto password = Edit("password", EditKind::kPassword, password_reports);
  dialog_->Show(platform::Activation::kActivate);
  memo->SetText("one\ntwo");
  EXPECT_EQ(memo->Text(), "one\ntwo");
  EXPECT_EQ(memo_reports.changes, 0);
  desk_->Type("memo", "!");
  desk_->PressKey("memo", Key::kEnter);
  EXPECT_EQ(memo->Text(), "one\ntwo!\n");
  EXPECT_EQ(memo_reports.changes, 2);
  desk_->Type("password", "Secret");
  EXPECT_EQ(password->Text(), "Secret");
}

TEST_F(ControlsTest, ListsOfEveryKindHaveRowsAndAnIndex) {
  for (const ListKind kind :
       {ListKind::kBox, ListKind::kCombo, ListKind::kFontCombo, ListKind::kCheckBox}) {
    SCOPED_TRACE(static_cast<int>(kind));
    Reports reports;
    const auto list = Placed(Windowing().CreateList(*dialog_, "list", kind, reports), 70);
    dialog_->Show(platform::Activation::kActivate);
    const std::vector<std::string> items = {"Tahoma", "Arial",
                                            "Gr\xC3\xB6\xC3\x9F"
                                            "e"};
    list->SetItems(items);
    EXPECT_EQ(list->Count(), 3);
    EXPECT_EQ(list->Index(), -1);
    list->SetIndex(2);
    EXPECT_EQ(list->Index(), 2);
    EXPECT_EQ(reports.changes, 0);
    desk_->Choose("list", 1);
    EXPECT_EQ(list->Index(), 1);
    EXPECT_EQ(reports.changes, 1);
    list->SetIndex(-1);
    EXPECT_EQ(list->Index(), -1);
    list->SetIndex(1);
    list->Replace(3, 0, items);
    list->Replace(0, 2, {});
    EXPECT_EQ(list->Count(), 4);
    list->SetIndex(3);
    EXPECT_EQ(list->Index(), 3);
    list->SetItems(items);
    EXPECT_EQ(list->Index(), -1) << "new rows";
    EXPECT_EQ(reports.changes, 1);
  }
}

TEST_F(ControlsTest, ADropDownListIsAsHighAsItsClosedPart) {
  Reports reports;
  const auto combo = Windowing().CreateList(*dialog_, "combo", ListKind::kCombo, reports);
  combo->SetFont({});
  for (const Rect& bounds : {Rect{10, 20, 150, 21}, Rect{10, 20, 150, 32}}) {
    combo->SetBounds(bounds);
    EXPECT_EQ(combo->Bounds(), bounds);
  }
}

TEST_F(ControlsTest, RowsOfACheckListAreTicked) {
  Reports reports;
  const auto list =
      Placed(Windowing().CreateList(*dialog_, "list", ListKind::kCheckBox, reports), 70);
  dialog_->Show(platform::Activation::kActivate);
  const std::vector<std::string> items = {"eth0", "eth1", "eth2"};
  list->SetItems(items);
  list->SetChecked(2, true);
  EXPECT_TRUE(!list->Checked(0) && !list->Checked(1) && list->Checked(2));
  EXPECT_TRUE(reports.rows.empty());
  desk_->Tick("list", 1);
  desk_->Tick("list", 2);
  EXPECT_TRUE(!list->Checked(0) && list->Checked(1) && !list->Checked(2));
  EXPECT_EQ(reports.rows, (std::vector<int>{1, 2}));
  list->Replace(0, 1, {});
  EXPECT_TRUE(list->Checked(0) && !list->Checked(1)) << "the rows behind move up with their ticks";
  list->SetItems(items);
  EXPECT_FALSE(list->Checked(1));
  EXPECT_EQ(reports.rows.size(), 2U);
}

TEST_F(ControlsTest, ATreeCountsItsItemsAsTheyStandExpanded) {
  Reports reports;
  const auto tree = Placed(Windowing().CreateTree(*dialog_, "tree", reports), 120);
  dialog_->Show(platform::Activation::kActivate);
  const std::vector<platform::TreeItem> items = {{"General", 0}, {"Graph", 0},  {"Colors", 1},
                                                 {"Deep", 2},    {"Others", 1}, {"Text", 0}};
  tree->SetItems(items);
  for (int index = 0; index < 6; ++index) {
    tree->SetIndex(index);
    EXPECT_EQ(tree->Index(), index);
  }
  tree->SetIndex(0);
  EXPECT_EQ(reports.changes, 0);
  int chosen = -1;
  reports.on_changed = [&] { chosen = tree->Index(); };
  desk_->Choose("tree", 4);
  EXPECT_EQ(chosen, 4);
}

TEST_F(ControlsTest, TabsStandAboveTheirPages) {
  Reports reports;
  const auto tabs = Placed(Windowing().CreateTabs(*dialog_, "tabs", reports), 120);
  dialog_->Show(platform::Activation::kActivate);
  EXPECT_EQ(tabs->Index(), -1);
  const std::vector<std::string> captions = {"Info", "Daily", "Weekly"};
  tabs->SetItems(captions);
  EXPECT_EQ(tabs->Index(), 0);
  desk_->Choose("tabs", 2);
  EXPECT_EQ(tabs->Index(), 2);
  EXPECT_EQ(reports.changes, 1);
  const std::vector<std::string> translated = {"Info", "T\xC3\xA4glich",
                                               "W\xC3\xB6"
                                               "chentlich"};
  tabs->SetItems(translated);
  EXPECT_EQ(tabs->Index(), 2) << "only renamed";
  const std::vector<std::string> fewer = {"Info"};
  tabs->SetItems(fewer);
  EXPECT_EQ(tabs->Index(), 0);
  EXPECT_EQ(reports.changes, 1);
  const Rect area = tabs->PageArea();
  EXPECT_TRUE(area.left >= 0 && area.top >= 15 && area.width > 150 && area.Bottom() <= 120);
}

TEST_F(ControlsTest, ASliderReportsNewPositionsOnly) {
  Reports reports;
  const auto bar = Placed(Windowing().CreateTrackBar(*dialog_, "bar", reports), 30);
  dialog_->Show(platform::Activation::kActivate);
  bar->SetRange(10, 90, 5);
  EXPECT_EQ(bar->Position(), 10);
  bar->SetPosition(50);
  bar->SetPosition(500);
  EXPECT_EQ(bar->Position(), 90);
  bar->SetRange(10, 60, 5);
  EXPECT_EQ(bar->Position(), 60);
  EXPECT_EQ(reports.changes, 0);
  desk_->Drag("bar", 33);
  EXPECT_EQ(bar->Position(), 33);
  EXPECT_EQ(reports.changes, 1);
  desk_->Drag("bar", 33);
  EXPECT_EQ(reports.changes, 1);
}

TEST_F(ControlsTest, ASunkenTextHasAHairlineFrame) {
  platform::WidgetEvents silent;
  platform::TextStyle style;
  style.border = platform::Border::kSunken;
  const auto text = Placed(Windowing().CreateText(*dialog_, "text", style, silent), 17);
  EXPECT_EQ(text->ClientSize(), (platform::Size{198, 15}));
}

TEST_F(ControlsTest, TheClientAreaGetsTheSizeThatIsWanted) {
  dialog_->SetClientSize({277, 102});
  EXPECT_EQ(dialog_->ClientSize(), (platform::Size{277, 102}));
  EXPECT_EQ(dialog_->Bounds().left, 50);
  EXPECT_EQ(dialog_->Bounds().top, 50);
  platform::TopWindowEvents silent;
  const auto fresh = Windowing().CreateTopWindow({"T_frmFresh", "", platform::Frame::kTool, false},
                                                 nullptr, silent);
  fresh->SetClientSize({337, 110});
  EXPECT_EQ(fresh->ClientSize(), (platform::Size{337, 110}));
}

TEST_F(ControlsTest, WhatIsHiddenOrDisabledDoesNotHearTheUser) {
  Reports on_group, on_surface;
  platform::WidgetEvents silent;
  const auto group =
      Placed(Windowing().CreateButton(*dialog_, "group", ButtonKind::kGroup, silent), 60);
  const auto in_group = Windowing().CreateButton(*group, "in group", ButtonKind::kPush, on_group);
  const auto surface = Placed(Windowing().CreateSurface(*dialog_, "surface", silent), 60);
  const auto in_surface = Windowing().CreateEdit(*surface, "in surface", {}, on_surface);
  in_group->SetBounds({5, 20, 100, 22});
  in_surface->SetBounds({5, 5, 100, 22});
  in_group->SetVisible(true);
  in_surface->SetVisible(true);
  dialog_->Show(platform::Activation::kActivate);
  const auto use_both = [&] {
    desk_->Press("in group");
    desk_->Type("in surface", "x");
  };
  group->SetEnabled(false);
  surface->SetVisible(false);
  use_both();
  EXPECT_EQ(on_group.clicks, 0);
  EXPECT_EQ(on_surface.changes, 0);
  group->SetEnabled(true);
  surface->SetVisible(true);
  use_both();
  EXPECT_EQ(on_group.clicks, 1);
  EXPECT_EQ(on_surface.changes, 1);
}

}  // namespace
}  // namespace contract
