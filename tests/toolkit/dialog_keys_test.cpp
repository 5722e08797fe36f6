// The keyboard in forms with a caption.
#include "tests/toolkit/form_fixture.h"
#include "toolkit/controls/buttons.h"
#include "toolkit/controls/edit.h"
#include "toolkit/controls/label.h"
#include "toolkit/controls/pages.h"
#include "toolkit/controls/panel.h"

namespace toolkit {
namespace {

class DialogKeysTest : public FormTest {
 protected:
  // The names of the controls that have the keyboard after each of so many Tabs.
  std::vector<std::string> Tabs(int count, bool backwards) {
    std::vector<std::string> names;
    for (; count > 0; --count) {
      User().PressTab("form", backwards);
      names.push_back(User().Focused());
    }
    return names;
  }
};

using Names = std::vector<std::string>;

TEST_F(DialogKeysTest, TabGoesThroughTheControlsInOrderOfCreation) {
  Label label(form, "label");
  Edit first(form, "first");
  Panel panel(form, "panel");
  Button off(form, "off");
  RadioButton unchosen(form, "unchosen"), chosen(form, "chosen");
  Button last(form, "last");
  // Made last, but they lie on the panel.
  CheckBox inner(panel, "inner");
  Button hidden(panel, "hidden");
  off.SetEnabled(false);
  hidden.SetVisible(false);
  chosen.SetChecked(true);
  form.Show();
  EXPECT_EQ(User().Focused(), "first") << "a form begins in its first control";
  EXPECT_EQ(Tabs(4, false), (Names{"inner", "chosen", "last", "first"}));
  EXPECT_EQ(Tabs(3, true), (Names{"last", "chosen", "inner"}));
  EXPECT_TRUE(panel.Focused()) << "it lies on it";
}

TEST_F(DialogKeysTest, TabSelectsTheTextThatItComesTo) {
  Button first(form, "first");
  Edit edit(form, "edit");
  Memo memo(form, "memo");
  edit.SetText("old");
  form.Show();
  User().PressTab("form");
  User().Type("edit", "n");
  EXPECT_EQ(edit.Text(), "n");
  memo.SetText("old");
  User().PressTab("form");
  User().Type("memo", "!");
  EXPECT_EQ(memo.Text(), "old!");
}

TEST_F(DialogKeysTest, EnterPressesTheDefaultButtonUnlessAnotherHasTheKeyboard) {
  Edit edit(form, "edit");
  Panel panel(form, "panel");
  Button ok(panel, "ok"), other(form, "other");
  ColourPanel painted(form, "painted");
  std::vector<std::string> pressed;
  ok.OnClick = [&] { pressed.emplace_back("ok"); };
  other.OnClick = [&] { pressed.emplace_back("other"); };
  painted.OnClick = [&] { pressed.emplace_back("painted"); };
  ok.SetDefault(true);
  form.Show();
  const auto look = [this] { return std::pair(Peer("ok").is_default, Peer("other").is_default); };
  EXPECT_EQ(look(), std::pair(true, false));
  User().PressEnter("form");
  EXPECT_EQ(pressed, Names{"ok"}) << "though it lies on a panel";
  EXPECT_TRUE(edit.Focused()) << "the keyboard stays where it is";
  other.SetFocus();
  EXPECT_EQ(look(), std::pair(false, true));
  User().PressEnter("form");
  painted.SetFocus();
  EXPECT_EQ(look(), std::pair(false, false));
  User().PressEnter("form");
  EXPECT_EQ(pressed, (Names{"ok", "other", "painted"})) << "they had the keyboard";
  edit.SetFocus();
  EXPECT_EQ(look(), std::pair(true, false));
  ok.SetEnabled(false);
  User().PressEnter("form");
  EXPECT_EQ(pressed.size(), 3U) << "it is disabled";
}

TEST_F(DialogKeysTest, CtrlTabGoesThroughTheTabsFromAnywhere) {
  Edit edit(form, "edit");
  PageControl pages(form, "pages");
  TabSheet a(pages, "a"), b(pages, "b"), c(pages, "c");
  form.Show();
  std::vector<int> chosen;
  pages.OnChange = [&] { chosen.push_back(pages.ActivePageIndex()); };
  for (const bool backwards : {false, false, false, true, true}) {
    User().PressCtrlTab("form", backwards);
  }
  EXPECT_EQ(chosen, (std::vector<int>{1, 2, 0, 2, 1}));
  EXPECT_EQ(Peer("pages").index, 1);
  EXPECT_TRUE(edit.Focused());
}

TEST_F(DialogKeysTest, ArrowsChooseAmongRadioButtons) {
  RadioButton a(form, "a"), off(form, "off"), c(form, "c");
  Button after(form, "after");
  RadioButton apart(form, "apart");
  int clicks = 0;
  c.OnClick = [&] { ++clicks; };
  off.SetEnabled(false);
  a.SetChecked(true);
  form.Show();
  User().PressArrow("form");
  EXPECT_TRUE(!a.Checked() && c.Checked() && c.Focused());
  EXPECT_EQ(clicks, 1);
  User().PressArrow("form");
  EXPECT_TRUE(a.Checked() && a.Focused()) << "around the end";
  User().PressArrow("form", true);
  EXPECT_TRUE(c.Checked() && !apart.Checked());
  EXPECT_EQ(clicks, 2);
}

TEST_F(DialogKeysTest, ALetterReachesTheControlThatIsMarked) {
  Label plain(form, "plain"), label(form, "label", kCaptionText);
  Edit edit(form, "edit");
  CheckBox box(form, "box");
  Button push(form, "push"), second(form, "second");
  int presses = 0, second_presses = 0;
  push.OnClick = [&] { ++presses; };
  second.OnClick = [&] { ++second_presses; };
  plain.SetCaption("R&D network");
  label.SetCaption("Fish && &Dish");
  box.SetCaption("Show &hints");
  push.SetCaption("&Copy");
  second.SetCaption("Re&cover");
  form.Show();
  box.SetFocus();
  User().PressAlt("form", 'd');
  EXPECT_TRUE(edit.Focused()) << "the control behind the label";
  User().PressAlt("form", 'H');
  EXPECT_TRUE(box.Checked() && box.Focused());
  User().PressAlt("form", 'c');
  User().PressAlt("form", 'c');
  EXPECT_EQ(presses, 1);
  EXPECT_EQ(second_presses, 1) << "the next one behind the keyboard";
}

TEST_F(DialogKeysTest, WhatIsHiddenOrDisabledPassesTheKeyboardOn) {
  Edit first(form, "first");
  Panel panel(form, "panel");
  Edit inner(panel, "inner"), last(form, "last");
  form.Show();
  inner.SetFocus();
  panel.SetVisible(false);
  EXPECT_TRUE(last.Focused());
  last.SetEnabled(false);
  EXPECT_TRUE(first.Focused()) << "around the end";
  inner.SetFocus();
  EXPECT_TRUE(first.Focused()) << "what is hidden cannot have it";
}

}  // namespace
}  // namespace toolkit
