// The keyboard in forms with a caption.
#include "tests/toolkit/form_fixture.h"
#include "toolkit/controls/button.h"
#include "toolkit/controls/check_box.h"
#include "toolkit/controls/colour_panel.h"
#include "toolkit/controls/edit.h"
#include "toolkit/controls/label.h"
#include "toolkit/controls/page_control.h"
#include "toolkit/controls/panel.h"
#include "toolkit/controls/radio_button.h"

namespace toolkit {
namespace {

class DialogKeysTest : public FormTest {
 protected:
  // The names of the controls that have the keyboard after each of so many Tabs.
  Names Tabs(int count, bool backwards) {
    Names names;
    for (; count > 0; --count) {
      User().PressTab("form", backwards);
      names.push_back(User().Focused());
    }
    return names;
  }
};

TEST_F(DialogKeysTest, TabGoesThroughTheControlsInOrderOfCreation) {
  Label label(form, "label");
  Edit first(form, "first");
  Panel panel(form, "panel");
  Button off(form, "off");
  RadioButton unchosen(form, "unchosen"), chosen(form, "chosen");
  Memo memo(form, "memo");
  // Made last, but they lie on the panel.
  CheckBox inner(panel, "inner");
  Button hidden(panel, "hidden");
  off.SetEnabled(false);
  hidden.SetVisible(false);
  chosen.SetChecked(true);
  first.SetText("old");
  memo.SetText("old");
  form.Show();
  EXPECT_EQ(User().Focused(), "first") << "a form begins in its first control";
  EXPECT_EQ(Tabs(4, false), (Names{"inner", "chosen", "memo", "first"}));
  User().Type("first", "n");
  EXPECT_EQ(first.Text(), "n") << "Tab selects the text that it comes to";
  EXPECT_EQ(Tabs(1, true), Names{"memo"});
  User().Type("memo", "!");
  EXPECT_EQ(memo.Text(), "old!") << "but not of several lines";
  EXPECT_EQ(Tabs(2, true), (Names{"chosen", "inner"}));
  EXPECT_TRUE(panel.Focused()) << "it lies on it";
}

TEST_F(DialogKeysTest, EnterPressesTheDefaultButtonUnlessAnotherHasTheKeyboard) {
  Edit edit(form, "edit");
  Panel panel(form, "panel");
  Button ok(panel, "ok"), other(form, "other");
  ColourPanel painted(form, "painted");
  Names pressed;
  ok.OnClick = [&] { pressed.emplace_back("ok"); };
  other.OnClick = [&] { pressed.emplace_back("other"); };
  painted.OnClick = [&] { pressed.emplace_back("painted"); };
  ok.SetDefault(true);
  form.Show();
  const auto look = [this] {
    return std::pair(Widget("ok").is_default, Widget("other").is_default);
  };
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
