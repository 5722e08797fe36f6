// Controls with a value: what the user does and what the code does to it.
#include <set>

#include "tests/toolkit/form_fixture.h"
#include "toolkit/controls/bars.h"
#include "toolkit/controls/buttons.h"
#include "toolkit/controls/edit.h"
#include "toolkit/controls/label.h"
#include "toolkit/controls/lists.h"
#include "toolkit/controls/pages.h"
#include "toolkit/controls/panel.h"
#include "toolkit/controls/spin_edit.h"

namespace toolkit {
namespace {

class ValueControls : public FormTest {};

const Names kItems = {"a", "b", "c"};

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
  group.SetHint("hint");
  group.SetItems(kItems);
  EXPECT_EQ(group.Children().at(1)->Hint(), "hint");
  tree.SetItems(std::vector<platform::TreeItem>{{"a", 0}, {"b", 1}, {"c", 0}});
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
    row.by_code();
    EXPECT_EQ(fired, 1) << "the second time it had the value already";
    row.by_user();
    EXPECT_EQ(fired, 2);
    row.by_code();
    EXPECT_EQ(fired, 3) << "the code undoes what the user did";
    row.handler = [] { throw std::runtime_error("broken"); };
    row.by_user();
    EXPECT_EQ(errors, Names{"broken"});
    errors.clear();
  }
  EXPECT_EQ(group.ItemIndex(), 2);
  EXPECT_TRUE(!Widget("group1").checked && Widget("group2").checked);
  group.OnClick = nullptr;
  group.SetItemIndex(-1);
  EXPECT_TRUE(group.ItemIndex() == -1 && !Widget("group2").checked);
  EXPECT_TRUE(Widget("list").events->OnKey(platform::Key::kDelete)) << "it keeps this key alone";
  EXPECT_FALSE(Widget("list").events->OnKey(platform::Key::kUp));
  box.OnClick = [&] { box.SetChecked(false); };
  box.SetChecked(true);
  EXPECT_TRUE(!box.Checked() && !Widget("box").checked) << "the handler changed it again";
}

TEST_F(ValueControls, ListsKeepSelectionAndTicksWhereTheyCan) {
  struct Row {
    const char* why;
    std::function<void(CheckListBox&)> change;
    int index, fired;
    std::vector<bool> ticks;
  };
  const Names two = {"x", "y"}, one = {"x"};
  for (const Row& row : {
           Row{"translated", [&](auto& list) { list.SetItems(two); }, 1, 0, {true, false}},
           Row{"fewer rows", [&](auto& list) { list.SetItems(one); }, -1, 1, {true}},
           Row{"one more", [](auto& list) { list.Add("d"); }, 1, 0, {true, false, true, false}},
           Row{"one removed before it", [](auto& list) { list.Remove(0); }, 0, 0, {false, true}},
           Row{"one removed behind it", [](auto& list) { list.Remove(2); }, 1, 0, {true, false}},
           Row{"it is removed itself", [](auto& list) { list.Remove(1); }, -1, 1, {true, true}},
           Row{"none to remove", [](auto& list) { list.Remove(3); }, 1, 0, {true, false, true}},
           Row{"no such row", [](auto& list) { list.SetItemIndex(3); }, -1, 1, {true, false, true}},
       }) {
    SCOPED_TRACE(row.why);
    CheckListBox list(form, "list");
    list.SetItems(kItems);
    list.SetItemIndex(1);
    std::vector<int> ticked;
    list.OnClickCheck = [&](int at) { ticked.push_back(at); };
    for (const int at : {0, 0, 3}) list.SetChecked(at, true);
    form.Show();
    User().Tick("list", 2);
    EXPECT_EQ(ticked, (std::vector<int>{0, 2}));
    int fired = 0;
    list.OnChange = [&] { ++fired; };
    row.change(list);
    EXPECT_TRUE(list.ItemIndex() == row.index && Widget("list").index == row.index);
    EXPECT_EQ(Widget("list").row_checks, row.ticks);
    ASSERT_EQ(list.Count(), std::ssize(row.ticks));
    for (int at = 0; at < list.Count(); ++at) {
      EXPECT_EQ(list.Checked(at), row.ticks[static_cast<std::size_t>(at)]);
    }
    EXPECT_EQ(fired, row.fired);
    EXPECT_EQ(ticked.size(), 2U);
  }
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

TEST_F(ValueControls, ThosePaintedHereHaveColoursOfTheSystemAlone) {
  SpinEdit spin(form, "spin");
  LinkLabel link(form, "link");
  ColourPanel colour(form, "colour");
  Panel panel(form, "panel");
  panel.SetBevels(BevelCut::kRaised, BevelCut::kLowered);
  link.SetCaption("Link");
  std::set<platform::Colour> scheme;
  for (platform::Colour& one : machine.screen.scheme) {
    one = 0x203040 + static_cast<platform::Colour>(scheme.size());
    scheme.insert(one);
  }
  scheme.insert(machine.screen.scheme[26] = 0xFFFF00);  // links can be read
  for (Control* control : std::initializer_list<Control*>{&spin, &link, &colour, &panel}) {
    control->SetBounds({0, 0, 60, 20});
  }
  for (const bool enabled : {true, false}) {
    for (Control* control : form.Children()) control->SetEnabled(enabled);
    for (const char* name : {"spinUp", "link", "colour", "panel"}) {
      const auto raster = Widget(name).Paint(machine.screen);
      for (int x = 0; x < raster->Extent().width; ++x) {
        for (int y = 0; y < raster->Extent().height; ++y) {
          EXPECT_TRUE(scheme.contains(raster->Pixel({x, y}))) << name;
        }
      }
    }
  }
}

TEST_F(ValueControls, AScreenReaderHearsANameOfEach) {
  form.SetCaption("Form");
  Label label(form, "label", kCaptionText);
  SpinEdit labelled(form, "labelled");
  Label unit(form, "unit");
  Edit hinted(form, "hinted");
  Button marked(form, "marked");
  Button sign(form, "sign");
  ColourPanel panel(form, "panel");
  TrackBar bar(form, "bar");
  TreeView alone(form, "alone");
  LinkLabel link(form, "link");
  label.SetCaption("&Width:");
  labelled.SetHint("From 1 to 5");
  labelled.SetValue(3);
  unit.SetCaption("bytes");
  hinted.SetHint("Sound file");
  marked.SetCaption("Save && &close");
  sign.SetCaption("...");
  sign.SetHint("Chooses a file");
  panel.SetCaption("Text");
  panel.SetColour(0x0102FF);
  bar.SetPosition(7);
  link.SetCaption("Help & more");
  using platform::SpokenRole;
  using Row = std::pair<const char*, platform::Spoken>;
  for (const auto& [control, says] : {
           Row{"labelled", {.name = "Width:", .description = "From 1 to 5"}},
           Row{"labelledUp", {.name = "+1", .role = SpokenRole::kButton}},
           Row{"labelledDown", {.name = "-1", .role = SpokenRole::kButton}},
           Row{"hinted", {.name = "Sound file"}},
           Row{"marked", {.name = "Save & close"}},
           Row{"sign", {.name = "Chooses a file"}},
           Row{"panel", {.name = "Text", .value = "#FF0201"}},
           Row{"bar", {.name = "Form", .value = "7"}},
           Row{"alone", {.name = "Form"}},
           Row{"link", {.name = "Help & more", .role = SpokenRole::kLink}},
       }) {
    const platform::Spoken heard = Widget(control).events->Describe();
    EXPECT_EQ(heard, says) << control << ": " << heard.name;
  }
}

}  // namespace
}  // namespace toolkit
