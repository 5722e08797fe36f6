// Controls with a value: what the user does and what the code does to it.
#include <functional>
#include <vector>

#include "tests/toolkit/form_fixture.h"
#include "toolkit/controls/bars.h"
#include "toolkit/controls/buttons.h"
#include "toolkit/controls/edit.h"
#include "toolkit/controls/lists.h"
#include "toolkit/controls/pages.h"
#include "toolkit/controls/spin_edit.h"

namespace toolkit {
namespace {

class ValueControls : public FormTest {};

const std::vector<std::string> kItems = {"a", "b", "c"};

TEST_F(ValueControls, FireWhenTheValueChangesWhoeverChangedIt) {
  CheckBox box(form, "box");
  Edit edit(form, "edit");
  ListBox list(form, "list");
  ComboBox combo(form, "combo");
  TreeView tree(form, "tree");
  PageControl pages(form, "pages");
  TabSheet first(pages, "first"), second(pages, "second"), third(pages, "third");
  TrackBar bar(form, "bar");
  RadioGroup group(form, "group");
  SpinEdit spin(form, "spin");
  list.SetItems(kItems);
  combo.SetItems(kItems);
  group.SetItems(kItems);
  const std::vector<platform::TreeItem> branches = {{"a", 0}, {"b", 1}, {"c", 0}};
  tree.SetItems(branches);
  form.Show();

  struct Row {
    const char* name;
    std::function<void()>& handler;
    std::function<void()> by_code;  // to a value; again to the same one
    std::function<void()> by_user;  // to another one
  };
  const std::vector<Row> rows = {
      {"check box", box.OnClick, [&] { box.SetChecked(true); }, [&] { User().Press("box"); }},
      {"edit", edit.OnChange, [&] { edit.SetText("x"); }, [&] { User().Type("edit", "y"); }},
      {"list", list.OnChange, [&] { list.SetItemIndex(1); }, [&] { User().Choose("list", 2); }},
      {"combo", combo.OnChange, [&] { combo.SetItemIndex(1); }, [&] { User().Choose("combo", 2); }},
      {"tree", tree.OnChange, [&] { tree.SetItemIndex(1); }, [&] { User().Choose("tree", 2); }},
      {"pages", pages.OnChange, [&] { pages.SetActivePageIndex(1); },
       [&] { User().Choose("pages", 2); }},
      {"track bar", bar.OnChange, [&] { bar.SetPosition(5); }, [&] { User().Drag("bar", 6); }},
      {"radio group", group.OnClick, [&] { group.SetItemIndex(1); },
       [&] { User().Press("group2"); }},
      {"spin edit", spin.OnChange, [&] { spin.SetValue(5); },
       [&] { User().PressKey("spin", platform::Key::kUp); }},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    int fired = 0;
    row.handler = [&] { ++fired; };
    row.by_code();
    EXPECT_EQ(fired, 1);
    row.by_code();
    EXPECT_EQ(fired, 1) << "it had the value already";
    row.by_user();
    EXPECT_EQ(fired, 2);
    row.by_code();
    EXPECT_EQ(fired, 3) << "the code undoes what the user did";
  }
}

TEST_F(ValueControls, OfRadioButtonsOneIsChosenWhoeverChoosesIt) {
  RadioGroup group(form, "group");
  group.SetItems(kItems);
  form.Show();
  int fired = 0;
  group.OnClick = [&] { ++fired; };
  EXPECT_EQ(group.ItemIndex(), -1);
  group.SetItemIndex(0);
  User().Press("group2");
  EXPECT_EQ(group.ItemIndex(), 2);
  EXPECT_FALSE(Peer("group0").checked);
  group.SetItemIndex(1);
  EXPECT_FALSE(Peer("group2").checked);
  EXPECT_TRUE(Peer("group1").checked);
  User().Press("group1");
  EXPECT_EQ(fired, 3) << "it is chosen already";
  group.SetItemIndex(-1);
  EXPECT_FALSE(Peer("group1").checked);
  EXPECT_EQ(fired, 4);
}

TEST_F(ValueControls, AHandlerMayChangeTheValueAgain) {
  CheckBox box(form, "box");
  form.Show();
  box.OnClick = [&] { box.SetChecked(false); };
  User().Press("box");
  EXPECT_FALSE(box.Checked());
  EXPECT_FALSE(Peer("box").checked);
}

TEST_F(ValueControls, ListsKeepTheSelectionWhereTheyCan) {
  struct Row {
    const char* why;
    std::function<void(ListBox&)> change;
    int index;
    int fired;
  };
  const std::vector<Row> rows = {
      {"translated rows",
       [](ListBox& list) {
         list.SetItems(std::vector<std::string>{"x", "y"});
       },
       1, 0},
      {"fewer rows", [](ListBox& list) { list.SetItems(std::vector<std::string>{"x"}); }, -1, 1},
      {"a row more", [](ListBox& list) { list.Add("d"); }, 1, 0},
      {"one removed before it", [](ListBox& list) { list.Remove(0); }, 0, 0},
      {"one removed behind it", [](ListBox& list) { list.Remove(2); }, 1, 0},
      {"it is removed itself", [](ListBox& list) { list.Remove(1); }, -1, 1},
      {"a row that does not exist", [](ListBox& list) { list.SetItemIndex(99); }, -1, 1},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.why);
    ListBox list(form, "list");
    list.SetItems(kItems);
    list.SetItemIndex(1);
    int fired = 0;
    list.OnChange = [&] { ++fired; };
    row.change(list);
    EXPECT_EQ(list.ItemIndex(), row.index);
    EXPECT_EQ(Peer("list").index, row.index);
    EXPECT_EQ(fired, row.fired);
  }
}

TEST_F(ValueControls, RowsOfACheckListAreTicked) {
  CheckListBox list(form, "list");
  list.SetItems(kItems);
  form.Show();
  std::vector<int> fired;
  list.OnClickCheck = [&](int row) { fired.push_back(row); };
  list.SetChecked(1, true);
  list.SetChecked(1, true);
  list.SetChecked(99, true);
  User().Tick("list", 2);
  EXPECT_EQ(fired, (std::vector<int>{1, 2}));
  EXPECT_TRUE(!list.Checked(0) && list.Checked(1) && list.Checked(2));
  list.Remove(1);
  EXPECT_TRUE(!list.Checked(0) && list.Checked(1));
  EXPECT_TRUE(Peer("list").row_checks[1]);
  list.Add("d");
  EXPECT_TRUE(list.Checked(1) && !list.Checked(2));
  EXPECT_EQ(fired.size(), 2U);
}

TEST_F(ValueControls, APressedButtonMayTakeItsFormAway) {
  auto dialog = std::make_unique<Form>(app, Params("dialog"));
  auto button = std::make_unique<Button>(*dialog, "button");
  dialog->Show();
  button->OnClick = [&, text = std::string("a text that lives on the heap")] {
    button.reset();
    dialog.reset();
    EXPECT_EQ(text.size(), 29U);
  };
  User().Press("button");
  EXPECT_EQ(dialog, nullptr);
}

TEST_F(ValueControls, AnExceptionOfAHandlerIsLoggedAndTheValueStands) {
  std::vector<std::string> logged;
  app.SetExceptionHandler([&](std::string_view message) { logged.emplace_back(message); });
  CheckBox box(form, "box");
  form.Show();
  box.OnClick = [] { throw std::runtime_error("broken"); };
  User().Press("box");
  box.SetChecked(false);
  EXPECT_FALSE(box.Checked());
  EXPECT_EQ(logged.size(), 2U);
}

TEST_F(ValueControls, AColourPanelShowsItsColourAndCanBeClicked) {
  ColourPanel panel(form, "panel");
  panel.SetBounds({0, 0, 40, 20});
  panel.SetColour(platform::colour::kLime);
  form.Show();
  int clicks = 0;
  panel.OnClick = [&] { ++clicks; };
  User().Press("panel");
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(User().TabOrder("form"), std::vector<std::string>{"panel"});
  EXPECT_EQ(Peer("panel").Paint(machine.screen)->Pixel({20, 10}), platform::colour::kLime);
}

}  // namespace
}  // namespace toolkit
