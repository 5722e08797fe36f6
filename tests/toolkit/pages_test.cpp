// Pages with and without tabs, the order of Tab, the layout.
#include "toolkit/controls/pages.h"

#include "tests/toolkit/form_fixture.h"
#include "toolkit/controls/bars.h"
#include "toolkit/controls/buttons.h"
#include "toolkit/controls/edit.h"
#include "toolkit/controls/label.h"
#include "toolkit/controls/layout.h"
#include "toolkit/controls/lists.h"
#include "toolkit/controls/spin_edit.h"

namespace toolkit {
namespace {

class Pages : public FormTest {};

struct Tabbed {
  explicit Tabbed(Form& form) : pages(form, "pages") {
    pages.SetBounds({5, 5, 290, 250});
    info.SetCaption("Info");
    daily.SetCaption("Daily");
  }
  PageControl pages;
  TabSheet info{pages, "info"};
  Edit address{info, "address"};
  TabSheet daily{pages, "daily"};
  Edit total{daily, "total"};
};

TEST_F(Pages, OnlyTheChosenOneIsSeenAndReachedByTab) {
  Tabbed tabbed(form);
  Button ok(form, "ok");
  form.Show();
  EXPECT_EQ(Peer("pages").items, (std::vector<std::string>{"Info", "Daily"}));
  EXPECT_EQ(tabbed.pages.ActivePageIndex(), 0);
  EXPECT_TRUE(Peer("address").OnScreen());
  EXPECT_FALSE(Peer("total").OnScreen());
  EXPECT_EQ(User().TabOrder("form"), (std::vector<std::string>{"pages", "address", "ok"}));
  int changes = 0;
  tabbed.pages.OnChange = [&] { ++changes; };
  User().PressCtrlTab("form");
  EXPECT_EQ(changes, 1);
  EXPECT_FALSE(Peer("address").OnScreen());
  EXPECT_EQ(User().TabOrder("form"), (std::vector<std::string>{"pages", "total", "ok"}));
  tabbed.daily.SetCaption("T\xC3\xA4glich");
  EXPECT_EQ(Peer("pages").items[1], "T\xC3\xA4glich");
  EXPECT_EQ(tabbed.pages.ActivePageIndex(), 1);
  EXPECT_EQ(changes, 1);
}

TEST_F(Pages, TheKeyboardStaysAtTheTabsWhenItsPageGoes) {
  Tabbed tabbed(form);
  Button ok(form, "ok");
  form.Show();
  tabbed.address.SetFocus();
  User().PressCtrlTab("form");
  EXPECT_EQ(User().Focused(), "pages");
  ok.SetFocus();
  User().PressCtrlTab("form");
  EXPECT_EQ(User().Focused(), "ok") << "it was elsewhere";
}

TEST_F(Pages, AllFillTheirPlaceAlsoWhileTheyAreHidden) {
  Tabbed tabbed(form);
  SpinEdit spin(tabbed.info, "spin");
  spin.SetBounds({10, 80, 80, 22});
  const platform::Rect area = Peer("info").bounds;
  EXPECT_GT(area.height, 200);
  EXPECT_EQ(Peer("daily").bounds, area);
  User().ChangeDpi("form", 192, {0, 0, 600, 600});
  EXPECT_GT(Peer("info").bounds.height, 2 * 200);
  EXPECT_EQ(Peer("daily").bounds, Peer("info").bounds);
  EXPECT_EQ(Peer("spin").bounds, (platform::Rect{0, 0, 126, 44})) << "and so do parts of a control";
}

TEST_F(Pages, ANotebookShowsThePageThatIsNamed) {
  Notebook notebook(form, "notebook");
  NotebookPage general(notebook, "General"), grids(notebook, "GraphGrids");
  form.Show();
  EXPECT_EQ(notebook.ActivePage(), "General");
  EXPECT_TRUE(notebook.SetActivePage("GraphGrids"));
  EXPECT_TRUE(!Peer("General").visible && Peer("GraphGrids").visible);
  EXPECT_FALSE(notebook.SetActivePage("BrisantoScript"));
  EXPECT_EQ(notebook.ActivePage(), "GraphGrids");
  EXPECT_TRUE(Peer("GraphGrids").visible);
}

// Every kind of control, each with something set, on a page that is not seen.
struct Hidden {
  explicit Hidden(Form& form) : notebook(form, "notebook") {
    notebook.SetBounds({0, 0, 300, 300});
    group.SetBounds({10, 10, 200, 60});
    box.SetBounds({5, 20, 100, 17});
    box.SetCaption("text");
    box.SetChecked(true);
    edit.SetMaxLength(6);
    edit.SetText("12345");
    edit.SetEnabled(false);
    memo.SetReadOnly(true);
    const std::vector<std::string> rows = {"a", "b", "c"};
    list.SetItems(rows);
    list.SetItemIndex(1);
    list.SetChecked(2, true);
    bar.SetRange(1, 9, 2);
    bar.SetPosition(5);
    progress.SetRange(0, 50);
    progress.SetPosition(20);
    const std::vector<platform::TreeItem> items = {{"root", 0}, {"leaf", 1}};
    tree.SetItems(items);
    tree.SetItemIndex(1);
    chosen.SetChecked(true);
    spin.SetBounds({10, 80, 80, 22});
    spin.SetValue(42);
    push.SetDefault(true);
    push.SetVisible(false);
    label.SetFontColour(platform::colour::kBlue);
    for (std::function<void()>* handler :
         {&box.OnClick, &edit.OnChange, &list.OnChange, &bar.OnChange, &tree.OnChange,
          &chosen.OnClick, &spin.OnChange}) {
      *handler = [this] { ++fired; };
    }
    list.OnClickCheck = [this](int) { ++fired; };
  }

  int fired = 0;
  Notebook notebook;
  NotebookPage seen{notebook, "seen"};
  NotebookPage page{notebook, "page"};
  GroupBox group{page, "group"};
  CheckBox box{group, "box"};
  Edit edit{page, "edit"};
  Memo memo{page, "memo"};
  CheckListBox list{page, "list"};
  TrackBar bar{page, "bar"};
  ProgressBar progress{page, "progress"};
  TreeView tree{page, "tree"};
  RadioButton other{page, "other"};
  RadioButton chosen{page, "chosen"};
  SpinEdit spin{page, "spin"};
  Button push{page, "push"};
  Label label{page, "label"};
};

TEST_F(Pages, WhatIsSetOnAHiddenOneIsThereWhenItIsShown) {
  Hidden hidden(form);
  form.Show();
  EXPECT_FALSE(machine.windowing.Exists("box")) << "it would take time to open";
  hidden.box.SetFocus();
  EXPECT_FALSE(hidden.box.Focused());
  EXPECT_EQ(hidden.group.ClientPixels(), (platform::Size{200, 60}));
  hidden.notebook.SetActivePage("page");
  EXPECT_EQ(hidden.fired, 0) << "the code did it all";
  EXPECT_EQ(Peer("group").bounds, (platform::Rect{10, 10, 200, 60}));
  EXPECT_EQ(Peer("box").bounds, (platform::Rect{5, 20, 100, 17}));
  EXPECT_EQ(Peer("box").text, "text");
  EXPECT_TRUE(Peer("box").checked && Peer("box").OnScreen());
  EXPECT_EQ(Peer("edit").text, "12345");
  EXPECT_EQ(Peer("edit").max_length, 6);
  EXPECT_FALSE(Peer("edit").enabled);
  EXPECT_EQ(Peer("edit").background, platform::colour::kWindow);
  EXPECT_TRUE(Peer("memo").read_only);
  EXPECT_EQ(Peer("list").index, 1);
  EXPECT_EQ(Peer("list").row_checks, (std::vector<bool>{false, false, true}));
  EXPECT_EQ(Peer("bar").position, 5);
  EXPECT_EQ(Peer("bar").page, 2);
  EXPECT_EQ(Peer("progress").highest, 50);
  EXPECT_EQ(Peer("progress").position, 20);
  EXPECT_EQ(Peer("tree").items.size(), 2U);
  EXPECT_EQ(Peer("tree").index, 1);
  EXPECT_TRUE(Peer("chosen").checked && !Peer("other").checked);
  EXPECT_EQ(Peer("spin").text, "42");
  EXPECT_EQ(Peer("spin").bounds, (platform::Rect{0, 0, 63, 22}));
  EXPECT_TRUE(Peer("push").is_default && !Peer("push").visible);
  EXPECT_EQ(Peer("label").text_colour, platform::colour::kBlue);
  EXPECT_EQ(User().TabOrder("form"),
            (std::vector<std::string>{"box", "memo", "list", "bar", "tree", "chosen", "spin"}));
  User().Press("box");
  EXPECT_EQ(hidden.fired, 1);
}

TEST_F(Pages, TheLayoutNamesWhatLeavesItsParentOrCoversAnother) {
  Label label(form, "label");
  GroupBox group(form, "group");
  Edit inner(group, "inner");
  SpinEdit spin(form, "spin");
  Button hidden(form, "hidden");
  hidden.SetVisible(false);
  ApplyLayout({{label, {10, 10, 100, 13}, "Text", "Hint"},
               {group, {10, 30, 200, 100}, "Group"},
               {inner, {10, 20, 180, 21}},
               {spin, {10, 140, 80, 22}},
               {hidden, {10, 140, 80, 22}}});
  EXPECT_EQ(LayoutFaults(form), std::vector<std::string>{});
  EXPECT_EQ(label.Caption(), "Text");
  EXPECT_EQ(label.Hint(), "Hint");
  hidden.SetVisible(true);
  inner.SetBounds({10, 80, 180, 21});
  label.SetBounds({10, 10, 0, 13});
  EXPECT_EQ(LayoutFaults(form), (std::vector<std::string>{"label has no size",
                                                          "inner leaves group, which is 200 by 100",
                                                          "hidden covers spin"}));
}

TEST_F(Pages, ADialogClosesByEscAndItsButtonsEndIt) {
  Form dialog(app, Params("dialog"));
  Button yes(dialog, "yes");
  yes.ModalResult = ModalResult::kYes;
  machine.message_loop.Then([&] { User().PressEsc("dialog"); });
  EXPECT_EQ(app.Modals().Show(dialog), ModalResult::kCancel);
  machine.message_loop.Then([&] { User().Press("yes"); });
  EXPECT_EQ(app.Modals().Show(dialog), ModalResult::kYes);
  form.Show();
  User().PressEsc("form");
  EXPECT_FALSE(form.Showing());
}

TEST_F(Pages, AFormHasItsSizeInDesignPixelsAndStandsInTheMiddle) {
  machine.screen.monitors = {{{0, 0, 1000, 800}, {0, 0, 1000, 760}, 96},
                             {{1000, 0, 1000, 800}, {1000, 0, 1000, 800}, 96}};
  Form dialog(app, Params("dialog"), &form);
  dialog.SetClientSize({294, 175});  // the frame takes 6 by 25
  form.SetWindowBounds({1500, 10, 306, 325});
  dialog.CentreOnScreen();
  EXPECT_EQ(dialog.WindowBounds(), (platform::Rect{1350, 300, 300, 200}));
  form.CentreOnScreen();
  EXPECT_EQ(form.WindowBounds().left, 347) << "without an owner: the first monitor";
  User().ChangeDpi("dialog", 144, {0, 0, 450, 300});
  EXPECT_EQ(dialog.ClientPixels(), (platform::Size{441, 263}));
}

}  // namespace
}  // namespace toolkit
