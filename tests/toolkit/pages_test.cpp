// Pages with and without tabs, and the layout.
#include "toolkit/controls/pages.h"

#include "tests/layout_faults.h"
#include "tests/toolkit/form_fixture.h"
#include "toolkit/controls/bars.h"
#include "toolkit/controls/buttons.h"
#include "toolkit/controls/edit.h"
#include "toolkit/controls/label.h"
#include "toolkit/controls/layout.h"
#include "toolkit/controls/lists.h"
#include "toolkit/controls/panel.h"
#include "toolkit/controls/spin_edit.h"

namespace toolkit {
namespace {

class Pages : public FormTest {};

TEST_F(Pages, OfTabsOnlyTheChosenPageIsSeenAndReachedByTab) {
  PageControl pages(form, "pages");
  TabSheet info(pages, "info");
  Edit address(info, "address");
  SpinEdit spin(info, "spin");
  TabSheet daily(pages, "daily");
  Edit total(daily, "total");
  Button ok(form, "ok");
  pages.SetBounds({5, 5, 290, 250});
  spin.SetBounds({10, 80, 80, 22});
  info.SetCaption("Info");
  daily.SetCaption("Daily");
  form.Show();
  EXPECT_EQ(Widget("pages").items, (Names{"Info", "Daily"}));
  EXPECT_TRUE(Widget("address").OnScreen() && !Widget("total").OnScreen());
  EXPECT_EQ(User().TabOrder("form"), (Names{"pages", "address", "spin", "ok"}));
  Names changes;
  pages.OnChange = [&] { changes.push_back(std::to_string(pages.ActivePageIndex())); };
  address.SetFocus();
  User().PressCtrlTab("form");
  EXPECT_EQ(User().Focused(), "pages") << "the keyboard was on the page that went";
  EXPECT_TRUE(!Widget("address").OnScreen() && Widget("total").OnScreen());
  EXPECT_EQ(User().TabOrder("form"), (Names{"pages", "total", "ok"}));
  ok.SetFocus();
  for (const bool backwards : {false, true, true}) User().PressCtrlTab("form", backwards);
  EXPECT_EQ(User().Focused(), "ok");
  EXPECT_EQ(changes, (Names{"1", "0", "1", "0"})) << "around both ends";
  const platform::Rect area = Widget("info").bounds;
  EXPECT_GT(area.height, 200);
  EXPECT_EQ(Widget("daily").bounds, area) << "it fills its place while it is hidden too";
  User().ChangeDpi("form", 192, {0, 0, 600, 600});
  EXPECT_GT(Widget("info").bounds.height, 2 * 200);
  EXPECT_EQ(Widget("daily").bounds, Widget("info").bounds);
  EXPECT_EQ(Widget("spin").bounds, (platform::Rect{0, 0, 126, 44}))
      << "and so do parts of controls";
}

// The preferences see the values; here is what no page of theirs has or changes.
TEST_F(Pages, WhatIsSetOnAHiddenOneIsThereWhenItIsShown) {
  Notebook notebook(form, "notebook");
  NotebookPage seen(notebook, "seen"), page(notebook, "page");
  GroupBox group(page, "group");
  CheckBox box(group, "box");
  Edit edit(page, "edit");
  Memo memo(page, "memo");
  TrackBar bar(page, "bar");
  ProgressBar progress(page, "progress");
  SpinEdit spin(page, "spin");
  Button push(page, "push");
  Label label(page, "label");
  int fired = 0;
  box.OnClick = bar.OnChange = [&] { ++fired; };
  notebook.SetBounds({0, 0, 300, 300});
  group.SetBounds({10, 10, 200, 60});
  edit.SetEnabled(false);
  memo.SetReadOnly(true);
  progress.SetPosition(20);
  bar.SetPosition(20);
  bar.SetRange(1, 9, 2);
  spin.SetBounds({10, 80, 80, 22});
  push.SetDefault(true);
  push.SetVisible(false);
  label.SetFontColour(platform::colour::kBlue);
  form.Show();
  EXPECT_FALSE(User().Exists("box")) << "it would take time to open";
  box.SetFocus();
  EXPECT_FALSE(box.Focused());
  EXPECT_EQ(group.ClientPixels(), (platform::Size{200, 60}));
  EXPECT_FALSE(notebook.SetActivePage("gone"));
  fired = 0;
  EXPECT_TRUE(notebook.SetActivePage("page"));
  EXPECT_EQ(notebook.ActivePage(), "page");
  EXPECT_EQ(fired, 0) << "the code did it all";
  EXPECT_TRUE(!Widget("seen").visible && Widget("page").visible && Widget("box").OnScreen());
  EXPECT_TRUE(!Widget("edit").enabled && Widget("memo").read_only);
  EXPECT_EQ(Widget("edit").background, platform::colour::kWindow);
  EXPECT_TRUE(Widget("bar").lowest == 1 && Widget("bar").highest == 9 && Widget("bar").page == 2);
  EXPECT_EQ(Widget("progress").position, 20);
  EXPECT_TRUE(Widget("bar").position == 9 && bar.Position() == 9);
  EXPECT_EQ(Widget("spin").bounds, (platform::Rect{0, 0, 63, 22}));
  EXPECT_TRUE(Widget("push").is_default && !Widget("push").visible);
  EXPECT_EQ(Widget("label").text_colour, platform::colour::kBlue);
  User().ChangeDpi("form", 192, {0, 0, 700, 700});
  EXPECT_EQ(Widget("seen").bounds, Widget("page").bounds);
  EXPECT_EQ(Widget("group").bounds, (platform::Rect{20, 20, 400, 120}));
}

TEST_F(Pages, TheLayoutNamesWhatLeavesItsParentOrCoversAnother) {
  Label label(form, "label");
  GroupBox group(form, "group");
  Edit inner(group, "inner");
  Button hidden(form, "hidden");
  hidden.SetVisible(false);
  ApplyLayout(
      {{label, {10, 10, 100, 13}}, {group, {10, 30, 200, 100}}, {hidden, {10, 30, 80, 22}}});
  inner.SetBounds({10, 20, 180, 21});
  EXPECT_EQ(test::LayoutFaults(form), Names());
  hidden.SetVisible(true);
  inner.SetBounds({10, 80, 180, 21});
  label.SetBounds({10, 10, 0, 13});
  EXPECT_EQ(test::LayoutFaults(form),
            (Names{"label has no size", "inner leaves group, which is 200 by 100",
                   "hidden says nothing", "hidden covers group"}));
}

}  // namespace
}  // namespace toolkit
