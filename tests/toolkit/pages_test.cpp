// Pages with and without tabs, the order of Tab, the layout.
#include "tests/toolkit/form_fixture.h"
#include "toolkit/controls/button.h"
#include "toolkit/controls/edit.h"
#include "toolkit/controls/group_box.h"
#include "toolkit/controls/label.h"
#include "toolkit/controls/layout.h"
#include "toolkit/controls/notebook.h"
#include "toolkit/controls/page_control.h"
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
  const platform::Rect area = Peer("info").bounds;
  EXPECT_GT(area.height, 200);
  EXPECT_EQ(Peer("daily").bounds, area);
  User().ChangeDpi("form", 192, {0, 0, 600, 600});
  EXPECT_GT(Peer("info").bounds.height, 2 * 200);
  EXPECT_EQ(Peer("daily").bounds, Peer("info").bounds);
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
